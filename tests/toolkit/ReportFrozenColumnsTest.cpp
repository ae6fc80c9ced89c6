// Columns that stay while the others scroll sideways beneath them.
#include "GridWindow.h"

#include <oleacc.h>

namespace {

using ::testing::ElementsAre;

/// A cell that puts its pixels into the picture without the drawing functions that know of rectangles.
class PixelsItem : public CXTPReportRecordItem {
public:
    explicit PixelsItem(COLORREF color) : m_color(color) {}
    void Draw(XTP_REPORTRECORDITEM_DRAWARGS* args) override {
        rect = args->rcItem;
        const std::vector<DWORD> pixels(static_cast<std::size_t>(rect.Width()),
                                        RGB(GetBValue(m_color), GetGValue(m_color), GetRValue(m_color)));
        BITMAPINFO info = {};
        info.bmiHeader = {sizeof(info.bmiHeader), rect.Width(), 1, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
        ::StretchDIBits(args->pDC->m_hDC, rect.left, rect.top, rect.Width(), rect.Height(), 0, 0, rect.Width(), 1,
                        pixels.data(), &info, DIB_RGB_COLORS, SRCCOPY);
    }
    CRect rect;

private:
    COLORREF m_color;
};

constexpr COLORREF Red = RGB(250, 10, 10), Green = RGB(10, 250, 10), Blue = RGB(10, 10, 250);

/// The columns are 100, 80 and 320 pixels wide, in a view of 300.
class FrozenTest : public GridTest {
protected:
    FrozenTest() {
        m_columns[2]->SetWidth(320);
        for (int i = 0; i < 4; ++i) {
            auto* record = new CXTPReportRecord;
            for (const COLORREF color : {Red, Green, Blue})
                record->AddItem(new PixelsItem(color));
            m_grid.AddRecord(record);
        }
        m_grid.Populate();
        m_grid.SetFreezeColumnsCount(1);
        m_grid.UpdateWindow();
    }
    static constexpr int MostOffset = 500 - Width;
    int ScreenDifference() { return Difference(*OnScreen(), *Printed()); }
    int Y(int row) const { return m_grid.GetRows()->GetAt(row)->GetRect().CenterPoint().y; }
    int HeaderY() const { return m_grid.GetHeaderRect().CenterPoint().y; }
    PixelsItem* Pixels(int row, int item) const {
        return static_cast<PixelsItem*>(m_grid.GetRows()->GetAt(row)->GetRecord()->GetItem(item));
    }
    CXTPReportColumn* ColumnAt(int x) const {
        CXTPReportColumn* column = nullptr;
        m_grid.GetRows()->GetAt(1)->HitTest(CPoint(x, Y(1)), nullptr, &column);
        return column;
    }
};

TEST_F(FrozenTest, TheFirstColumnsStayWhileTheOthersScroll) {
    m_grid.SetLeftOffset(50);
    EXPECT_EQ(m_grid.GetLeftOffset(), 50);
    EXPECT_EQ(m_columns[0]->GetRect(), CRect(0, 0, 100, HeaderHeight()));
    EXPECT_EQ(m_columns[1]->GetRect(), CRect(50, 0, 130, HeaderHeight()));
    EXPECT_EQ(m_columns[1]->GetUncoveredRect(), CRect(100, 0, 130, HeaderHeight()));
    EXPECT_EQ(m_columns[2]->GetRect().left, 130);
    EXPECT_TRUE(m_columns[0]->IsFrozen());
    EXPECT_FALSE(m_columns[1]->IsFrozen());
    EXPECT_EQ(m_header->GetFreezeEdge(), 100);
    EXPECT_EQ(m_grid.GetRows()->GetAt(1)->GetItemRect(Pixels(1, 1)).left, 50) << "where it would stand alone";

    m_grid.SetFreezeColumnsCount(0);
    EXPECT_EQ(m_columns[0]->GetRect().left, -50);
    EXPECT_EQ(m_header->GetFreezeEdge(), 0);
    m_grid.SetFreezeColumnsCount(-7);
    EXPECT_EQ(m_grid.GetFreezeColumnsCount(), 0);
}

TEST_F(FrozenTest, APointMeansTheColumnOnTop) {
    m_grid.SetLeftOffset(50);
    EXPECT_EQ(ColumnAt(99), m_columns[0]);
    EXPECT_EQ(ColumnAt(100), m_columns[1]);
    EXPECT_EQ(ColumnAt(130), m_columns[2]);
    EXPECT_EQ(m_header->HitTest(CPoint(99, HeaderY())), m_columns[0]);
    EXPECT_EQ(m_header->HitTest(CPoint(100, HeaderY())), m_columns[1]);
    EXPECT_EQ(m_header->HitTestDivider(CPoint(98, HeaderY())), m_columns[0]);
    EXPECT_EQ(m_header->HitTestDivider(CPoint(129, HeaderY())), m_columns[1]);
    m_grid.SetLeftOffset(90);
    EXPECT_EQ(m_columns[1]->GetRect().right, 90);
    EXPECT_TRUE(m_columns[1]->GetUncoveredRect().IsRectEmpty());
    EXPECT_EQ(m_header->HitTestDivider(CPoint(90, HeaderY())), nullptr) << "that one is covered";
    EXPECT_EQ(ColumnAt(90), m_columns[0]);
    Click(CPoint(90, Y(2)));
    EXPECT_EQ(m_grid.GetFocusedColumn(), m_columns[0]);
    Click(CPoint(100, Y(2)));
    EXPECT_EQ(m_grid.GetFocusedColumn(), m_columns[2]);
    Click(CPoint(60, HeaderY()));
    EXPECT_TRUE(m_columns[0]->IsSorted());
}

TEST_F(FrozenTest, NothingIsDrawnOverThem) {
    const COLORREF line = RGB(1, 2, 3);
    m_grid.GetPaintManager()->m_clrFreezeLine = line;
    m_grid.RedrawControl();
    for (const int offset : {0, 30, 80, 95, MostOffset}) {
        m_grid.SetLeftOffset(offset);
        const auto picture = OnScreen();
        for (int x = 0; x < Width; ++x) {
            const int under = x < 100 ? x : x + offset;
            const bool isGridLine = under == 179 || under == 499;
            const COLORREF expected = x == 99       ? line
                                      : isGridLine  ? COLORREF(m_grid.GetPaintManager()->m_clrGridLine)
                                      : under < 100 ? Red
                                      : under < 180 ? Green
                                                    : Blue;
            ASSERT_EQ(picture->At(x, Y(1)), expected) << x << " at " << offset;
        }
        EXPECT_EQ(picture->BoxOf(line), CRect(99, 0, 100, HeaderHeight() + 4 * RowHeight()));
        EXPECT_EQ(ScreenDifference(), 0) << offset;
    }
    EXPECT_EQ(Pixels(1, 1)->rect.left, 70) << "a cell that is covered is not drawn any more";
    m_grid.SetFreezeColumnsCount(0);
    EXPECT_EQ(OnScreen()->Count(line), 0);
}

TEST_F(FrozenTest, TheLineLeavesOutWhatGoesOverTheWholeRow) {
    const COLORREF line = RGB(1, 2, 3);
    m_grid.GetPaintManager()->m_clrFreezeLine = line;
    m_grid.GetColumns()->GetGroupsOrder()->Add(m_columns[0]);
    m_grid.Populate();
    m_grid.SetLeftOffset(30);
    const auto picture = OnScreen();
    ASSERT_TRUE(m_grid.GetRows()->GetAt(0)->IsGroupRow());
    EXPECT_EQ(picture->At(99, HeaderHeight() / 2), line);
    EXPECT_NE(picture->At(99, Y(0)), line) << "the row of a group";
    EXPECT_EQ(picture->At(99, Y(1)), line);
    EXPECT_EQ(ScreenDifference(), 0);
}

TEST_F(FrozenTest, HeadersAreCutOffAsWell) {
    CXTPReportPaintManager& look = *m_grid.GetPaintManager();
    const COLORREF hot = RGB(9, 8, 7);
    look.m_clrHeaderHot = hot;
    look.m_clrHeaderHotLight = hot;
    m_grid.SetLeftOffset(50);
    Move(CPoint(110, HeaderY()), 0);
    ASSERT_EQ(m_header->GetHotColumn(), m_columns[1]);
    EXPECT_GE(Printed()->BoxOf(hot).left, 100);
    EXPECT_GT(Printed()->Count(hot), 100);
    EXPECT_EQ(ScreenDifference(), 0);
    Move(CPoint(90, HeaderY()), 0);
    EXPECT_LT(Printed()->BoxOf(hot).right, 100);
    EXPECT_EQ(ScreenDifference(), 0);
}

TEST_F(FrozenTest, TheFocusedCellsFrameIsCutOff) {
    CXTPReportPaintManager& look = *m_grid.GetPaintManager();
    const COLORREF frame = RGB(7, 5, 3);
    look.m_clrHighlightText = frame;
    m_grid.SetFocusedRow(m_grid.GetRows()->GetAt(1));
    m_grid.SetFocusedColumn(m_columns[1]);
    m_grid.SetLeftOffset(50);
    const CRect box = OnScreen()->BoxOf(frame);
    EXPECT_EQ(box.left, 100);
    EXPECT_EQ(box.right, 129);
    EXPECT_EQ(ScreenDifference(), 0);
    m_grid.SetLeftOffset(90);
    EXPECT_EQ(OnScreen()->Count(frame), 0);
    EXPECT_EQ(ScreenDifference(), 0);
}

TEST_F(FrozenTest, EveryColumnCanBeScrolledTo) {
    m_grid.SetLeftOffset(100000);
    EXPECT_EQ(m_grid.GetLeftOffset(), MostOffset);
    EXPECT_EQ(m_columns[2]->GetRect().right, Width);
    SCROLLINFO info = {};
    m_grid.GetScrollInfo(SB_HORZ, &info, SIF_ALL);
    EXPECT_EQ(info.nMax - static_cast<int>(info.nPage) + 1, MostOffset);
    EXPECT_EQ(info.nPos, MostOffset);
    m_grid.SetLeftOffset(0);
    m_grid.SendMessage(WM_HSCROLL, SB_PAGERIGHT);
    EXPECT_EQ(m_grid.GetLeftOffset(), Width - 100) << "what stood at the right now stands behind the frozen column";
    m_grid.SendMessage(WM_HSCROLL, SB_PAGELEFT);
    EXPECT_EQ(m_grid.GetLeftOffset(), 0);
}

TEST_F(FrozenTest, TheyLeaveAQuarterOfTheViewToTheOthers) {
    m_grid.SetFreezeColumnsCount(2);
    EXPECT_TRUE(m_columns[1]->IsFrozen()) << "180 of 300";
    m_columns[1]->SetWidth(125);
    EXPECT_TRUE(m_columns[1]->IsFrozen());
    m_columns[1]->SetWidth(126);
    EXPECT_FALSE(m_columns[1]->IsFrozen());
    EXPECT_TRUE(m_columns[0]->IsFrozen());
    EXPECT_EQ(m_grid.GetFreezeColumnsCount(), 2);
    m_columns[0]->SetWidth(290);
    EXPECT_FALSE(m_columns[0]->IsFrozen());
    m_grid.SetLeftOffset(250);
    EXPECT_EQ(m_columns[0]->GetRect().left, -250);
    m_grid.MoveWindow(0, 0, 480, 300);
    EXPECT_TRUE(m_columns[0]->IsFrozen()) << "there is room again";
}

TEST_F(FrozenTest, HiddenColumnsDoNotCount) {
    m_columns[0]->SetVisible(FALSE);
    EXPECT_TRUE(m_columns[1]->IsFrozen());
    EXPECT_FALSE(m_columns[0]->IsFrozen());
    EXPECT_EQ(m_header->GetFreezeEdge(), 80);
}

TEST_F(FrozenTest, AColumnThatIsShownComesOutFromBeneath) {
    m_grid.SetLeftOffset(MostOffset);
    m_grid.SetFocusedColumn(m_columns[1]);
    EXPECT_EQ(m_columns[1]->GetRect().left, 100);
    EXPECT_EQ(m_grid.GetLeftOffset(), 0);
    m_grid.SetLeftOffset(120);
    m_grid.SetFocusedColumn(m_columns[0]);
    EXPECT_EQ(m_grid.GetLeftOffset(), 120) << "it is in view";
    m_columns[2]->SetWidth(150);
    m_grid.SetLeftOffset(0);
    m_grid.SetFocusedColumn(m_columns[2]);
    EXPECT_EQ(m_columns[2]->GetRect().right, Width);
}

TEST_F(FrozenTest, ArrowKeysGoThroughAWideColumnBesideThem) {
    m_grid.SetFocusedColumn(m_columns[2]);
    EXPECT_EQ(m_columns[2]->GetRect().left, 100) << "it is wider than what is left of the view";
    const int step = m_grid.GetPaintManager()->ScaleForDpi(40);
    Key(VK_RIGHT);
    EXPECT_EQ(m_columns[2]->GetRect().left, 100 - step);
    Key(VK_LEFT);
    Key(VK_LEFT);
    EXPECT_EQ(m_grid.GetFocusedColumn(), m_columns[1]);
    EXPECT_EQ(m_columns[1]->GetRect().left, 100);
    Key(VK_LEFT);
    EXPECT_EQ(m_grid.GetFocusedColumn(), m_columns[0]);
}

TEST_F(FrozenTest, AColumnDraggedAcrossTheEdgeIsFrozenInPlaceOfTheLast) {
    m_grid.SetLeftOffset(30);
    const COLORREF mark = RGB(3, 4, 5);
    m_grid.GetPaintManager()->m_clrDropMark = mark;
    const CPoint from(m_columns[1]->GetRect().right - 20, HeaderY());
    Press(from);
    Move(CPoint(from.x - 10, from.y));
    Move(CPoint(95, from.y));
    EXPECT_EQ(Printed()->Count(mark), 0) << "between the frozen column and itself";
    EXPECT_EQ(ScreenDifference(), 0);
    Move(CPoint(20, from.y));
    EXPECT_EQ(Printed()->BoxOf(mark).left, 0);
    Release(CPoint(20, from.y));
    EXPECT_EQ(m_grid.GetColumns()->GetAt(0), m_columns[1]);
    EXPECT_TRUE(m_columns[1]->IsFrozen());
    EXPECT_FALSE(m_columns[0]->IsFrozen());
    EXPECT_EQ(m_columns[0]->GetRect().left, 80 - 30);
    EXPECT_EQ(ScreenDifference(), 0);
}

TEST_F(FrozenTest, AnEditorStandsBesideThem) {
    m_grid.SetFreezeColumnsCount(0);
    m_grid.ResetContent();
    AddRecords(4);
    m_grid.AllowEdit(TRUE);
    m_grid.SetLeftOffset(50);
    XTP_REPORTRECORDITEM_ARGS args;
    args.pRow = m_grid.GetRows()->GetAt(1);
    args.pColumn = m_columns[1];
    m_grid.EditItem(&args);
    ASSERT_NE(m_grid.GetActiveItem(), nullptr);
    const auto place = [this] {
        CRect rc;
        m_grid.GetInplaceEdit()->GetWindowRect(&rc);
        m_grid.ScreenToClient(&rc);
        return rc;
    };
    EXPECT_EQ(place().left, 50);
    m_grid.SetFreezeColumnsCount(1);
    ASSERT_NE(m_grid.GetActiveItem(), nullptr);
    EXPECT_EQ(place().left, 100);
    EXPECT_EQ(place().right, 129);
    m_grid.EditItem(nullptr);
    m_grid.SetLeftOffset(60);
    m_grid.EditItem(&args);
    EXPECT_EQ(m_grid.GetLeftOffset(), 0) << "the whole cell is scrolled into view";
    EXPECT_EQ(place().left, 100);
}

TEST_F(FrozenTest, ScreenReadersHearWhatIsCovered) {
    IAccessible* grid = nullptr;
    ASSERT_EQ(::AccessibleObjectFromWindow(m_grid.m_hWnd, static_cast<DWORD>(OBJID_CLIENT), __uuidof(IAccessible),
                                           reinterpret_cast<void**>(&grid)),
              S_OK);
    const auto stateOf = [grid](LONG number) {
        VARIANT child = {}, state = {};
        child.vt = VT_I4;
        child.lVal = number;
        EXPECT_EQ(grid->get_accState(child, &state), S_OK);
        return state.lVal;
    };
    m_grid.SetLeftOffset(50);
    EXPECT_EQ(stateOf(2) & STATE_SYSTEM_OFFSCREEN, 0);
    m_grid.SetLeftOffset(90);
    EXPECT_EQ(stateOf(1) & STATE_SYSTEM_OFFSCREEN, 0);
    EXPECT_NE(stateOf(2) & STATE_SYSTEM_OFFSCREEN, 0) << "beneath the first column";
    VARIANT hit = {};
    CPoint point(70, HeaderY());
    m_grid.ClientToScreen(&point);
    EXPECT_EQ(grid->accHitTest(point.x, point.y, &hit), S_OK);
    EXPECT_EQ(hit.lVal, 1);
    grid->Release();
}

TEST_F(FrozenTest, StayFrozenAtEveryResolution) {
    m_grid.SendMessage(WM_DPICHANGED, MAKEWPARAM(96, 96));
    m_grid.SetLeftOffset(40);
    const auto before = Printed();
    m_grid.SendMessage(WM_DPICHANGED, MAKEWPARAM(144, 144));
    EXPECT_EQ(m_header->GetFreezeEdge(), 150);
    EXPECT_EQ(m_columns[1]->GetRect().left, 150 - m_grid.GetLeftOffset());
    m_grid.SendMessage(WM_DPICHANGED, MAKEWPARAM(96, 96));
    EXPECT_EQ(Difference(*Printed(), *before), 0);
}

TEST_F(FrozenTest, ScrollingDownMovesTheirPixelsToo) {
    for (int i = 0; i < 30; ++i)
        m_grid.AddRecord(new CXTPReportRecord)->AddItem(new PixelsItem(RGB(8 * i, 100, 200)));
    m_grid.Populate();
    m_grid.SetLeftOffset(50);
    m_grid.UpdateWindow();
    for (const int top : {3, 9, 5}) {
        m_grid.SetTopRow(top);
        EXPECT_EQ(ScreenDifference(), 0) << top;
    }
}

} // namespace
