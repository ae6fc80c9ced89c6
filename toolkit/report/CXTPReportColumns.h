// The columns of a report control and the order in which it is sorted by them.
#pragma once

#include "XTPReportDefines.h"

#include <memory>
#include <vector>

/// The columns by which rows are sorted, most significant first. Columns are not owned.
class KY_TOOLKIT_API CXTPReportColumnOrder {
public:
    int GetCount() const { return static_cast<int>(m_columns.size()); }
    /// Null when the index is out of range.
    CXTPReportColumn* GetAt(int nIndex) const;
    /// Appends the column; one that is there already moves to the end.
    int Add(CXTPReportColumn* pColumn);
    int Add(CXTPReportColumn* pColumn, BOOL bSortIncreasing);
    int IndexOf(const CXTPReportColumn* pColumn) const; ///< −1 when absent
    void Remove(CXTPReportColumn* pColumn);
    void Clear() { m_columns.clear(); }

private:
    std::vector<CXTPReportColumn*> m_columns;
};

/// Owns the columns; the index of a column is its place from left to right, hidden columns counted.
class KY_TOOLKIT_API CXTPReportColumns : public CCmdTarget {
public:
    explicit CXTPReportColumns(CXTPReportControl* pControl);
    ~CXTPReportColumns() override;

    /// Takes ownership.
    void Add(CXTPReportColumn* pColumn);
    /// Deletes the column.
    void Remove(CXTPReportColumn* pColumn);
    void Clear();

    int GetCount() const { return static_cast<int>(m_columns.size()); }
    CXTPReportColumn* GetAt(int nIndex) const; ///< null when out of range
    int IndexOf(const CXTPReportColumn* pColumn) const;
    /// The column that shows the item index, or that has the internal name; null if none.
    CXTPReportColumn* Find(int nItemIndex) const;
    CXTPReportColumn* Find(const CString& strInternalName) const;

    int GetVisibleColumnsCount() const;
    CXTPReportColumn* GetVisibleAt(int nVisibleIndex) const;

    /// Moves the column at `nOldOrder` so that it stands at `nNewOrder`. Returns the new place, −1 on bad input.
    int ChangeColumnOrder(int nNewOrder, int nOldOrder);

    /// Replaces the sort order by one column (null: unsorted). The rows follow at the next `Populate`.
    void SetSortColumn(CXTPReportColumn* pColumn, BOOL bIncreasing);
    void ResetSortOrder();
    CXTPReportColumnOrder* GetSortOrder() { return &m_sortOrder; }
    /// The columns by which rows are grouped. Kept in saved layouts.
    CXTPReportColumnOrder* GetGroupsOrder() { return &m_groupsOrder; }

    CXTPReportControl* GetControl() const { return m_pControl; }

private:
    CXTPReportControl* m_pControl;
    std::vector<std::unique_ptr<CXTPReportColumn>> m_columns;
    CXTPReportColumnOrder m_sortOrder;
    CXTPReportColumnOrder m_groupsOrder;
};
