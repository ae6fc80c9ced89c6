/// @file
/// Which rows are selected.
#pragma once

#include "RowSelection.h"
#include "XTPReportDefines.h"

/// The selection, held as ranges of row indices: selecting a million rows costs as much as selecting one.
/// Changes ask for a redraw of the rows they concern; they do not raise `OnSelectionChanged`, which is the control's
/// affair.
/// @ingroup toolkit_report
class KY_TOOLKIT_API CXTPReportSelectedRows : public CCmdTarget {
public:
    /// @param pControl the control that owns the selection
    explicit CXTPReportSelectedRows(CXTPReportControl* pControl);

    int GetCount() const;                           ///< held at the largest int
    CXTPReportRow* GetAt(int nIndex) const;         ///< the nIndex-th selected row from the top; null when out of range
    BOOL Contains(const CXTPReportRow* pRow) const; ///< FALSE for null and for rows of another control
    BOOL Contains(int nRowIndex) const;             ///< FALSE when out of range

    void Clear(); ///< selects nothing; the anchor stays
    /// Without multiple selection as `Select`.
    void Add(CXTPReportRow* pRow);
    void Remove(CXTPReportRow* pRow); ///< null and rows that are not selected change nothing
    void Invert(CXTPReportRow* pRow); ///< `Remove` when it is selected, else `Add`
    /// Selects this row alone; null selects nothing.
    void Select(CXTPReportRow* pRow);
    /// Selects the rows from `nBegin` to `nEnd` (either order, clamped to the rows there are); `bClear` drops what was
    /// selected before. Without multiple selection only `nEnd` is selected.
    void SelectBlock(int nBegin, int nEnd, BOOL bClear = TRUE);

    /// The row from which a shift-selection extends, −1 for none.
    int GetAnchor() const { return m_nAnchor; }
    void SetAnchor(int nRowIndex) { m_nAnchor = nRowIndex; } ///< selects nothing by itself

    // --- For the control and its rows -----------------------------------------------------------------------------
    /// The ranges themselves, for carrying the selection over a `Populate`. Setting them drops what lies beyond the
    /// rows.
    const RowSelection& GetRanges() const { return m_ranges; }
    void SetRanges(const RowSelection& ranges); ///< replaces the selection
    /// From `nFirst` on, `nRemoved` rows were taken out, which leave the selection, and `nInserted` came in their
    /// place, which are not selected; those below have moved along.
    void RowsChanged(int nFirst, int nRemoved, int nInserted);
    /// These rows have gone, see `CXTPReportControl::OnRowsTakenOut`.
    void RowsTakenOut(const RowSelection& gone);

private:
    int GetRowCount() const;
    void Assign(RowSelection ranges);

    CXTPReportControl* m_pControl;
    RowSelection m_ranges;
    int m_nAnchor = -1;
};
