// The mouse over the rows of a report control: which cell hears of it, what the owner is told, and handlers that take
// the ground away.
#include "GridWindow.h"

namespace {

using ::testing::ElementsAre;

class MouseTest : public GridTest {
protected:
    MouseTest() { AddRecords(30); }
};

// --- Routing --------------------------------------------------------------------------------------------------------

TEST_F(MouseTest, EveryMoveGoesToTheItemUnderThePoint) {
    Move(CPoint(10, Cell(1).y), 0);
    Move(CPoint(20, Cell(1).y), 0);
    Move(Cell(1, 1), 0);
    EXPECT_THAT(Item(1, 0)->moves, ElementsAre(CPoint(10, Cell(1).y), CPoint(20, Cell(1).y)));
    EXPECT_THAT(Item(1, 1)->moves, ElementsAre(Cell(1, 1)));
}

TEST_F(MouseTest, MovesOutsideTheCellsGoToNobody) {
    Move(HeaderOf(0), 0);
    Move(CPoint(250, Cell(0).y), 0);
    Move(CPoint(-10, Cell(0).y), 0);
    Move(CPoint(10, -20), 0);
    for (int row = 0; row < 3; ++row)
        EXPECT_TRUE(Item(row, 0)->moves.empty());
}

TEST_F(MouseTest, MovesGoToTheItemWhileTheMouseIsCaptured) {
    Press(Cell(2));
    m_grid.SetCapture();
    Move(Cell(2));
    Move(CPoint(40, Cell(2).y));
    EXPECT_EQ(Item(2, 0)->moves.size(), 2U);
    Release(Cell(2));
    ::ReleaseCapture();
}

TEST_F(MouseTest, MovesDuringAHeadersGestureGoToNoCell) {
    Press(DividerOf(0));
    Move(Cell(2));
    Release(Cell(2));
    EXPECT_TRUE(Item(2, 0)->moves.empty());
}

TEST_F(MouseTest, PressReleaseAndClickReachTheItem) {
    Press(Cell(2, 1));
    EXPECT_EQ(Item(2, 1)->presses, 1);
    EXPECT_EQ(Item(2, 1)->clicks, 0);
    Release(Cell(2, 1));
    EXPECT_EQ(Item(2, 1)->releases, 1);
    EXPECT_EQ(Item(2, 1)->clicks, 1);
    EXPECT_NE(::GetCapture(), m_grid.m_hWnd);
}

TEST_F(MouseTest, ReleasingOverAnotherCellOfTheRowIsNoClick) {
    Press(Cell(2, 1));
    Release(Cell(2, 2));
    EXPECT_EQ(Item(2, 1)->clicks, 0);
    EXPECT_EQ(Item(2, 2)->clicks, 0);
    EXPECT_EQ(Item(2, 2)->releases, 1);
    EXPECT_EQ(m_owner.Count(NM_CLICK), 0);
}

TEST_F(MouseTest, AReleaseWithoutAPressIsNoClick) {
    Release(Cell(2));
    EXPECT_EQ(Item(2, 0)->clicks, 0);
    EXPECT_EQ(m_owner.Count(NM_CLICK), 0);
}

TEST_F(MouseTest, ADoubleClickReachesTheItemOnce) {
    DoubleClick(Cell(2));
    EXPECT_EQ(Item(2, 0)->doubleClicks, 1);
    EXPECT_EQ(Item(2, 0)->clicks, 1);
    EXPECT_EQ(m_owner.Count(NM_CLICK), 1);
    EXPECT_EQ(m_owner.Count(NM_DBLCLK), 1);
}

TEST_F(MouseTest, TheSecondPressOfADoubleClickIsAPressWhileTheButtonIsDown) {
    const KeysDown button({VK_LBUTTON});
    DoubleClick(Cell(2));
    EXPECT_EQ(Item(2, 0)->presses, 2);
    EXPECT_EQ(Item(2, 0)->doubleClicks, 1);
    EXPECT_EQ(Item(2, 0)->clicks, 1);
}

// --- Notifications --------------------------------------------------------------------------------------------------

TEST_F(MouseTest, TheOwnerIsToldOfAClickAfterTheSelection) {
    Click(Cell(4, 1));
    ASSERT_EQ(m_owner.notifications.size(), 3U);
    EXPECT_EQ(m_owner.notifications[0].code, XTP_NM_REPORT_FOCUSCHANGED);
    EXPECT_EQ(m_owner.notifications[1].code, XTP_NM_REPORT_SELCHANGED);
    EXPECT_EQ(m_owner.notifications[2].code, static_cast<UINT>(NM_CLICK));
    EXPECT_EQ(m_owner.notifications[2].rowIndex, 4);
    EXPECT_EQ(m_owner.notifications[2].item, Item(4, 1));
    EXPECT_EQ(m_owner.notifications[2].column, m_columns[1]);
}

TEST_F(MouseTest, ARightClickTellsTheOwnerAndAsksForItsMenu) {
    const CPoint point = Cell(3, 1);
    m_grid.SendMessage(WM_RBUTTONDOWN, MK_RBUTTON, MAKELPARAM(point.x, point.y));
    m_grid.SendMessage(WM_RBUTTONUP, 0, MAKELPARAM(point.x, point.y));
    ASSERT_EQ(m_owner.Count(NM_RCLICK), 1);
    EXPECT_EQ(m_owner.notifications.back().item, Item(3, 1));
    EXPECT_EQ(m_owner.contextMenus, 1);
    EXPECT_TRUE(m_header->menus.empty());
}

TEST_F(MouseTest, AClickOnAHyperlinkTellsWhichOne) {
    Item(1, 0)->AddHyperlink(new CXTPReportHyperlink(0, 0));
    m_grid.RedrawControl();
    m_grid.UpdateWindow();
    const CPoint onLink = Item(1, 0)->GetHyperlinkAt(0)->m_rcHyperSpot.CenterPoint();
    Click(onLink);
    EXPECT_EQ(m_owner.Count(XTP_NM_REPORT_HYPERLINK), 1);
    Click(CPoint(90, onLink.y));
    EXPECT_EQ(m_owner.Count(XTP_NM_REPORT_HYPERLINK), 1);
}

// --- Cursor ---------------------------------------------------------------------------------------------------------

class CursorTest : public MouseTest {
protected:
    HCURSOR CursorAt(CPoint point, UINT hitTest = HTCLIENT) {
        // An older place of the pointer may still be on its way.
        CPoint screen;
        for (int i = 0; i < 50 && screen != point; ++i) {
            PutCursor(point);
            Pump(5);
            ::GetCursorPos(&screen);
            m_grid.ScreenToClient(&screen);
        }
        ::SetCursor(::LoadCursor(nullptr, IDC_WAIT));
        m_grid.SendMessage(WM_SETCURSOR, reinterpret_cast<WPARAM>(m_grid.m_hWnd), MAKELPARAM(hitTest, WM_MOUSEMOVE));
        return ::GetCursor();
    }
};

TEST_F(CursorTest, DividersHyperlinksAndTheRestHaveTheirCursors) {
    Item(1, 0)->AddHyperlink(new CXTPReportHyperlink(0, 0));
    m_grid.RedrawControl();
    m_grid.UpdateWindow();
    EXPECT_EQ(CursorAt(DividerOf(0)), ::LoadCursor(nullptr, IDC_SIZEWE));
    EXPECT_EQ(CursorAt(HeaderOf(0)), ::LoadCursor(nullptr, IDC_ARROW));
    EXPECT_EQ(CursorAt(Item(1, 0)->GetHyperlinkAt(0)->m_rcHyperSpot.CenterPoint()), ::LoadCursor(nullptr, IDC_HAND));
    EXPECT_EQ(CursorAt(Cell(2)), ::LoadCursor(nullptr, IDC_ARROW));
}

TEST_F(CursorTest, ACellMayAskForTheCursorWithoutTellingThePlace) {
    EXPECT_EQ(CursorAt(DividerOf(0), HTNOWHERE), ::LoadCursor(nullptr, IDC_SIZEWE));
}

// --- Leaving --------------------------------------------------------------------------------------------------------

TEST_F(MouseTest, LeavingTheControlCoolsTheHeader) {
    Move(HeaderOf(1), 0);
    EXPECT_EQ(m_header->GetHotColumn(), m_columns[1]);
    m_grid.SendMessage(WM_MOUSELEAVE);
    EXPECT_EQ(m_header->GetHotColumn(), nullptr);
}

TEST_F(MouseTest, ThePointersLeavingIsToldByTheSystem) {
    PutCursor(HeaderOf(1));
    Pump(100);
    ASSERT_EQ(m_header->GetHotColumn(), m_columns[1]);
    ::SetCursorPos(5, 5);
    for (int i = 0; i < 100 && m_header->GetHotColumn(); ++i)
        Pump(20);
    EXPECT_EQ(m_header->GetHotColumn(), nullptr);
}

// --- Handlers that take the ground away -----------------------------------------------------------------------------

TEST_F(MouseTest, AnItemMayRemoveItsOwnRecordWhenClicked) {
    CXTPReportRecord* record = m_grid.GetRows()->GetAt(3)->GetRecord();
    Item(3, 0)->onClick = [record] { record->Delete(); };
    Click(Cell(3));
    EXPECT_EQ(m_grid.GetRows()->GetCount(), 29);
    EXPECT_EQ(m_owner.Count(NM_CLICK), 0) << "the cell that was clicked is gone";
    EXPECT_EQ(Difference(*OnScreen(), *Printed()), 0);
}

TEST_F(MouseTest, AllContentMayGoInAnyHandler) {
    m_grid.onSelectionChanged = [this] { m_grid.ResetContent(); };
    Click(Cell(3));
    EXPECT_EQ(m_grid.GetRows()->GetCount(), 0);
    m_grid.onSelectionChanged = nullptr;
    AddRecords(5);
    Item(1, 0)->onClick = [this] { m_grid.ResetContent(); };
    Click(Cell(1));
    EXPECT_EQ(m_grid.GetRows()->GetCount(), 0);
    AddRecords(5);
    m_owner.onNotify = [this](UINT) { m_grid.ResetContent(); };
    Click(Cell(1));
    EXPECT_EQ(m_grid.GetRows()->GetCount(), 0);
}

TEST_F(MouseTest, PopulatingInsideAHandlerIsHarmless) {
    m_owner.onNotify = [this](UINT) { m_grid.Populate(); };
    Item(2, 0)->onClick = [this] { m_grid.Populate(); };
    Click(Cell(2));
    DoubleClick(Cell(2));
    Key(VK_DOWN);
    EXPECT_THAT(Selected(), ElementsAre(3));
}

class DestroyTest : public MouseTest, public ::testing::WithParamInterface<UINT> {};

TEST_P(DestroyTest, TheControlMayBeDestroyedInsideANotification) {
    m_columns[0]->SetWidth(120);
    m_owner.onNotify = [this](UINT code) {
        if (code == GetParam() && m_grid.m_hWnd)
            m_grid.DestroyWindow();
    };
    DoubleClick(Cell(2));
    if (m_grid.m_hWnd) {
        const CPoint point = Cell(4);
        m_grid.SendMessage(WM_RBUTTONDOWN, MK_RBUTTON, MAKELPARAM(point.x, point.y));
        if (m_grid.m_hWnd)
            m_grid.SendMessage(WM_RBUTTONUP, 0, MAKELPARAM(point.x, point.y));
    }
    if (m_grid.m_hWnd)
        Click(HeaderOf(1));
    if (m_grid.m_hWnd)
        DoubleClick(DividerOf(0));
    EXPECT_EQ(m_grid.m_hWnd, nullptr);
    EXPECT_EQ(m_grid.GetRows()->GetCount(), 30);
}

INSTANTIATE_TEST_SUITE_P(AllCodes, DestroyTest,
                         ::testing::Values(NM_CLICK, NM_DBLCLK, NM_RCLICK, XTP_NM_REPORT_SELCHANGED,
                                           XTP_NM_REPORT_FOCUSCHANGED, XTP_NM_REPORT_SORTORDERCHANGED,
                                           XTP_NM_REPORT_COLUMNWIDTHCHANGED));

TEST(ReportDestruction, TheControlObjectMayBeDeletedInsideANotification) {
    OwnerWindow owner;
    owner.CreateEx(0, AfxRegisterWndClass(0), _T("owner"), WS_POPUP | WS_VISIBLE, CRect(0, 0, 300, 300), nullptr, 0);
    auto grid = std::make_unique<CXTPReportControl>();
    grid->Create(WS_CHILD | WS_VISIBLE, CRect(0, 0, 300, 300), &owner, 1);
    grid->AddColumn(new CXTPReportColumn(0, _T("A"), 100));
    auto* record = new CXTPReportRecord;
    record->AddItem(new CXTPReportRecordItemText(_T("a")));
    grid->AddRecord(record);
    grid->Populate();
    const HWND window = grid->m_hWnd;
    const CPoint point = grid->GetRows()->GetAt(0)->GetRect().CenterPoint();
    owner.onNotify = [&grid](UINT code) {
        if (code == static_cast<UINT>(NM_CLICK))
            grid.reset();
    };
    ::SendMessage(window, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(20, point.y));
    ::SendMessage(window, WM_LBUTTONUP, 0, MAKELPARAM(20, point.y));
    EXPECT_EQ(grid, nullptr);
    EXPECT_FALSE(::IsWindow(window));
    owner.DestroyWindow();
}

} // namespace
