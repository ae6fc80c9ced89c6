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
    /// Appends the column; one that is there already moves to the end. Returns its place, −1 for null.
    int Add(CXTPReportColumn* pColumn);
    /// As above, and gives the column that direction.
    int Add(CXTPReportColumn* pColumn, BOOL bSortIncreasing);
    int IndexOf(const CXTPReportColumn* pColumn) const; ///< −1 when absent
    void Remove(CXTPReportColumn* pColumn);
    void Clear() { m_columns.clear(); }

private:
    std::vector<CXTPReportColumn*> m_columns;
};

/// Owns the columns; the index of a column is its place from left to right, hidden columns counted. Changes ask the
/// control for a new layout.
class KY_TOOLKIT_API CXTPReportColumns : public CCmdTarget {
public:
    explicit CXTPReportColumns(CXTPReportControl* pControl);
    ~CXTPReportColumns() override;

    /// Takes ownership; null is not added.
    void Add(CXTPReportColumn* pColumn);
    /// Deletes the column, which leaves the sort and group order too; nothing happens when it is not in the collection.
    void Remove(CXTPReportColumn* pColumn);
    void Clear();

    int GetCount() const { return static_cast<int>(m_columns.size()); }
    CXTPReportColumn* GetAt(int nIndex) const; ///< null when out of range
    int IndexOf(const CXTPReportColumn* pColumn) const;
    /// The first column that shows the item index, or that has the internal name (case counts); null if none.
    CXTPReportColumn* Find(int nItemIndex) const;
    CXTPReportColumn* Find(const CString& strInternalName) const;

    int GetVisibleColumnsCount() const;
    CXTPReportColumn* GetVisibleAt(int nVisibleIndex) const;

    /// Moves the column at `nOldOrder` so that it stands at `nNewOrder`, which is brought into the places there are.
    /// Returns the new place, −1 when there is no column at `nOldOrder`.
    int ChangeColumnOrder(int nNewOrder, int nOldOrder);
    /// The same columns from left to right in another order; each must be there once.
    void Arrange(const std::vector<CXTPReportColumn*>& columns);

    /// Replaces the sort order by one column (null: unsorted). The rows follow at the next `Populate`.
    void SetSortColumn(CXTPReportColumn* pColumn, BOOL bIncreasing);
    void ResetSortOrder();
    CXTPReportColumnOrder* GetSortOrder() { return &m_sortOrder; }
    /// The columns by which rows are grouped. Kept in saved layouts.
    CXTPReportColumnOrder* GetGroupsOrder() { return &m_groupsOrder; }

    CXTPReportControl* GetControl() const { return m_pControl; }

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
