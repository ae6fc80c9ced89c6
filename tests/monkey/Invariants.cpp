// What holds whatever a user or a message does.
#include "Invariants.h"

#include "PlotPeek.h"
#include "Sentinel.h"

#include "plotcells/KyPlotRecordItem.h"

#include "../support/LayoutBytes.h"

#include <algorithm>
#include <string>
#include <vector>

namespace {

void Expect(bool holds, const char* what) {
    if (!holds)
        sentinel::Fail(std::string("broken: ") + what);
}

void CheckOutline(const CXTPReportRows& rows) {
    for (int i = 0; i < rows.GetCount(); ++i) {
        const CXTPReportRecord* const record = rows.GetRecordAt(i);
        Expect(!record || rows.IndexOf(record) == i, "a record knows its row");
        Expect((record != nullptr) != (rows.GetGroupAt(i) != nullptr), "a row has a record or is a group");
        const int parent = rows.GetParentIndex(i);
        Expect(parent < i && (parent >= 0) == (rows.GetTreeDepth(i) + rows.GetGroupLevel(i) > 0),
               "a row stands below its parent");
        Expect(parent < 0 || (rows.IsExpanded(parent) && rows.GetBranchEnd(parent) > i), "its parent is expanded");
        const CXTPReportRecord* const above = parent >= 0 ? rows.GetRecordAt(parent) : nullptr;
        Expect(!record || record->GetParentRecord() == above, "a record stands below the one that owns it");
        Expect(!rows.IsExpanded(i) || rows.HasChildren(i), "only what has others below it is expanded");
    }
}

void CheckRows(CXTPReportControl& grid) {
    const int rows = grid.GetRows()->GetCount();
    const RowSelection& selection = grid.GetSelectedRows()->GetRanges();
    if (const CXTPReportRow* focused = grid.GetFocusedRow())
        Expect(focused->GetIndex() >= 0 && focused->GetIndex() < rows, "the focused row is one of the rows");
    const int selected = grid.GetSelectedRows()->GetCount();
    Expect(selected >= 0 && selected <= rows, "no more rows are selected than there are");
    Expect(!selection.Contains(rows) && !selection.Contains(-1), "the selection lies within the rows");
    if (selected > 0)
        Expect(grid.GetSelectedRows()->GetAt(selected - 1) != nullptr, "the last selected row is a row");
    Expect(grid.IsMultipleSelection() || selected <= 1, "a single selection holds one row at most");
    const int top = grid.GetTopRowIndex();
    Expect(top >= 0 && top <= std::max(rows - 1, 0), "the top row is a row");
    // The rows from the one above it on would not all have room.
    Expect(top == 0 ||
               grid.GetRowRect(rows - 1).bottom > grid.GetReportRectangle().bottom - grid.GetRowRect(top - 1).Height(),
           "the top row is in range");
    const bool isOutline = grid.GetRows()->IsOutline() != FALSE;
    Expect(grid.IsVirtualMode() || isOutline || rows <= grid.GetRecords()->GetCount(), "rows have records");
    if (isOutline)
        CheckOutline(*grid.GetRows());
}

void CheckColumns(CXTPReportControl& grid) {
    const CXTPReportColumns& columns = *grid.GetColumns();
    const CRect header = grid.GetHeaderRect();
    const int edge = grid.GetReportHeader()->GetFreezeEdge();
    int x = header.left, total = 0, frozen = 0;
    for (int i = 0; i < columns.GetCount(); ++i) {
        const CXTPReportColumn* column = columns.GetAt(i);
        Expect(column->GetControl() == &grid, "a column belongs to its grid");
        Expect(column->GetWidth() >= column->GetMinWidth() && column->GetWidth() <= column->GetMaxWidth(),
               "a column's width is within its limits");
        if (!column->IsVisible())
            continue;
        const int scrolled = column->IsFrozen() ? 0 : grid.GetLeftOffset();
        Expect(column->GetRect().left == x - scrolled && column->GetRect().Width() == column->GetWidth(),
               "columns stand side by side");
        Expect(!column->IsFrozen() || (x < edge || column->GetWidth() == 0),
               "frozen columns stand in front of the edge");
        Expect(column->GetUncoveredRect().IsRectEmpty() || column->IsFrozen() ||
                   column->GetUncoveredRect().left >= edge,
               "the others are seen behind it");
        frozen += column->IsFrozen() ? 1 : 0;
        x += column->GetWidth();
        total += column->GetWidth();
    }
    Expect(frozen <= grid.GetFreezeColumnsCount(), "no more columns are frozen than were asked for");
    Expect(total <= header.Width() || edge - header.left <= header.Width() - header.Width() / 4,
           "frozen columns leave room for the others");
    const CXTPReportHeader& strip = *grid.GetReportHeader();
    Expect(!strip.IsAutoColumnSizing() || header.Width() == 0 ||
               total <= std::max<int>(header.Width(), strip.GetLeastWidth()),
           "columns that fill the view are no wider than it");
    const int offset = grid.GetLeftOffset();
    if (offset < 0 || offset > std::max(total - header.Width(), 0))
        sentinel::Fail("broken: the sideways offset is in range: " + std::to_string(offset) + " of " +
                       std::to_string(total) + " in " + std::to_string(header.Width()) +
                       (grid.IsIconic() ? ", minimised" : "") + (grid.IsZoomed() ? ", maximised" : "") +
                       (grid.GetStyle() & WS_VSCROLL ? ", with a bar" : ""));
    const CXTPReportColumnOrder& order = *grid.GetColumns()->GetSortOrder();
    for (int i = 0; i < order.GetCount(); ++i)
        Expect(columns.IndexOf(order.GetAt(i)) >= 0, "the grid is sorted by columns that it has");
    const CXTPReportColumnOrder& groups = *grid.GetColumns()->GetGroupsOrder();
    for (int i = 0; i < groups.GetCount(); ++i) {
        Expect(columns.IndexOf(groups.GetAt(i)) >= 0, "the grid is grouped by columns that it has");
        Expect(strip.GetGroupRect(groups.GetAt(i)).IsRectEmpty() || grid.IsGroupByVisible(),
               "groups have buttons in the box alone");
    }
    if (const CXTPReportColumn* focused = grid.GetFocusedColumn())
        Expect(focused->IsVisible() && columns.IndexOf(focused) >= 0, "the focused column is visible");
    const CXTPReportColumn* fixed = columns.Find(CString(L"Name"));
    Expect(!fixed || fixed->IsVisible(), "the column that cannot be hidden is visible");
}

void CheckCells(CXTPReportControl& grid) {
    const CRect rcReport = grid.GetReportRectangle();
    const int first = grid.GetTopRowIndex();
    const int last = std::min(first + grid.GetFullyVisibleRowCount(), grid.GetRows()->GetCount()) - 1;
    for (int i = first; i <= last; ++i) {
        const CXTPReportRow* row = grid.GetRows()->GetAt(i);
        const CRect rcRow = row->GetRect();
        // A view lower than a row shows a part of it.
        const CRect rcPreview = row->GetPreviewRect();
        Expect(rcPreview.IsRectEmpty() ||
                   (rcPreview.top == row->GetCellsRect().bottom - 1 && rcPreview.bottom == rcRow.bottom - 1),
               "a preview stands between the cells and the line below the row");
        Expect(rcRow.top >= rcReport.top && (rcRow.bottom <= rcReport.bottom || i == first), "rows lie in the view");
        const CXTPReportRecord* record = row->GetRecord();
        for (int item = 0; record && item < record->GetItemCount(); ++item) {
            const auto* plot = dynamic_cast<const KyPlotRecordItem*>(record->GetItem(item));
            const CRect rcItem = row->GetItemRect(record->GetItem(item));
            Expect(rcItem.IsRectEmpty() || (rcItem.top == rcRow.top && rcItem.bottom == row->GetCellsRect().bottom - 1),
                   "cells lie in their rows");
            Expect(!plot || plotpeek::Drags(*plot) <= 1, "a plot has one dragged mark at most");
        }
    }
}

} // namespace

namespace invariants {

void Check(const Zoo& zoo, bool isAtRest) {
    for (CXTPReportControl* grid : zoo.Grids()) {
        CheckRows(*grid);
        CheckColumns(*grid);
        CheckCells(*grid);
        if (isAtRest)
            Expect(grid->GetMouseMode() == xtpReportMouseNothing ||
                       grid->GetMouseMode() == xtpReportMouseOverColumnDivide,
                   "no gesture goes on without the mouse");
    }
    if (isAtRest)
        Expect(::GetCapture() == nullptr, "the mouse is not captured while no button is down");
    Expect(AfxGetMainWnd() == zoo.Profiler(), "the program knows its main window");
}

void CheckLayouts(const Zoo& zoo) {
    for (CXTPReportControl* grid : zoo.Grids()) {
        const std::vector<BYTE> layout = SaveLayout(*grid);
        const int cause = LoadLayout(*grid, layout);
        if (cause != CArchiveException::none)
            sentinel::Fail("broken: a layout that was written can be read; cause " + std::to_string(cause));
        Expect(SaveLayout(*grid) == layout, "a layout read back is the one written");
    }
}

} // namespace invariants
