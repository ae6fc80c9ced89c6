// A report control gives back every handle and every cell.
#include "GridWindow.h"

#include "../../framework/core/HandleCounts.h"
#include "report/RecordItemHeap.h"

#include <map>

namespace {

using handlecounts::Kind;

std::map<Kind, long> LiveHandles() {
    std::map<Kind, long> counts;
    for (const Kind kind : {Kind::GdiObject, Kind::DeviceContext, Kind::Window, Kind::Menu})
        counts[kind] = handlecounts::Live(kind);
    return counts;
}

/// GridTest with a life that the test can end and begin.
class GridLife : public GridTest {
public:
    void TestBody() override {}
    void UseEverything() {
        AddRecords(50);
        for (const int theme : {0, 1, 4, 8, 9})
            m_grid.SetTheme(static_cast<XTPReportPaintTheme>(theme));
        Click(HeaderOf(0));
        Press(HeaderOf(0));
        Move(HeaderOf(1));
        m_grid.UpdateWindow();
        Release(HeaderOf(1));
        DoubleClick(DividerOf(1));
        Wheel(-360);
        Key(VK_END);
        m_grid.SetTopRow(0);
        for (int i = 0; i < 3; ++i)
            Item(0, i)->SetTooltip(_T("tip"));
        CXTPToolTipContext* tips = m_grid.GetToolTipContext();
        tips->SetDelayTime(TTDT_INITIAL, 1);
        // The real pointer is elsewhere, and the system may still be about to tell that it has left.
        for (int i = 0; i < 50 && !tips->IsTipVisible(); ++i) {
            tips->FilterToolTipMessage(&m_grid, WM_MOUSEMOVE, 0, MAKELPARAM(Cell(0).x, Cell(0).y));
            Pump(40);
        }
        EXPECT_TRUE(tips->IsTipVisible());
        Printed();
        m_grid.AllowEdit(TRUE);
        Key(VK_F2);
        EXPECT_NE(m_grid.GetActiveItem(), nullptr);
        m_grid.SetTheme(xtpReportThemeOffice2013);
        Key(VK_F2); // is left open
    }
};

TEST(ReportLeak, ALifeOfAControlLeavesNothingBehind) {
    { GridLife().UseEverything(); } // what is made once per process
    const std::map<Kind, long> before = LiveHandles();
    const std::size_t items = recorditemheap::LiveItems();
    const std::size_t records = recorditemheap::LiveRecords();
    for (int i = 0; i < 3; ++i)
        GridLife().UseEverything();
    EXPECT_EQ(LiveHandles(), before);
    EXPECT_EQ(recorditemheap::LiveItems(), items);
    EXPECT_EQ(recorditemheap::LiveRecords(), records);
}

TEST_F(GridTest, DrawingKeepsNoHandle) {
    AddRecords(50);
    Item(1, 0)->AddHyperlink(new CXTPReportHyperlink(0, 1));
    Press(HeaderOf(0));
    Move(HeaderOf(1));
    m_grid.UpdateWindow();
    const std::map<Kind, long> before = LiveHandles();
    for (int i = 0; i < 20; ++i) {
        m_grid.RedrawControl();
        m_grid.UpdateWindow();
        m_grid.SetTopRow(i);
    }
    EXPECT_EQ(LiveHandles(), before);
}

} // namespace
