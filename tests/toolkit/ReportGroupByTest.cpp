// The group-by box in the user's hands: headers dragged into it and buttons out of it, its place, its looks.
#include "GridWindow.h"

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class GroupByTest : public GridTest {
protected:
    GroupByTest() {
        AddRecords(5);
        m_grid.ShowGroupBy();
        Settle();
    }
    int Margin() const { return m_grid.GetPaintManager()->GetGroupByMargin(); }
    int Gap() const { return m_grid.GetPaintManager()->GetGroupByButtonGap(); }
    int BoxHeight() const { return m_grid.GetPaintManager()->GetGroupByHeight(); }
    CPoint InBox(int x) const { return CPoint(x, BoxHeight() / 2); }
    CRect Button(int column) const { return m_header->GetGroupRect(m_columns[column]); }
    CPoint ButtonOf(int column) const { return Button(column).CenterPoint(); }
    CXTPReportColumnOrder& Groups() const { return *m_grid.GetColumns()->GetGroupsOrder(); }
    std::vector<std::wstring> GroupNames() const {
        std::vector<std::wstring> names;
        for (int i = 0; i < Groups().GetCount(); ++i)
            names.emplace_back(Groups().GetAt(i)->GetCaption().GetString());
        return names;
    }
    std::vector<std::wstring> Order() const {
        std::vector<std::wstring> names;
        for (int i = 0; i < m_grid.GetColumns()->GetCount(); ++i)
            names.emplace_back(m_grid.GetColumns()->GetAt(i)->GetCaption().GetString());
        return names;
    }
    void Group(std::initializer_list<int> columns) {
        for (const int column : columns)
            Groups().Add(m_columns[column]);
        m_grid.Populate();
        m_owner.notifications.clear();
        m_grid.UpdateWindow();
    }
    void Drag(CPoint from, CPoint to) {
        Press(from);
        Move(CPoint(from.x + (to.x > from.x ? 10 : -10), from.y));
        Move(to);
    }
    void Drop(CPoint from, CPoint to) {
        Drag(from, to);
        Release(to);
    }
    int Changes() const { return m_owner.Count(XTP_NM_REPORT_GROUPORDERCHANGED); }
};

// --- Its place ------------------------------------------------------------------------------------------------------

TEST_F(GroupByTest, StandsAboveTheHeaderAndMovesWhatIsBelow) {
    const int top = HeaderHeight() + 2 * Margin();
    EXPECT_EQ(Margin(), m_grid.GetPaintManager()->ScaleForDpi(8));
    EXPECT_TRUE(m_grid.IsGroupByVisible());
    EXPECT_EQ(m_grid.GetGroupByRect(), CRect(0, 0, Width, top));
    EXPECT_EQ(m_grid.GetHeaderRect(), CRect(0, top, Width, top + HeaderHeight()));
    EXPECT_EQ(m_grid.GetReportRectangle().top, top + HeaderHeight());
    EXPECT_EQ(m_columns[1]->GetRect(), CRect(100, top, 180, top + HeaderHeight()));
    EXPECT_EQ(m_grid.GetRows()->GetAt(0)->GetRect().top, top + HeaderHeight());
    EXPECT_EQ(m_grid.HitTest(CPoint(5, top + HeaderHeight()))->GetIndex(), 0);
    EXPECT_EQ(m_grid.HitTest(CPoint(5, top - 1)), nullptr);
    EXPECT_EQ(m_header->HitTest(CPoint(5, top)), m_columns[0]);
    EXPECT_EQ(m_header->HitTest(CPoint(5, top - 1)), nullptr);

    m_grid.ShowGroupBy(FALSE);
    EXPECT_FALSE(m_grid.IsGroupByVisible());
    EXPECT_TRUE(m_grid.GetGroupByRect().IsRectEmpty());
    EXPECT_EQ(m_grid.GetHeaderRect().top, 0);
    EXPECT_EQ(m_grid.GetRows()->GetAt(0)->GetRect().top, HeaderHeight());
    EXPECT_EQ(Difference(*OnScreen(), *Printed()), 0);
}

TEST_F(GroupByTest, TakesItsRoomFromTheRows) {
    m_grid.ShowGroupBy(FALSE);
    m_grid.ResetContent();
    AddRecords(VisibleRows);
    EXPECT_EQ(m_grid.GetStyle() & WS_VSCROLL, 0U);
    m_grid.ShowGroupBy();
    EXPECT_NE(m_grid.GetStyle() & WS_VSCROLL, 0U);
    m_grid.SetTopRow(VisibleRows);
    EXPECT_EQ(m_grid.GetTopRowIndex(), VisibleRows - m_grid.GetFullyVisibleRowCount());
}

TEST_F(GroupByTest, ButtonsStandSideBySideInTheOrderOfTheGroups) {
    Group({2, 0});
    const int width = m_grid.GetPaintManager()->GetGroupByButtonWidth(m_columns[2]);
    EXPECT_EQ(Button(2), CRect(Margin(), Margin(), Margin() + width, Margin() + HeaderHeight()));
    EXPECT_EQ(Button(0).left, Button(2).right + Gap());
    EXPECT_TRUE(Button(1).IsRectEmpty());
    EXPECT_EQ(m_header->HitTestGroup(ButtonOf(2)), m_columns[2]);
    EXPECT_EQ(m_header->HitTestGroup(ButtonOf(0)), m_columns[0]);
    EXPECT_EQ(m_header->HitTestGroup(CPoint(Button(2).right, ButtonOf(2).y)), nullptr) << "the gap";
    EXPECT_EQ(m_header->HitTestGroup(CPoint(ButtonOf(2).x, Margin() - 1)), nullptr);
    m_columns[2]->SetVisible(FALSE);
    EXPECT_FALSE(Button(2).IsRectEmpty()) << "rows are grouped by hidden columns as well";
    m_grid.ShowGroupBy(FALSE);
    EXPECT_TRUE(Button(2).IsRectEmpty());
    EXPECT_EQ(m_header->HitTestGroup(CPoint(10, 10)), nullptr);
}

TEST_F(GroupByTest, ManyButtonsGetNarrowerAndTellTheirCaptionInATip) {
    const CString caption(_T("A rather long caption of a column"));
    m_columns[0]->SetCaption(caption);
    m_columns[1]->SetCaption(caption);
    Group({0, 1, 2});
    const int end = m_grid.GetGroupByRect().right - Margin();
    EXPECT_LE(Button(2).right, end);
    EXPECT_GE(Button(2).right, end - 2);
    TOOLINFO tool = {};
    tool.cbSize = sizeof(tool);
    ASSERT_NE(m_grid.OnToolHitTest(ButtonOf(0), &tool), -1);
    EXPECT_EQ(CString(tool.lpszText), caption);
    EXPECT_EQ(CRect(tool.rect), Button(0));
    std::free(tool.lpszText);
    Groups().Remove(m_columns[1]);
    m_grid.Populate();
    EXPECT_EQ(m_grid.OnToolHitTest(ButtonOf(0), &tool), -1) << "the whole caption is seen";
}

TEST_F(GroupByTest, FollowsTheResolution) {
    m_grid.SendMessage(WM_DPICHANGED, MAKEWPARAM(96, 96));
    EXPECT_EQ(BoxHeight(), HeaderHeight() + 16);
    m_grid.SendMessage(WM_DPICHANGED, MAKEWPARAM(144, 144));
    EXPECT_EQ(BoxHeight(), HeaderHeight() + 24);
    EXPECT_EQ(m_grid.GetHeaderRect().top, BoxHeight());
}

// --- Looks ----------------------------------------------------------------------------------------------------------

class GroupByLookTest : public GroupByTest, public ::testing::WithParamInterface<int> {};

TEST_P(GroupByLookTest, AnEmptyBoxSaysWhatItIsFor) {
    m_grid.SetTheme(static_cast<XTPReportPaintTheme>(GetParam()));
    CXTPReportPaintManager& look = *m_grid.GetPaintManager();
    UsePlainLetters();
    const COLORREF text = RGB(1, 2, 3), back = RGB(200, 201, 202);
    look.m_clrGroupByText = text;
    look.m_clrGroupBy = back;
    EXPECT_STREQ(look.GetNoGroupByText(), _T("Drag a column header here to group by that column."));
    const auto picture = Printed();
    const CRect box = picture->BoxOf(text);
    EXPECT_GE(box.left, Margin());
    EXPECT_GE(box.top, Margin());
    EXPECT_LE(box.bottom, Margin() + HeaderHeight());
    for (int y = 0; y < BoxHeight() - 1; ++y) {
        EXPECT_EQ(picture->At(0, y), back) << y;
        EXPECT_EQ(picture->At(Width - 1, y), back) << y;
    }
    look.SetNoGroupByText(_T(""));
    EXPECT_EQ(Printed()->Count(text), 0);
    look.SetNoGroupByText(_T("own"));
    EXPECT_GT(Printed()->Count(text), 0);
    m_grid.SetTheme(xtpReportThemeWindows7);
    EXPECT_STREQ(m_grid.GetPaintManager()->GetNoGroupByText(), _T("own")) << "a theme leaves texts alone";
}

TEST_P(GroupByLookTest, AConnectorJoinsTheButtons) {
    m_grid.SetTheme(static_cast<XTPReportPaintTheme>(GetParam()));
    m_grid.GetPaintManager()->m_clrGroupByText = RGB(1, 2, 3);
    Group({0, 1});
    const int y = Margin() + HeaderHeight() / 2;
    EXPECT_EQ(Printed()->BoxOf(RGB(1, 2, 3)), CRect(Button(0).right, y, Button(1).left, y + 1));
}

TEST_P(GroupByLookTest, AButtonShowsTheDirectionAndThatItIsHot) {
    m_grid.SetTheme(static_cast<XTPReportPaintTheme>(GetParam()));
    Group({0});
    const auto idle = Printed();
    m_columns[0]->SetSortIncreasing(FALSE);
    const auto decreasing = Printed();
    EXPECT_GT(Difference(*idle, *decreasing), 4);
    m_columns[0]->SetSortIncreasing(TRUE);
    Move(ButtonOf(0), 0);
    EXPECT_EQ(m_header->GetHotColumn(), nullptr) << "the column in the strip is not";
    EXPECT_GT(Difference(*idle, *Printed()), 4);
    EXPECT_EQ(Difference(*OnScreen(), *Printed()), 0);
    Move(InBox(Width - 2), 0);
    EXPECT_EQ(Difference(*idle, *Printed()), 0);
    EXPECT_EQ(Difference(*OnScreen(), *Printed()), 0);
    Press(ButtonOf(0));
    EXPECT_GT(Difference(*idle, *Printed()), 4);
    EXPECT_EQ(Difference(*OnScreen(), *Printed()), 0);
    Key(VK_ESCAPE);
    EXPECT_EQ(Difference(*OnScreen(), *Printed()), 0);
}

INSTANTIATE_TEST_SUITE_P(Themes, GroupByLookTest, ::testing::Values(0, 1, 4, 8, 9));

// --- Grouping -------------------------------------------------------------------------------------------------------

TEST_F(GroupByTest, AHeaderDraggedIntoTheBoxGroupsByItsColumn) {
    int countWhenTold = -1;
    m_owner.onNotify = [&](UINT code) {
        if (code == XTP_NM_REPORT_GROUPORDERCHANGED)
            countWhenTold = Groups().GetCount();
    };
    Drop(HeaderOf(1), InBox(60));
    EXPECT_THAT(GroupNames(), ElementsAre(L"B"));
    EXPECT_EQ(Changes(), 1);
    EXPECT_EQ(m_owner.notifications.back().column, m_columns[1]);
    EXPECT_EQ(countWhenTold, 1) << "told afterwards";
    EXPECT_THAT(Order(), ElementsAre(L"A", L"B", L"C")) << "the column stays where it is";
    EXPECT_EQ(m_owner.Count(XTP_NM_REPORT_COLUMNORDERCHANGED) + m_owner.Count(XTP_NM_REPORT_SORTORDERCHANGED), 0);
    EXPECT_EQ(m_grid.GetMouseMode(), xtpReportMouseNothing);
    EXPECT_NE(::GetCapture(), m_grid.m_hWnd);
    EXPECT_EQ(Difference(*OnScreen(), *Printed()), 0);
}

TEST_F(GroupByTest, TheRowsAreGroupedWhenTheOwnerHears) {
    for (int i = 0; i < 5; ++i)
        m_grid.GetRecords()->GetAt(i)->GetItem(1)->SetCaption(i % 2 ? _T("odd") : _T("even"));
    int rowsWhenTold = 0;
    m_owner.onNotify = [&](UINT code) {
        if (code == XTP_NM_REPORT_GROUPORDERCHANGED)
            rowsWhenTold = m_grid.GetRows()->GetCount();
    };
    Drop(HeaderOf(1), InBox(60));
    EXPECT_EQ(rowsWhenTold, 5 + 2);
    EXPECT_TRUE(m_grid.GetRows()->GetAt(0)->IsGroupRow());
    Drop(ButtonOf(1), Cell(2));
    EXPECT_EQ(rowsWhenTold, 5);
}

TEST_F(GroupByTest, ThePointerChoosesThePlace) {
    Group({0, 1});
    const COLORREF mark = RGB(3, 4, 5);
    m_grid.GetPaintManager()->m_clrDropMark = mark;
    Drag(HeaderOf(2), CPoint(Button(1).left + 3, ButtonOf(1).y));
    const CRect box = Printed()->BoxOf(mark);
    EXPECT_NEAR((box.left + box.right) / 2, (Button(0).right + Button(1).left) / 2, 1);
    EXPECT_EQ(box.top, Margin());
    EXPECT_EQ(box.Height(), HeaderHeight());
    Release(CPoint(Button(1).left + 3, ButtonOf(1).y));
    EXPECT_THAT(GroupNames(), ElementsAre(L"A", L"C", L"B"));
}

TEST_F(GroupByTest, AHeaderThatIsGroupedAlreadyMovesInTheBox) {
    Group({0, 1});
    Drop(HeaderOf(1), InBox(2));
    EXPECT_THAT(GroupNames(), ElementsAre(L"B", L"A"));
    EXPECT_EQ(Changes(), 1);
    Drop(HeaderOf(1), InBox(2));
    EXPECT_EQ(Changes(), 1) << "it is there already";
}

TEST_F(GroupByTest, ANewGroupBeginsWithTheSmallest) {
    m_columns[1]->SetSortIncreasing(FALSE); // from a sort of long ago
    Drop(HeaderOf(1), InBox(60));
    EXPECT_TRUE(m_columns[1]->IsSortIncreasing());
    Click(HeaderOf(0));
    Click(HeaderOf(0));
    ASSERT_TRUE(m_columns[0]->IsSortedDecreasing());
    Drop(HeaderOf(0), InBox(200));
    EXPECT_TRUE(m_columns[0]->IsSortedDecreasing()) << "the rows keep the order that the user sees";
}

TEST_F(GroupByTest, AButtonDraggedOutUngroups) {
    Group({0, 1, 2});
    Drop(ButtonOf(1), Cell(3));
    EXPECT_THAT(GroupNames(), ElementsAre(L"A", L"C"));
    EXPECT_EQ(Changes(), 1);
    EXPECT_EQ(m_owner.notifications.back().column, m_columns[1]);
    Drop(ButtonOf(0), HeaderOf(2));
    EXPECT_THAT(GroupNames(), ElementsAre(L"C"));
    EXPECT_THAT(Order(), ElementsAre(L"A", L"B", L"C")) << "it does not move in the strip";
    Drop(ButtonOf(2), CPoint(-50, 10));
    EXPECT_THAT(GroupNames(), IsEmpty());
    EXPECT_EQ(Changes(), 3);
}

TEST_F(GroupByTest, AButtonDraggedWithinTheBoxChangesTheOrder) {
    Group({0, 1, 2});
    Drop(ButtonOf(0), InBox(Button(2).right - 2));
    EXPECT_THAT(GroupNames(), ElementsAre(L"B", L"C", L"A"));
    Drop(ButtonOf(0), InBox(Button(2).left + 2));
    EXPECT_THAT(GroupNames(), ElementsAre(L"B", L"A", L"C"));
    EXPECT_EQ(Changes(), 2);
    Drop(ButtonOf(0), InBox(Button(0).right + 2));
    EXPECT_EQ(Changes(), 2) << "dropped where it was";
    Drop(ButtonOf(0), CPoint(ButtonOf(0).x + 10, -HeaderHeight() + 1));
    EXPECT_EQ(Changes(), 2) << "a hand may be unsteady";
    Drop(ButtonOf(1), InBox(Button(2).left + 2));
    EXPECT_THAT(GroupNames(), ElementsAre(L"A", L"B", L"C")) << "in front of the last one, from the front";
}

TEST_F(GroupByTest, AClickTurnsTheOrderRound) {
    Group({0, 1});
    Click(ButtonOf(1));
    EXPECT_FALSE(m_columns[1]->IsSortIncreasing());
    EXPECT_TRUE(m_columns[0]->IsSortIncreasing());
    EXPECT_EQ(Changes(), 1);
    EXPECT_FALSE(m_columns[1]->IsSorted()) << "grouped, not sorted";
    DoubleClick(ButtonOf(0));
    EXPECT_TRUE(m_columns[0]->IsSortIncreasing()) << "two quick clicks turn twice";
    EXPECT_EQ(Changes(), 3);
    Press(ButtonOf(0));
    Release(InBox(Width - 3));
    EXPECT_EQ(Changes(), 3) << "released elsewhere";
}

TEST_F(GroupByTest, ColumnsThatCannotBeGroupedStayOutside) {
    m_columns[0]->SetGroupable(FALSE);
    Drag(HeaderOf(0), InBox(60));
    EXPECT_EQ(::GetCursor(), ::LoadCursor(nullptr, IDC_NO));
    Release(InBox(60));
    EXPECT_THAT(GroupNames(), IsEmpty());
    Group({0});
    Drop(ButtonOf(0), Cell(3));
    EXPECT_THAT(GroupNames(), ElementsAre(L"A")) << "nor are they ungrouped";
    EXPECT_EQ(Changes(), 0) << "a press that left the button";
}

TEST_F(GroupByTest, ColumnsThatMayNotMoveCanBeGrouped) {
    m_columns[0]->SetAllowDragging(FALSE);
    Drop(HeaderOf(0), InBox(60));
    EXPECT_THAT(GroupNames(), ElementsAre(L"A"));
    m_header->AllowColumnReorder(FALSE);
    Drag(HeaderOf(1), CPoint(10, HeaderOf(0).y));
    EXPECT_EQ(::GetCursor(), ::LoadCursor(nullptr, IDC_NO));
    Release(CPoint(10, HeaderOf(0).y));
    EXPECT_THAT(Order(), ElementsAre(L"A", L"B", L"C"));
}

TEST_F(GroupByTest, WithABoxHeadersAreStillMovedInTheStrip) {
    Drop(HeaderOf(0), CPoint(170, HeaderOf(0).y));
    EXPECT_THAT(Order(), ElementsAre(L"B", L"A", L"C"));
    EXPECT_THAT(GroupNames(), IsEmpty());
}

TEST_F(GroupByTest, EscapeAndTheLossOfCaptureCancel) {
    Group({0});
    const auto cancelled = [this](CPoint from, CPoint to) {
        Drag(from, to);
        EXPECT_EQ(m_grid.GetMouseMode(), xtpReportMouseColumnDrag);
        EXPECT_EQ(Difference(*OnScreen(), *Printed()), 0) << "picture and mark";
        Key(VK_ESCAPE);
        EXPECT_EQ(Difference(*OnScreen(), *Printed()), 0) << "nothing of them stays";
        Release(to);
        Drag(from, to);
        m_owner.SetCapture();
        EXPECT_EQ(m_grid.GetMouseMode(), xtpReportMouseNothing);
        ::ReleaseCapture();
        Release(to);
    };
    cancelled(HeaderOf(1), InBox(100));
    cancelled(ButtonOf(0), Cell(2));
    EXPECT_THAT(GroupNames(), ElementsAre(L"A"));
    EXPECT_EQ(Changes(), 0);
}

TEST_F(GroupByTest, AGroupedColumnMayBeRemovedWhileItsButtonIsDragged) {
    Group({0, 1});
    Drag(ButtonOf(0), Cell(2));
    m_grid.GetColumns()->Remove(m_columns[0]);
    EXPECT_EQ(m_grid.GetMouseMode(), xtpReportMouseNothing);
    Release(Cell(2));
    EXPECT_THAT(GroupNames(), ElementsAre(L"B"));
    Move(ButtonOf(1), 0);
    m_grid.GetColumns()->Clear();
    m_grid.UpdateWindow();
    EXPECT_EQ(Difference(*OnScreen(), *Printed()), 0);
}

TEST_F(GroupByTest, TheGroupsMayChangeWhileAButtonIsDragged) {
    Group({0, 1});
    Drag(ButtonOf(0), Cell(2));
    Groups().Clear();
    m_grid.Populate();
    EXPECT_EQ(Difference(*OnScreen(), *Printed()), 0);
    Release(Cell(2));
    EXPECT_EQ(Changes(), 0) << "there was nothing left to ungroup";
}

TEST_F(GroupByTest, TheOwnerMayDestroyTheGridWhenItHears) {
    m_owner.onNotify = [this](UINT code) {
        if (code == XTP_NM_REPORT_GROUPORDERCHANGED)
            m_grid.DestroyWindow();
    };
    Drop(HeaderOf(1), InBox(60));
    EXPECT_EQ(m_grid.m_hWnd, nullptr);
    EXPECT_THAT(GroupNames(), ElementsAre(L"B"));
}

TEST_F(GroupByTest, HidingTheBoxEndsADragAndKeepsTheGroups) {
    Group({0});
    Drag(HeaderOf(1), InBox(60));
    m_grid.ShowGroupBy(FALSE);
    EXPECT_EQ(m_grid.GetMouseMode(), xtpReportMouseNothing);
    Release(InBox(60));
    EXPECT_THAT(GroupNames(), ElementsAre(L"A"));
}

TEST_F(GroupByTest, ARightClickInTheBoxIsTheHeadersAffair) {
    Group({0});
    const CPoint point = ButtonOf(0);
    m_grid.SendMessage(WM_RBUTTONDOWN, MK_RBUTTON, MAKELPARAM(point.x, point.y));
    m_grid.SendMessage(WM_RBUTTONUP, 0, MAKELPARAM(point.x, point.y));
    EXPECT_THAT(m_header->menus, ElementsAre(point));
    EXPECT_EQ(m_owner.contextMenus, 0);
    EXPECT_EQ(m_owner.Count(NM_RCLICK), 0);
}

TEST_F(GroupByTest, APressInTheBoxTouchesNoRow) {
    m_grid.SetFocusedRow(m_grid.GetRows()->GetAt(2));
    Click(InBox(Width - 3));
    EXPECT_THAT(Selected(), ElementsAre(2));
    EXPECT_EQ(m_grid.GetFocusedRow()->GetIndex(), 2);
}

// --- Keys -----------------------------------------------------------------------------------------------------------

TEST_F(GroupByTest, CtrlGGroupsByTheFocusedColumnAndUngroups) {
    m_grid.SetFocusedColumn(m_columns[1]);
    const KeysDown ctrl({VK_CONTROL});
    Key('G');
    EXPECT_THAT(GroupNames(), ElementsAre(L"B"));
    EXPECT_EQ(Changes(), 1);
    m_grid.SetFocusedColumn(m_columns[0]);
    Key('G');
    EXPECT_THAT(GroupNames(), ElementsAre(L"B", L"A"));
    {
        const KeysDown both({VK_CONTROL, VK_SHIFT});
        Key('G');
        EXPECT_FALSE(m_columns[0]->IsSortIncreasing());
        EXPECT_EQ(Changes(), 3);
    }
    m_grid.SetFocusedColumn(m_columns[1]);
    Key('G');
    EXPECT_THAT(GroupNames(), ElementsAre(L"A"));
    m_columns[1]->SetGroupable(FALSE);
    Key('G');
    EXPECT_THAT(GroupNames(), ElementsAre(L"A"));
    EXPECT_EQ(Changes(), 4);
}

TEST_F(GroupByTest, WithoutABoxTheKeyDoesNothing) {
    m_grid.ShowGroupBy(FALSE);
    m_grid.SetFocusedColumn(m_columns[1]);
    const KeysDown ctrl({VK_CONTROL});
    Key('G');
    EXPECT_THAT(GroupNames(), IsEmpty());
    EXPECT_EQ(Changes(), 0);
}

} // namespace
