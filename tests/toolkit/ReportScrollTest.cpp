// Scrolling of a report control: positions, bars, wheel, very many rows.
#include "GridWindow.h"

#include <limits>

namespace {

SCROLLINFO BarOf(CWnd& window, int bar) {
    SCROLLINFO info = {};
    window.GetScrollInfo(bar, &info);
    return info;
}

TEST_F(GridTest, TheTopRowStaysInRange) {
    AddRecords(25);
    m_grid.SetTopRow(7);
    EXPECT_EQ(m_grid.GetTopRowIndex(), 7);
    m_grid.SetTopRow(1000);
    EXPECT_EQ(m_grid.GetTopRowIndex(), 15);
    m_grid.SetTopRow(-5);
    EXPECT_EQ(m_grid.GetTopRowIndex(), 0);
    EXPECT_EQ(m_grid.GetFullyVisibleRowCount(), VisibleRows);
}

TEST_F(GridTest, ARowIsBroughtIntoViewWithTheLeastScrolling) {
    AddRecords(50);
    m_grid.EnsureVisible(m_grid.GetRows()->GetAt(9));
    EXPECT_EQ(m_grid.GetTopRowIndex(), 0);
    m_grid.EnsureVisible(m_grid.GetRows()->GetAt(10));
    EXPECT_EQ(m_grid.GetTopRowIndex(), 1);
    m_grid.GetRows()->GetAt(40)->EnsureVisible();
    EXPECT_EQ(m_grid.GetTopRowIndex(), 31);
    m_grid.EnsureVisible(m_grid.GetRows()->GetAt(30));
    EXPECT_EQ(m_grid.GetTopRowIndex(), 30);
    m_grid.EnsureVisible(nullptr);
    EXPECT_EQ(m_grid.GetTopRowIndex(), 30);
}

TEST_F(GridTest, BarsShowWhenTheyAreNeeded) {
    AddRecords(VisibleRows);
    EXPECT_EQ(m_grid.GetStyle() & (WS_VSCROLL | WS_HSCROLL), 0U);
    AddRecords(1);
    EXPECT_EQ(m_grid.GetStyle() & (WS_VSCROLL | WS_HSCROLL), static_cast<DWORD>(WS_VSCROLL));
    EXPECT_EQ(m_grid.GetHeaderRect().Width(), Width - ::GetSystemMetrics(SM_CXVSCROLL));
    m_columns[0]->SetWidth(400);
    EXPECT_EQ(m_grid.GetStyle() & (WS_VSCROLL | WS_HSCROLL), static_cast<DWORD>(WS_VSCROLL | WS_HSCROLL));
    m_grid.ResetContent();
    EXPECT_EQ(m_grid.GetStyle() & (WS_VSCROLL | WS_HSCROLL), static_cast<DWORD>(WS_HSCROLL));
    m_columns[0]->SetWidth(20);
    EXPECT_EQ(m_grid.GetStyle() & (WS_VSCROLL | WS_HSCROLL), 0U);
}

TEST_F(GridTest, ASingleRowHasNoBarHoweverLowTheView) {
    AddRecords(2);
    m_columns[0]->SetWidth(700);
    m_grid.SetWindowPos(nullptr, 0, 0, Width, m_grid.GetHeaderRect().bottom + 30, SWP_NOMOVE | SWP_NOZORDER);
    ASSERT_LT(m_grid.GetReportRectangle().Height(), m_grid.GetRowRect(0).Height());
    EXPECT_EQ(m_grid.GetStyle() & (WS_VSCROLL | WS_HSCROLL), static_cast<DWORD>(WS_VSCROLL | WS_HSCROLL));
    m_grid.SetLeftOffset(10'000);
    m_grid.GetRecords()->RemoveAt(0);
    EXPECT_EQ(m_grid.GetStyle() & (WS_VSCROLL | WS_HSCROLL), static_cast<DWORD>(WS_HSCROLL));
    EXPECT_EQ(m_grid.GetHeaderRect().Width(), Width);
    EXPECT_EQ(m_grid.GetLeftOffset(), m_grid.GetReportHeader()->GetTotalWidth() - Width);
}

TEST_F(GridTest, AMinimisedGridIsScrolledInItsRangeAndComesBackWhereItStood) {
    AddRecords(50);
    m_columns[0]->SetWidth(700);
    m_grid.SetTopRow(7);
    m_grid.SetLeftOffset(100);
    const auto isInRange = [this] {
        const int most = m_grid.GetReportHeader()->GetTotalWidth() - m_grid.GetHeaderRect().Width();
        return m_grid.GetLeftOffset() <= std::max(most, 0);
    };
    m_grid.ShowWindow(SW_MINIMIZE);
    EXPECT_TRUE(isInRange());
    m_grid.SetWindowPos(nullptr, 0, 0, 500, 300, SWP_NOMOVE | SWP_NOZORDER);
    EXPECT_TRUE(isInRange());
    m_grid.ShowWindow(SW_RESTORE);
    EXPECT_EQ(m_grid.GetTopRowIndex(), 7);
    EXPECT_EQ(m_grid.GetLeftOffset(), 100);
    m_grid.ShowWindow(SW_MINIMIZE);
    m_grid.SendMessage(WM_MOUSEHWHEEL, MAKEWPARAM(0, 12'000), 0);
    EXPECT_TRUE(isInRange());
    m_grid.SetWindowPos(nullptr, 0, 0, 640, 300, SWP_NOMOVE | SWP_NOZORDER);
    EXPECT_TRUE(isInRange());
    m_grid.ShowWindow(SW_RESTORE);
    EXPECT_TRUE(isInRange());
}

TEST_F(GridTest, TheVerticalBarCountsRows) {
    AddRecords(50);
    m_grid.SetTopRow(12);
    const SCROLLINFO info = BarOf(m_grid, SB_VERT);
    EXPECT_EQ(info.nMin, 0);
    EXPECT_EQ(info.nMax, 49);
    EXPECT_EQ(info.nPage, static_cast<UINT>(VisibleRows));
    EXPECT_EQ(info.nPos, 12);
}

TEST_F(GridTest, TheHorizontalBarCountsPixels) {
    m_columns[0]->SetWidth(400);
    m_grid.SetLeftOffset(33);
    const SCROLLINFO info = BarOf(m_grid, SB_HORZ);
    EXPECT_EQ(info.nMax, 400 + 80 + 60 - 1);
    EXPECT_EQ(info.nPage, static_cast<UINT>(Width));
    EXPECT_EQ(info.nPos, 33);
    m_grid.SetLeftOffset(1000);
    EXPECT_EQ(m_grid.GetLeftOffset(), 540 - Width);
    m_columns[0]->SetWidth(200);
    EXPECT_EQ(m_grid.GetLeftOffset(), 340 - Width) << "the view does not hang over the end";
}

TEST_F(GridTest, TheVerticalBarScrollsByLineAndPage) {
    AddRecords(100);
    const auto scroll = [this](UINT code, int pos = 0) {
        m_grid.SendMessage(WM_VSCROLL, MAKEWPARAM(code, pos));
        return m_grid.GetTopRowIndex();
    };
    EXPECT_EQ(scroll(SB_LINEDOWN), 1);
    EXPECT_EQ(scroll(SB_PAGEDOWN), 1 + VisibleRows);
    EXPECT_EQ(scroll(SB_LINEUP), VisibleRows);
    EXPECT_EQ(scroll(SB_PAGEUP), 0);
    EXPECT_EQ(scroll(SB_BOTTOM), 90);
    EXPECT_EQ(scroll(SB_TOP), 0);
    EXPECT_EQ(scroll(SB_THUMBTRACK, 37), 37);
    EXPECT_EQ(scroll(SB_THUMBPOSITION, 55), 55);
    EXPECT_EQ(scroll(SB_ENDSCROLL), 55);
}

TEST_F(GridTest, TheHorizontalBarScrollsByStepAndPage) {
    m_columns[0]->SetWidth(2000);
    const auto scroll = [this](UINT code, int pos = 0) {
        m_grid.SendMessage(WM_HSCROLL, MAKEWPARAM(code, pos));
        return m_grid.GetLeftOffset();
    };
    const int step = scroll(SB_LINERIGHT);
    EXPECT_GT(step, 0);
    EXPECT_EQ(scroll(SB_PAGERIGHT), step + Width);
    EXPECT_EQ(scroll(SB_PAGELEFT), step);
    EXPECT_EQ(scroll(SB_THUMBTRACK, 123), 123);
    EXPECT_EQ(scroll(SB_RIGHT), 2140 - Width);
    EXPECT_EQ(scroll(SB_LEFT), 0);
}

TEST_F(GridTest, ANotchOfTheWheelScrollsTheUsersNumberOfLines) {
    AddRecords(100);
    UINT lines = 0;
    ::SystemParametersInfo(SPI_GETWHEELSCROLLLINES, 0, &lines, 0);
    Wheel(-WHEEL_DELTA);
    EXPECT_EQ(m_grid.GetTopRowIndex(), static_cast<int>(lines));
    Wheel(WHEEL_DELTA);
    EXPECT_EQ(m_grid.GetTopRowIndex(), 0);
}

TEST_F(GridTest, PartsOfANotchAddUp) {
    AddRecords(100);
    UINT lines = 0;
    ::SystemParametersInfo(SPI_GETWHEELSCROLLLINES, 0, &lines, 0);
    for (int i = 0; i < 12; ++i)
        Wheel(-WHEEL_DELTA / 12);
    EXPECT_EQ(m_grid.GetTopRowIndex(), static_cast<int>(lines));
}

TEST_F(GridTest, ShiftTurnsTheWheelSideways) {
    AddRecords(100);
    m_columns[0]->SetWidth(2000);
    Wheel(-WHEEL_DELTA, MK_SHIFT);
    EXPECT_GT(m_grid.GetLeftOffset(), 0);
    EXPECT_EQ(m_grid.GetTopRowIndex(), 0);
    const int offset = m_grid.GetLeftOffset();
    m_grid.SendMessage(WM_MOUSEHWHEEL, MAKEWPARAM(0, WHEEL_DELTA), 0);
    EXPECT_EQ(m_grid.GetLeftOffset(), 2 * offset) << "tilting right scrolls right";
    m_grid.SendMessage(WM_MOUSEHWHEEL, MAKEWPARAM(0, static_cast<WORD>(-WHEEL_DELTA)), 0);
    Wheel(WHEEL_DELTA, MK_SHIFT);
    EXPECT_EQ(m_grid.GetLeftOffset(), 0);
}

TEST_F(GridTest, TheKeyboardScrollsSideways) {
    m_columns[0]->SetWidth(2000);
    Key(VK_RIGHT);
    const int step = m_grid.GetLeftOffset();
    EXPECT_GT(step, 0);
    Key(VK_RIGHT);
    EXPECT_EQ(m_grid.GetLeftOffset(), 2 * step);
    Key(VK_LEFT);
    Key(VK_LEFT);
    Key(VK_LEFT);
    EXPECT_EQ(m_grid.GetLeftOffset(), 0);
}

TEST_F(GridTest, TheLastPageStaysFullWhenRowsGo) {
    AddRecords(100);
    m_grid.SetTopRow(90);
    for (int i = 99; i >= 50; --i)
        m_grid.GetRecords()->RemoveAt(i);
    EXPECT_EQ(m_grid.GetTopRowIndex(), 40);
    EXPECT_EQ(BarOf(m_grid, SB_VERT).nMax, 49);
}

TEST_F(GridTest, RowsThatGoAboveTheViewDoNotMoveIt) {
    AddRecords(100);
    m_grid.SetTopRow(50);
    m_grid.GetRecords()->RemoveAt(3);
    EXPECT_EQ(m_grid.GetTopRowIndex(), 49);
    EXPECT_EQ(Item(49, 0)->GetValue(), _T("A50"));
}

// --- Very many rows -------------------------------------------------------------------------------------------------

class VirtualGridTest : public GridTest {
protected:
    static constexpr int Count = std::numeric_limits<int>::max();

    VirtualGridTest() {
        auto* record = new CXTPReportRecord;
        for (int i = 0; i < 3; ++i)
            record->AddItem(new ProbeItem(_T("v")));
        m_item = static_cast<ProbeItem*>(record->GetItem(0));
        m_grid.SetVirtualMode(record, Count);
        m_grid.Populate();
        m_grid.UpdateWindow();
    }
    ProbeItem* m_item;
};

TEST_F(VirtualGridTest, TheEndCanBeReachedAndDrawn) {
    m_item->drawn = 0;
    m_grid.SetTopRow(Count);
    EXPECT_EQ(m_grid.GetTopRowIndex(), Count - VisibleRows);
    m_grid.UpdateWindow();
    EXPECT_EQ(m_item->drawn, VisibleRows);
    EXPECT_EQ(m_grid.HitTest(CPoint(5, HeaderHeight() + 9 * RowHeight() + 2))->GetIndex(), Count - 1);
}

TEST_F(VirtualGridTest, TheKeyboardGoesToBothEnds) {
    Key(VK_END);
    EXPECT_EQ(m_grid.GetFocusedRow()->GetIndex(), Count - 1);
    EXPECT_EQ(m_grid.GetTopRowIndex(), Count - VisibleRows);
    Key(VK_DOWN);
    EXPECT_EQ(m_grid.GetFocusedRow()->GetIndex(), Count - 1);
    Key(VK_NEXT);
    Key(VK_UP);
    EXPECT_EQ(m_grid.GetFocusedRow()->GetIndex(), Count - 2);
    Key(VK_HOME);
    EXPECT_EQ(m_grid.GetTopRowIndex(), 0);
}

TEST_F(VirtualGridTest, AllOfThemAreSelectedAtOnce) {
    const KeysDown ctrl({VK_CONTROL});
    Key('A');
    EXPECT_EQ(m_grid.GetSelectedRows()->GetCount(), Count);
    EXPECT_EQ(m_grid.selectionChanges, 1);
}

TEST_F(VirtualGridTest, TheBarReachesTheEnd) {
    SCROLLINFO info = BarOf(m_grid, SB_VERT);
    EXPECT_LE(std::int64_t{info.nMax} - info.nMin + 1, std::numeric_limits<int>::max());
    m_grid.SendMessage(WM_VSCROLL, SB_BOTTOM);
    info = BarOf(m_grid, SB_VERT);
    EXPECT_EQ(info.nPos, info.nMax - static_cast<int>(info.nPage) + 1);
    EXPECT_EQ(m_grid.GetTopRowIndex(), Count - VisibleRows);
}

} // namespace
