// What a plot cell asks of the grid that shows it.
#include "PlotCellProbes.h"

#include "plotcells/KyBarChartRecordItem.h"

// ----------------------------------------------------------------------------------------------------

TEST(PlotRecordItemInGrid, ADragMoveAsksTheGridForARedraw) {
    PlotGridHost host;
    auto* cell = host.AddRow(new ProbeCell);
    cell->SetValues(30, 50, 70);
    host.Show();
    const CRect rect = host.CellRect(0);
    cell->BeginDrag(CPoint(rect.left + 1 + 200, rect.top + 5), rect);
    ASSERT_TRUE(cell->m_draggingCenter);
    const int drawn = cell->drawings;
    cell->OnMouseMove(0, CPoint(rect.left + 1 + 240, rect.top + 5), &host.grid);
    host.grid.UpdateWindow();
    EXPECT_GT(cell->drawings, drawn);
}

TEST(PlotRecordItemInGrid, CancellingAsksItsGridForARedrawAndTheCursor) {
    PlotGridHost host;
    auto* cell = host.AddRow(new ProbeCell);
    cell->SetValues(30, 50, 70);
    host.Show();
    const CRect rect = host.CellRect(0);
    cell->BeginDrag(CPoint(rect.left + 1 + 200, rect.top + 5), rect);
    host.grid.UpdateWindow();
    host.grid.setCursors.clear();
    const int drawn = cell->drawings;
    cell->CancelDrag();
    ASSERT_EQ(host.grid.setCursors.size(), 1u);
    EXPECT_EQ(host.grid.setCursors[0].wParam, 0u);
    EXPECT_EQ(host.grid.setCursors[0].lParam, 0);
    host.grid.UpdateWindow();
    EXPECT_GT(cell->drawings, drawn);
}

TEST(PlotRecordItemInGrid, ASlotMayRemoveItsOwnCell) {
    const int alive = ProbeCell::Alive();
    PlotGridHost host;
    auto* cell = host.AddRow(new ProbeCell);
    cell->SetValues(30, 50, 70);
    host.Show();
    int aliveInSlot = 0;
    cell->m_valueChanged.connect([&](float, float, float) {
        host.grid.GetRecords()->RemoveAll();
        host.grid.Populate();
        aliveInSlot = ProbeCell::Alive() - alive;
    });
    const CRect rect = host.CellRect(0);
    const CPoint press(rect.left + 1 + 200, rect.top + 5);
    cell->BeginDrag(press, rect);
    cell->EndDrag(press, rect, true);
    EXPECT_EQ(aliveInSlot, 1);
    EXPECT_EQ(ProbeCell::Alive(), alive);
}

TEST(PlotRecordItemInGrid, BestFitKeepsTheWidthOfAPlot) {
    PlotGridHost host;
    host.AddRow(new KyBarChartRecordItem)->SetError(50, 0, 100, 30, 70, 20, 80, -99, -99);
    host.Show();
    CXTPReportColumn* const column = host.grid.GetColumns()->GetAt(1);
    const int width = column->GetWidth();
    ASSERT_GT(width, 300) << "more than the caption needs";
    host.grid.GetReportHeader()->BestFit(column);
    EXPECT_EQ(column->GetWidth(), width);
}
