/// @file
/// The columns of a report control and the order in which it is sorted by them.
#pragma once

#include "XTPReportDefines.h"

#include <memory>
#include <vector>

/// The columns by which rows are sorted, most significant first. Columns are not owned.
/// @ingroup toolkit_report
class KY_TOOLKIT_API CXTPReportColumnOrder {
public:
    int GetCount() const { return static_cast<int>(m_columns.size()); } ///< 0: not sorted
    /// Null when the index is out of range.
    CXTPReportColumn* GetAt(int nIndex) const;
    /// Appends the column; one that is there already moves to the end. Returns its place, −1 for null.
    int Add(CXTPReportColumn* pColumn);
    /// As above, and gives the column that direction.
    int Add(CXTPReportColumn* pColumn, BOOL bSortIncreasing);
    /// Puts the column at that place, which is brought into the places there are; one that is there already leaves its
    /// former place first. Returns its place, −1 for null.
    int InsertAt(int nIndex, CXTPReportColumn* pColumn);
    int IndexOf(const CXTPReportColumn* pColumn) const; ///< −1 when absent
    void Remove(CXTPReportColumn* pColumn);             ///< from the order, not from the control
    void Clear() { m_columns.clear(); }                 ///< the rows keep their order until the next `Populate`

private:
    std::vector<CXTPReportColumn*> m_columns;
};

/// Owns the columns; the index of a column is its place from left to right, hidden columns counted. Changes ask the
/// control for a new layout.
/// @ingroup toolkit_report
class KY_TOOLKIT_API CXTPReportColumns : public CCmdTarget {
public:
    /// @param pControl the control that owns the collection; null for a collection without one, as in tests
    explicit CXTPReportColumns(CXTPReportControl* pControl);
    ~CXTPReportColumns() override;

    /// Takes ownership; null is not added.
    void Add(CXTPReportColumn* pColumn);
    /// Deletes the column, which leaves the sort and group order too; nothing happens when it is not in the collection.
    void Remove(CXTPReportColumn* pColumn);
    void Clear(); ///< deletes all columns; sort and group order are empty then

    int GetCount() const { return static_cast<int>(m_columns.size()); } ///< hidden columns counted
    CXTPReportColumn* GetAt(int nIndex) const;                          ///< null when out of range
    int IndexOf(const CXTPReportColumn* pColumn) const;                 ///< −1 when absent
    /// The first column from the left that shows the item index; null if none.
    CXTPReportColumn* Find(int nItemIndex) const;
    /// The first column from the left that has the internal name (case counts); null if none.
    CXTPReportColumn* Find(const CString& strInternalName) const;

    int GetVisibleColumnsCount() const; ///< scrolled out of view or not
    /// The nVisibleIndex-th visible column from the left; null when out of range.
    CXTPReportColumn* GetVisibleAt(int nVisibleIndex) const;

    /// Moves the column at `nOldOrder` so that it stands at `nNewOrder`, which is brought into the places there are.
    /// Returns the new place, −1 when there is no column at `nOldOrder`.
    int ChangeColumnOrder(int nNewOrder, int nOldOrder);
    /// The same columns from left to right in another order; each must be there once.
    void Arrange(const std::vector<CXTPReportColumn*>& columns);

    /// Replaces the sort order by one column (null: unsorted). The rows follow at the next `Populate`.
    void SetSortColumn(CXTPReportColumn* pColumn, BOOL bIncreasing);
    /// Unsorted from the next `Populate` on: rows stand in the order of the records.
    void ResetSortOrder();
    /// The columns by which rows are sorted. Kept in saved layouts.
    CXTPReportColumnOrder* GetSortOrder() { return &m_sortOrder; }
    /// The columns by which rows are grouped, most significant first, from the next `Populate` on; each in the
    /// direction that counts for its sorting. They stay as visible as they are. Kept in saved layouts.
    CXTPReportColumnOrder* GetGroupsOrder() { return &m_groupsOrder; }

    CXTPReportControl* GetControl() const { return m_pControl; } ///< the control that owns the collection
    /// The resolution of the control's paint manager has changed: the widths follow. The control lays out afterwards.
    void OnDpiChanged();

private:
    struct Release {
        void operator()(CXTPReportColumn* pColumn) const;
    };
    void Changed();

    CXTPReportControl* m_pControl;
    std::vector<std::unique_ptr<CXTPReportColumn, Release>> m_columns;
    CXTPReportColumnOrder m_sortOrder;
    CXTPReportColumnOrder m_groupsOrder;
};
