/// @file
/// The rows of a report control: what it shows below each other, from the top.
#pragma once

#include "RecordSequence.h"
#include "XTPReportDefines.h"

#include <array>
#include <memory>
#include <unordered_map>
#include <vector>

class ReportGroup;
class RowOutline;
struct ReportGroups;
struct RowList;
struct RowSplice;
class TextFilter;

/// Rebuilt by `CXTPReportControl::Populate`: the visible records, those below an expanded record, and the groups of the
/// grouping columns. Row objects are made when they are first asked for, so that a control with millions of rows holds
/// objects only for those that were looked at. A row object stays the same until the next rebuild, as long as its row
/// is shown; one that was taken out has neither control nor record.
/// @ingroup toolkit_report
class KY_TOOLKIT_API CXTPReportRows : public CCmdTarget {
public:
    /// @param pControl the control that owns the rows; null for rows without one, as in tests
    explicit CXTPReportRows(CXTPReportControl* pControl);
    ~CXTPReportRows() override;

    /// As of the last `Populate`, with what was expanded and without what was collapsed or removed since.
    int GetCount() const;
    CXTPReportRow* GetAt(int nIndex) const;               ///< null when out of range
    CXTPReportRow* Find(CXTPReportRecord* pRecord) const; ///< null when the record has no row, and in virtual mode
    int IndexOf(const CXTPReportRecord* pRecord) const;   ///< −1 when the record has no row, and in virtual mode
    /// As `GetAt(n)->GetRecord()` without making the row object; null for a group row.
    CXTPReportRecord* GetRecordAt(int nIndex) const;
    CXTPReportControl* GetControl() const { return m_pControl; } ///< the control that owns the rows

    // --- Outline; indices that are out of range belong to no row ----------------------------------------------------
    BOOL IsOutline() const;                    ///< there are groups, or records below others
    BOOL HasChildren(int nIndex) const;        ///< the row can be expanded, or is
    BOOL IsExpanded(int nIndex) const;         ///< rows below it are shown
    int GetParentIndex(int nIndex) const;      ///< the row above which it stands in; −1 for none
    int GetFirstChildIndex(int nIndex) const;  ///< −1 while it is collapsed
    int GetNextSiblingIndex(int nIndex) const; ///< the next row below the same parent; −1 for the last
    int GetBranchEnd(int nIndex) const;        ///< behind the last row below it
    int GetTreeDepth(int nIndex) const;        ///< records above it
    int GetGroupLevel(int nIndex) const;       ///< groups above it
    /// Whether the row, or what stands `nAbove` levels above it, is followed by another one below the same parent.
    BOOL HasNextSibling(int nIndex, int nAbove) const;

    // --- For the control ----------------------------------------------------------------------------------------
    /// Makes the rows from the records, see `rowbuilder::Build`; every earlier row object is detached. Records that had
    /// rows must still live.
    void Rebuild(const CXTPReportRecords& records, CXTPReportColumns& columns, const TextFilter& filter);
    /// One record for all rows. A null record and negative counts give no rows.
    void RebuildVirtual(CXTPReportRecord* pVirtualRecord, int nCount);
    bool IsVirtual() const { return m_pVirtualRecord != nullptr; } ///< one record stands for all rows
    /// Shows or hides the rows below a row, and keeps that; selection, focus and top row move along.
    void SetExpanded(int nIndex, bool bExpanded);
    /// The same for every row; every row object is detached.
    void SetAllExpanded(bool bExpanded);
    /// Expands a row and all below it; every row object is detached.
    void ExpandBranch(int nIndex);
    /// What a row stands for: its record, or what stands for the group. Only to be compared, and to be found again.
    CXTPReportRecord* GetEntryAt(int nIndex) const;
    /// The row of an entry, else of the nearest one above it that is shown; −1 when there is none.
    int IndexOfNearest(const CXTPReportRecord* pEntry) const;
    const ReportGroup* GetGroupAt(int nIndex) const; ///< null for the row of a record
    /// Takes out the row of a record that is about to be deleted, with those below it and groups that have become
    /// empty, out of the selection as well, and tells the control.
    void RecordRemoved(CXTPReportRecord* pRecord);
    /// The same for several records, without one another below them.
    void RecordsRemoved(const std::vector<CXTPReportRecord*>& records);
    /// The same for all records below one.
    void ChildrenRemoved(const CXTPReportRecord* pRecord);
    /// Detaches every row object; selection, focus and top row of the control go as well.
    void Clear();

private:
    CXTPReportRow*& RowObject(int nIndex) const;
    void DetachRowObjects();
    RowSelection PlacesOf(const std::vector<CXTPReportRecord*>& records) const;
    void TakeOutRowObjects(const RowSelection& gone);
    void SpliceRowObjects(const RowSplice& splice);
    void Splice(const RowSplice& splice);
    struct NodeRange {
        int nFirst;
        int nEnd;
    };
    NodeRange TakeOutNodes(int nFirstNode, int nEndNode);
    void TakeOut(int nFirstNode, int nEndNode);
    void BranchesRemoved(const std::vector<CXTPReportRecord*>& records);
    void TellTakenOut(const RowSelection& gone);
    void ForgetPlaces();
    void SetNodesExpanded(int nFirstNode, int nEndNode, bool bExpanded);
    void CountGroups();
    static bool IsExpandedIn(const CString& strFilter, const CXTPReportRecord& entry);
    bool IsEntryExpanded(int nNode) const;
    void SetEntryExpanded(int nNode, bool bExpanded);
    bool IsGroup(int nNode) const;
    int NodeAt(int nIndex) const;
    static void Detach(CXTPReportRow* pRow);

    CXTPReportControl* m_pControl;
    /// What has a row; in an outline also what would have one if all were expanded, by node.
    RecordSequence m_records;
    std::unique_ptr<RowOutline> m_pOutline; ///< null while no row stands below another
    std::unique_ptr<ReportGroups> m_pGroups;
    CString m_strFilter; ///< which the rows have passed; empty: none
    CXTPReportRecord* m_pVirtualRecord = nullptr;
    int m_nVirtualCount = 0;
    static constexpr int RowBlock = 256;
    /// By index in blocks, null for those that nobody has asked for: of very many rows few are ever looked at.
    mutable std::unordered_map<int, std::array<CXTPReportRow*, RowBlock>> m_rowObjects;
};
