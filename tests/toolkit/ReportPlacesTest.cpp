// Where header, rows and cells of a report control stand, and what a point means.
#include "GridWindow.h"

namespace {

TEST_F(GridTest, TheHeaderStandsAboveTheRows) {
    EXPECT_EQ(m_grid.GetHeaderRect(), CRect(0, 0, Width, HeaderHeight()));
    EXPECT_EQ(m_grid.GetReportRectangle(), CRect(0, HeaderHeight(), Width, HeaderHeight() + VisibleRows * RowHeight()));
}

TEST_F(GridTest, ColumnsStandSideBySideInTheHeader) {
    EXPECT_EQ(m_columns[0]->GetRect(), CRect(0, 0, 100, HeaderHeight()));
    EXPECT_EQ(m_columns[1]->GetRect(), CRect(100, 0, 180, HeaderHeight()));
    EXPECT_EQ(m_columns[2]->GetRect(), CRect(180, 0, 240, HeaderHeight()));
    m_columns[1]->SetVisible(FALSE);
    EXPECT_TRUE(m_columns[1]->GetRect().IsRectEmpty());
    EXPECT_EQ(m_columns[2]->GetRect(), CRect(100, 0, 160, HeaderHeight()));
}

TEST_F(GridTest, RowsReachOverTheWholeWidth) {
    AddRecords(3);
    const int top = HeaderHeight() + 2 * RowHeight();
    EXPECT_EQ(m_grid.GetRows()->GetAt(2)->GetRect(), CRect(0, top, Width, top + RowHeight()));
}

TEST_F(GridTest, RowsOutsideTheViewKnowTheirPlaceAsWell) {
    AddRecords(30);
    m_grid.SetTopRow(20);
    EXPECT_EQ(m_grid.GetRows()->GetAt(18)->GetRect().top, HeaderHeight() - 2 * RowHeight());
    EXPECT_EQ(m_grid.GetRows()->GetAt(20)->GetRect().top, HeaderHeight());
}

TEST_F(GridTest, AnItemHasItsCellWithoutTheGridLines) {
    AddRecords(2);
    const CRect expected(100, HeaderHeight() + RowHeight(), 179, HeaderHeight() + 2 * RowHeight() - 1);
    EXPECT_EQ(m_grid.GetRows()->GetAt(1)->GetItemRect(Item(1, 1)), expected);
}

TEST_F(GridTest, AnItemDrawsAndIsPressedInTheRectangleThatTheHitTestTells) {
    AddRecords(3);
    m_grid.RedrawControl();
    m_grid.UpdateWindow();
    for (int row = 0; row < 3; ++row) {
        for (int column = 0; column < 3; ++column) {
            CRect rcHit;
            CXTPReportColumn* hitColumn = nullptr;
            const CXTPReportRow* hitRow = m_grid.HitTest(Cell(row, column));
            ASSERT_EQ(hitRow, m_grid.GetRows()->GetAt(row));
            EXPECT_EQ(hitRow->HitTest(Cell(row, column), &rcHit, &hitColumn), Item(row, column));
            EXPECT_EQ(hitColumn, m_columns[column]);
            EXPECT_EQ(Item(row, column)->drawnAt, rcHit);
            Click(Cell(row, column));
            EXPECT_EQ(Item(row, column)->clickedAt, rcHit);
        }
    }
}

TEST_F(GridTest, TheRectangleIsTheSameWhenTheGridIsScrolledSideways) {
    AddRecords(2);
    m_columns[2]->SetWidth(400);
    m_grid.SetLeftOffset(70);
    m_grid.UpdateWindow();
    CRect rcHit;
    EXPECT_EQ(m_grid.GetRows()->GetAt(1)->HitTest(CPoint(60, Cell(1).y), &rcHit), Item(1, 1));
    EXPECT_EQ(rcHit.left, 30);
    EXPECT_EQ(rcHit.right, 109);
    EXPECT_EQ(Item(1, 1)->drawnAt, rcHit);
}

TEST_F(GridTest, PointsOnGridLinesBelongToTheCellBefore) {
    AddRecords(2);
    const CXTPReportRow* row = m_grid.HitTest(CPoint(99, HeaderHeight() + RowHeight() - 1));
    ASSERT_EQ(row, m_grid.GetRows()->GetAt(0));
    EXPECT_EQ(row->HitTest(CPoint(99, HeaderHeight() + RowHeight() - 1)), Item(0, 0));
    EXPECT_EQ(row->HitTest(CPoint(100, HeaderHeight())), Item(0, 1));
}

TEST_F(GridTest, NoRowIsHitOutsideTheRows) {
    AddRecords(3);
    EXPECT_EQ(m_grid.HitTest(CPoint(10, 5)), nullptr) << "header";
    EXPECT_EQ(m_grid.HitTest(CPoint(10, HeaderHeight() - 1)), nullptr) << "header";
    EXPECT_EQ(m_grid.HitTest(CPoint(10, HeaderHeight() + 3 * RowHeight())), nullptr) << "below the last row";
    EXPECT_EQ(m_grid.HitTest(CPoint(-1, HeaderHeight())), nullptr) << "left of the client area";
    EXPECT_EQ(m_grid.HitTest(CPoint(Width, HeaderHeight())), nullptr) << "right of the client area";
    AddRecords(30);
    EXPECT_EQ(m_grid.HitTest(CPoint(10, HeaderHeight() + VisibleRows * RowHeight())), nullptr)
        << "below the client area";
}

TEST_F(GridTest, RightOfTheLastColumnThereIsARowButNoItem) {
    AddRecords(3);
    const CXTPReportRow* row = m_grid.HitTest(CPoint(250, HeaderHeight() + 2));
    ASSERT_EQ(row, m_grid.GetRows()->GetAt(0));
    CRect rc(1, 2, 3, 4);
    CXTPReportColumn* column = m_columns[2];
    EXPECT_EQ(row->HitTest(CPoint(250, HeaderHeight() + 2), &rc, &column), nullptr);
    EXPECT_EQ(rc, CRect(1, 2, 3, 4)) << "left alone";
    EXPECT_EQ(column, m_columns[2]) << "left alone";
}

TEST_F(GridTest, HeadersAreHitInTheHeaderOnly) {
    AddRecords(1);
    EXPECT_EQ(m_header->HitTest(HeaderOf(1)), m_columns[1]);
    EXPECT_EQ(m_header->HitTest(CPoint(250, 5)), nullptr) << "right of the last column";
    EXPECT_EQ(m_header->HitTest(Cell(0, 1)), nullptr);
    EXPECT_EQ(m_header->HitTestDivider(CPoint(96, 5)), m_columns[0]);
    EXPECT_EQ(m_header->HitTestDivider(CPoint(95, 5)), nullptr);
    EXPECT_EQ(m_header->HitTestDivider(CPoint(104, 5)), m_columns[0]);
    EXPECT_EQ(m_header->HitTestDivider(CPoint(105, 5)), nullptr);
    EXPECT_EQ(m_header->HitTestDivider(CPoint(100, HeaderHeight() + 2)), nullptr) << "below the header";
    m_columns[0]->SetResizable(FALSE);
    EXPECT_EQ(m_header->HitTestDivider(CPoint(100, 5)), nullptr);
    m_header->AllowColumnResize(FALSE);
    EXPECT_EQ(m_header->HitTestDivider(CPoint(180, 5)), nullptr);
}

TEST_F(GridTest, AHostsRowHeightIsKept) {
    m_grid.GetPaintManager()->SetRowHeight(40);
    AddRecords(3);
    EXPECT_EQ(m_grid.GetRows()->GetAt(1)->GetRect().top, HeaderHeight() + 40);
    m_grid.SetTheme(xtpReportThemeWindows7);
    EXPECT_EQ(m_grid.GetPaintManager()->GetRowHeight(), 40);
    m_grid.GetPaintManager()->SetRowHeight(0);
    EXPECT_EQ(m_grid.GetPaintManager()->GetRowHeight(), CXTPReportPaintManager().GetRowHeight());
}

TEST_F(GridTest, AFontGivenByMessageMakesTheRowsFit) {
    CFont font;
    font.CreateFont(-30, 0, 0, 0, FW_NORMAL, 0, 0, 0, DEFAULT_CHARSET, 0, 0, 0, 0, _T("Tahoma"));
    const int before = RowHeight();
    m_grid.SendMessage(WM_SETFONT, reinterpret_cast<WPARAM>(font.GetSafeHandle()), TRUE);
    EXPECT_GE(RowHeight(), 30);
    EXPECT_GT(RowHeight(), before);
    LOGFONT used = {};
    ::GetObject(reinterpret_cast<HFONT>(m_grid.SendMessage(WM_GETFONT)), sizeof(used), &used);
    EXPECT_EQ(used.lfHeight, -30);
}

// --- Without a window -----------------------------------------------------------------------------------------------

TEST(ReportWithoutWindow, EveryOperationIsHarmless) {
    CXTPReportControl grid;
    grid.SetTheme(xtpReportThemeOffice2013);
    grid.AddColumn(new CXTPReportColumn(0, _T("A"), 100));
    auto* record = new CXTPReportRecord;
    record->AddItem(new CXTPReportRecordItemText(_T("a")));
    grid.AddRecord(record);
    grid.Populate();
    ASSERT_EQ(grid.GetRows()->GetCount(), 1);
    CXTPReportRow* row = grid.GetRows()->GetAt(0);
    EXPECT_EQ(grid.HitTest(CPoint(5, 30)), nullptr);
    grid.SetFocusedRow(row);
    EXPECT_TRUE(row->IsSelected());
    grid.EnsureVisible(row);
    grid.SetTopRow(5);
    grid.SetLeftOffset(50);
    grid.RedrawControl();
    grid.RedrawRow(row);
    grid.AdjustLayout();
    grid.GetReportHeader()->OnLButtonDown(CPoint(50, 5));
    grid.GetReportHeader()->OnLButtonUp(CPoint(50, 5));
    grid.GetReportHeader()->OnCancelMode();
    grid.GetReportHeader()->BestFit(grid.GetColumns()->GetAt(0));
    TOOLINFO tool = {};
    EXPECT_EQ(grid.OnToolHitTest(CPoint(5, 30), &tool), -1);
    EXPECT_EQ(grid.SendItemNotify(NM_CLICK, CPoint(0, 0), row, nullptr, nullptr), 0);
    EXPECT_FALSE(grid.HasFocus());
    EXPECT_EQ(grid.GetMouseMode(), xtpReportMouseNothing);
    grid.ResetContent();
    EXPECT_EQ(grid.GetRows()->GetCount(), 0);
}

TEST(ReportWithoutWindow, TheToolTipContextIsThereFromTheStart) {
    class DerivedGrid : public CXTPReportControl {
    public:
        DerivedGrid() {
            GetToolTipContext()->SetStyle(xtpToolTipOffice2013);
            GetToolTipContext()->SetMaxTipWidth(400);
            SetReportHeader(new CXTPReportHeader(this, GetColumns()));
        }
    };
    const DerivedGrid grid;
    EXPECT_EQ(grid.GetToolTipContext()->GetStyle(), xtpToolTipOffice2013);
    EXPECT_EQ(grid.GetToolTipContext()->GetMaxTipWidth(), 400);
}

// --- A window made by others ----------------------------------------------------------------------------------------

TEST(ReportSubclassed, AWindowOfADialogIsTakenOverWithItsSize) {
    OwnerWindow owner;
    owner.CreateEx(0, AfxRegisterWndClass(0), _T("owner"), WS_POPUP | WS_VISIBLE, CRect(200, 100, 600, 500), nullptr,
                   0);
    CXTPReportControl grid;
    grid.AddColumn(new CXTPReportColumn(0, _T("A"), 1000));
    const HWND window = ::CreateWindow(_T("XTPReport"), nullptr, WS_CHILD | WS_VISIBLE, 0, 0, 300, 200, owner.m_hWnd,
                                       nullptr, ::GetModuleHandle(nullptr), nullptr);
    ASSERT_NE(window, nullptr);
    ASSERT_TRUE(grid.SubclassWindow(window));
    EXPECT_EQ(grid.GetHeaderRect().Width(), 300);
    EXPECT_NE(grid.GetStyle() & WS_HSCROLL, 0U);
    EXPECT_EQ(grid.GetColumns()->GetAt(0)->GetRect().bottom, grid.GetPaintManager()->GetHeaderHeight());
    grid.DestroyWindow();
    owner.DestroyWindow();
}

// --- Odd contents ---------------------------------------------------------------------------------------------------

TEST_F(GridTest, AnEmptyGridTakesEveryMessage) {
    m_grid.GetColumns()->Clear();
    for (const UINT message : {WM_LBUTTONDOWN, WM_MOUSEMOVE, WM_LBUTTONUP, WM_LBUTTONDBLCLK, WM_RBUTTONDOWN}) {
        m_grid.SendMessage(message, 0, MAKELPARAM(10, 5));
        m_grid.SendMessage(message, 0, MAKELPARAM(10, 60));
    }
    for (const UINT key : {VK_UP, VK_DOWN, VK_PRIOR, VK_NEXT, VK_HOME, VK_END, VK_LEFT, VK_RIGHT, VK_SPACE, VK_ESCAPE})
        Key(key);
    m_grid.SendMessage(WM_CHAR, 'x', 1);
    Wheel(120);
    m_grid.SendMessage(WM_VSCROLL, SB_PAGEDOWN);
    m_grid.SendMessage(WM_HSCROLL, SB_PAGEDOWN);
    m_grid.SendMessage(WM_MOUSELEAVE);
    m_grid.SendMessage(WM_CANCELMODE);
    EXPECT_EQ(m_grid.GetTopRowIndex(), 0);
    EXPECT_EQ(m_grid.GetMouseMode(), xtpReportMouseNothing);
}

TEST_F(GridTest, AGridWithoutASizeTakesEveryMessage) {
    AddRecords(5);
    m_grid.MoveWindow(0, 0, 0, 0);
    m_grid.SetTopRow(3);
    Key(VK_DOWN);
    Wheel(-240);
    m_grid.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 30));
    m_grid.SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(5, 30));
    m_grid.MoveWindow(0, 0, 5, 5);
    m_grid.UpdateWindow();
    m_grid.MoveWindow(0, 0, Width, 200);
    m_grid.UpdateWindow();
    EXPECT_EQ(m_grid.GetTopRowIndex(), 0) << "all rows fit";
}

TEST_F(GridTest, ARowShownBeforeThereIsASizeComesIntoViewWithIt) {
    AddRecords(100);
    const CRect rc(0, 0, Width, HeaderHeight() + VisibleRows * RowHeight());
    m_grid.MoveWindow(0, 0, 0, 0);
    m_grid.EnsureVisible(m_grid.GetRows()->GetAt(50));
    m_grid.MoveWindow(&rc);
    EXPECT_EQ(m_grid.GetTopRowIndex(), 50 - VisibleRows + 1);
}

} // namespace
