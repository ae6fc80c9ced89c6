/// @file
/// The rows of a report control: the records in the order in which they are shown.
#pragma once

#include "RecordSequence.h"
#include "XTPReportDefines.h"

#include <array>
#include <unordered_map>
#include <vector>

/// Rebuilt by `CXTPReportControl::Populate`. Row objects are made when they are first asked for, so that a control with
/// millions of rows holds objects only for those that were looked at. A row object stays the same until the next
/// rebuild; one that was taken out has neither control nor record.
/// @ingroup toolkit_report
class KY_TOOLKIT_API CXTPReportRows : public CCmdTarget {
public:
    /// @param pControl the control that owns the rows; null for rows without one, as in tests
    explicit CXTPReportRows(CXTPReportControl* pControl);
    ~CXTPReportRows() override;

    int GetCount() const;                                 ///< as of the last `Populate`, less what was removed since
    CXTPReportRow* GetAt(int nIndex) const;               ///< null when out of range
    CXTPReportRow* Find(CXTPReportRecord* pRecord) const; ///< null when the record has no row, and in virtual mode
    int IndexOf(const CXTPReportRecord* pRecord) const;   ///< −1 when the record has no row, and in virtual mode
    CXTPReportRecord* GetRecordAt(int nIndex) const;      ///< as `GetAt(n)->GetRecord()` without making the row object
    CXTPReportControl* GetControl() const { return m_pControl; } ///< the control that owns the rows

    // --- For the control ----------------------------------------------------------------------------------------
    /// Takes the visible records in the given order; every earlier row object is detached.
    void Rebuild(std::vector<CXTPReportRecord*> records);
    /// One record for all rows. A null record and negative counts give no rows.
    void RebuildVirtual(CXTPReportRecord* pVirtualRecord, int nCount);
    bool IsVirtual() const { return m_pVirtualRecord != nullptr; } ///< one record stands for all rows
    /// Takes out the row of a record that is about to be deleted, out of the selection as well, and tells the control.
    void RecordRemoved(CXTPReportRecord* pRecord);
    /// Detaches every row object; selection, focus and top row of the control go as well.
    void Clear();

private:
    CXTPReportRow*& RowObject(int nIndex) const;
    void DetachRowObjects();
    void TakeOutRowObject(int nIndex);
    static void Detach(CXTPReportRow* pRow);

    CXTPReportControl* m_pControl;
    RecordSequence m_records;
    CXTPReportRecord* m_pVirtualRecord = nullptr;
    int m_nVirtualCount = 0;
    static constexpr int RowBlock = 256;
    /// By index in blocks, null for those that nobody has asked for: of very many rows few are ever looked at.
    mutable std::unordered_map<int, std::array<CXTPReportRow*, RowBlock>> m_rowObjects;
};
