// The order of records in a report control, and what stays with them when the rows are made anew.
#pragma once

#include "XTPReportDefines.h"

#include <cstdint>
#include <vector>

namespace reportsort {

/// The places of the records in the order of the sort order's columns, most significant first, each in its direction.
/// Records that compare equal in all of them stay in the order given, whichever the direction. A record without an item
/// for a column comes before those that have one. Cells compare through `CXTPReportRecordItem::Compare`.
std::vector<std::uint32_t> Order(const std::vector<CXTPReportRecord*>& records, CXTPReportColumns& columns);

/// Carries selection, anchor and focus over a rebuild of the rows: they stay with their records and groups. Take it before the
/// rebuild, with the rows' old order still there; no record may be deleted until `Restore`. In virtual mode, which has
/// one record for all rows, they stay with the row indices; when virtual mode begins or ends nothing is carried over.
class RowStateKeeper {
public:
    /// `nFocusedRow` is the index of the focused row, -1 for none.
    RowStateKeeper(CXTPReportRows& rows, CXTPReportSelectedRows& selection, int nFocusedRow);

    /// Selects the rows of the records that were selected, and forgets those that have no row any more. Returns the
    /// index of the row that has the focus now, -1 for none: where a record stands below a collapsed row, that one.
    int Restore();

private:
    CXTPReportRows& m_rows;
    CXTPReportSelectedRows& m_selection;
    std::vector<CXTPReportRecord*> m_selected;
    CXTPReportRecord* m_pAnchor = nullptr;
    CXTPReportRecord* m_pFocused = nullptr;
    int m_nFocusedRow;
    bool m_bVirtual;
};

} // namespace reportsort
