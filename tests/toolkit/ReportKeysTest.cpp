// The keyboard among the columns and cells of a report control. Rows are the affair of ReportSelectionTest.
#include "GridWindow.h"

namespace {

using ::testing::ElementsAre;

class ColumnKeysTest : public GridTest {
protected:
    ColumnKeysTest() {
        AddRecords(30);
        m_grid.SetFocusedRow(m_grid.GetRows()->GetAt(2));
        Settle();
    }
    /// The item index of the focused column, −1 for none.
    int Focused() const { return m_grid.GetFocusedColumn() ? m_grid.GetFocusedColumn()->GetItemIndex() : -1; }
    void AltKey(UINT key) {
        const KeysDown alt({VK_MENU});
        m_grid.SendMessage(WM_SYSKEYDOWN, key, 0x20000001);
        m_grid.SendMessage(WM_SYSKEYUP, key, 0xE0000001);
    }
    std::vector<int> Order() const {
        std::vector<int> items;
        for (int i = 0; i < m_grid.GetColumns()->GetCount(); ++i)
            items.push_back(m_grid.GetColumns()->GetAt(i)->GetItemIndex());
        return items;
    }
    CPoint MenuPlaceOf(int index) const { return CPoint(m_columns[index]->GetRect().left, HeaderHeight() - 1); }
    void FocusColumn(int index) { m_grid.SetFocusedColumn(m_columns[index]); }
};

// --- The focused column ---------------------------------------------------------------------------------------------

TEST_F(ColumnKeysTest, LeftAndRightMoveAmongTheVisibleColumns) {
    EXPECT_EQ(Focused(), -1);
    EXPECT_FALSE(m_grid.IsColumnFocusVisible());
    Key(VK_RIGHT);
    EXPECT_EQ(Focused(), 0) << "the first key shows where the focus is";
    EXPECT_TRUE(m_grid.IsColumnFocusVisible());
    m_columns[1]->SetVisible(FALSE);
    Key(VK_RIGHT);
    EXPECT_EQ(Focused(), 2) << "a hidden column is passed over";
    Key(VK_RIGHT);
    EXPECT_EQ(Focused(), 2);
    Key(VK_LEFT);
    Key(VK_LEFT);
    EXPECT_EQ(Focused(), 0);
    EXPECT_THAT(Selected(), ElementsAre(2)) << "the row stays";
}

TEST_F(ColumnKeysTest, TheOwnerIsToldOfAnotherFocusedCell) {
    m_owner.notifications.clear();
    Key(VK_RIGHT);
    Key(VK_RIGHT);
    Key(VK_RIGHT);
    Key(VK_RIGHT); // nothing right of it
    ASSERT_EQ(m_owner.Count(XTP_NM_REPORT_FOCUSCHANGED), 3);
    EXPECT_EQ(m_owner.notifications[1].column, m_columns[1]);
    EXPECT_EQ(m_owner.notifications[1].item, Item(2, 1));
    EXPECT_EQ(m_owner.notifications[1].rowIndex, 2);
}

TEST_F(ColumnKeysTest, APressFocusesItsColumnWithoutAMark) {
    Key(VK_RIGHT);
    Click(Cell(4, 1));
    EXPECT_EQ(Focused(), 1);
    EXPECT_FALSE(m_grid.IsColumnFocusVisible());
    Key(VK_RIGHT);
    EXPECT_EQ(Focused(), 2);
    EXPECT_TRUE(m_grid.IsColumnFocusVisible());
    Click(CPoint(250, Cell(4).y)); // right of the columns
    EXPECT_EQ(Focused(), 2);
}

TEST_F(ColumnKeysTest, AHiddenFocusedColumnHandsOnToItsNeighbour) {
    FocusColumn(1);
    m_columns[1]->SetVisible(FALSE);
    EXPECT_EQ(Focused(), 2);
    m_columns[2]->SetVisible(FALSE);
    EXPECT_EQ(Focused(), 0);
    m_columns[0]->SetVisible(FALSE);
    EXPECT_EQ(Focused(), -1);
    for (const UINT key : {VK_LEFT, VK_RIGHT, VK_F3, VK_RETURN})
        Key(key);
    m_columns[1]->SetVisible(TRUE);
    EXPECT_EQ(Focused(), 1);
    m_grid.GetColumns()->Remove(m_columns[1]);
    EXPECT_EQ(Focused(), -1);
}

TEST_F(ColumnKeysTest, OnlyVisibleColumnsOfTheControlAreFocusedByTheHost) {
    m_columns[1]->SetVisible(FALSE);
    FocusColumn(0);
    FocusColumn(1);
    EXPECT_EQ(Focused(), 0);
    CXTPReportControl other;
    auto* foreign = new CXTPReportColumn(0, _T("foreign"), 50);
    other.AddColumn(foreign);
    m_grid.SetFocusedColumn(foreign);
    EXPECT_EQ(Focused(), 0);
    m_grid.SetFocusedColumn(nullptr);
    EXPECT_EQ(Focused(), -1);
    EXPECT_FALSE(m_grid.IsColumnFocusVisible());
}

TEST_F(ColumnKeysTest, TheFocusedColumnComesIntoView) {
    for (CXTPReportColumn* column : m_columns)
        column->SetWidth(200); // 600 in a view of 300 without the vertical bar
    FocusColumn(0);
    Key(VK_RIGHT);
    const int viewWidth = m_grid.GetReportRectangle().Width();
    EXPECT_EQ(m_grid.GetLeftOffset(), 400 - viewWidth);
    Key(VK_RIGHT);
    EXPECT_EQ(m_grid.GetLeftOffset(), 600 - viewWidth);
    Key(VK_LEFT);
    EXPECT_EQ(m_grid.GetLeftOffset(), 200);
    Key(VK_LEFT);
    EXPECT_EQ(m_grid.GetLeftOffset(), 0);
}

TEST_F(ColumnKeysTest, AColumnWiderThanTheViewIsPassedInSteps) {
    m_columns[0]->SetWidth(350);
    const int viewWidth = m_grid.GetReportRectangle().Width();
    const int step = m_grid.GetPaintManager()->ScaleForDpi(40);
    FocusColumn(0);
    Key(VK_RIGHT);
    EXPECT_EQ(Focused(), 0);
    EXPECT_EQ(m_grid.GetLeftOffset(), step);
    Key(VK_RIGHT);
    EXPECT_EQ(m_grid.GetLeftOffset(), std::min(2 * step, 350 - viewWidth));
    Key(VK_RIGHT);
    if (m_grid.GetLeftOffset() == 350 - viewWidth)
        Key(VK_RIGHT);
    EXPECT_EQ(Focused(), 1);
}

TEST_F(ColumnKeysTest, CtrlScrollsSidewaysAndAltByPages) {
    for (CXTPReportColumn* column : m_columns)
        column->SetWidth(400);
    const int viewWidth = m_grid.GetReportRectangle().Width();
    {
        const KeysDown ctrl({VK_CONTROL});
        Key(VK_RIGHT);
        EXPECT_EQ(m_grid.GetLeftOffset(), m_grid.GetPaintManager()->ScaleForDpi(40));
        Key(VK_LEFT);
        EXPECT_EQ(m_grid.GetLeftOffset(), 0);
    }
    EXPECT_EQ(Focused(), -1);
    AltKey(VK_NEXT);
    EXPECT_EQ(m_grid.GetLeftOffset(), viewWidth);
    AltKey(VK_NEXT);
    AltKey(VK_PRIOR);
    AltKey(VK_PRIOR);
    EXPECT_EQ(m_grid.GetLeftOffset(), 0);
    EXPECT_EQ(m_grid.GetFocusedRow()->GetIndex(), 2);
}

// --- What keys do to columns ----------------------------------------------------------------------------------------

TEST_F(ColumnKeysTest, F3SortsByTheFocusedColumnAndReverses) {
    FocusColumn(1);
    Key(VK_F3);
    EXPECT_TRUE(m_columns[1]->IsSortedIncreasing());
    Key(VK_F3);
    EXPECT_TRUE(m_columns[1]->IsSortedDecreasing());
    EXPECT_EQ(Texts(1).front(), L"B9");
    EXPECT_EQ(m_owner.Count(XTP_NM_REPORT_SORTORDERCHANGED), 2);
    FocusColumn(0);
    {
        const KeysDown shift({VK_SHIFT});
        Key(VK_F3);
    }
    EXPECT_TRUE(m_columns[1]->IsSorted());
    EXPECT_EQ(m_grid.GetColumns()->GetSortOrder()->IndexOf(m_columns[0]), 1);
    Key(VK_F3);
    EXPECT_FALSE(m_columns[1]->IsSorted());
    m_columns[2]->SetSortable(FALSE);
    FocusColumn(2);
    Key(VK_F3);
    EXPECT_FALSE(m_columns[2]->IsSorted());
}

TEST_F(ColumnKeysTest, SortingKeepsTheFocusedRowInView) {
    m_grid.SetFocusedRow(m_grid.GetRows()->GetAt(29));
    m_grid.SetTopRow(20);
    FocusColumn(0);
    Key(VK_F3); // "A29" goes to the 23rd place
    Key(VK_F3); // and now to the 8th
    const CRect rcRow = m_grid.GetFocusedRow()->GetRect(), rcReport = m_grid.GetReportRectangle();
    EXPECT_EQ(Item(m_grid.GetFocusedRow()->GetIndex(), 0)->GetValue(), _T("A29"));
    EXPECT_GE(rcRow.top, rcReport.top);
    EXPECT_LE(rcRow.bottom, rcReport.bottom);
}

TEST_F(ColumnKeysTest, CtrlShiftMovesTheColumn) {
    const KeysDown ctrlShift({VK_CONTROL, VK_SHIFT});
    FocusColumn(0);
    Key(VK_RIGHT);
    EXPECT_THAT(Order(), ElementsAre(1, 0, 2));
    m_columns[2]->SetVisible(FALSE);
    Key(VK_RIGHT);
    EXPECT_THAT(Order(), ElementsAre(1, 0, 2)) << "it is the last one that is seen";
    m_columns[2]->SetVisible(TRUE);
    Key(VK_RIGHT);
    EXPECT_THAT(Order(), ElementsAre(1, 2, 0));
    Key(VK_RIGHT);
    EXPECT_THAT(Order(), ElementsAre(1, 2, 0));
    Key(VK_LEFT);
    EXPECT_THAT(Order(), ElementsAre(1, 0, 2));
    EXPECT_EQ(m_owner.Count(XTP_NM_REPORT_COLUMNORDERCHANGED), 3);
    m_columns[0]->SetAllowDragging(FALSE);
    Key(VK_LEFT);
    m_columns[0]->SetAllowDragging(TRUE);
    m_header->AllowColumnReorder(FALSE);
    Key(VK_LEFT);
    EXPECT_THAT(Order(), ElementsAre(1, 0, 2));
    EXPECT_EQ(Focused(), 0);
}

TEST_F(ColumnKeysTest, AltChangesTheWidth) {
    const int step = m_grid.GetPaintManager()->ScaleForDpi(8);
    FocusColumn(1);
    AltKey(VK_RIGHT);
    AltKey(VK_RIGHT);
    EXPECT_EQ(m_columns[1]->GetWidth(), 80 + 2 * step);
    AltKey(VK_LEFT);
    EXPECT_EQ(m_columns[1]->GetWidth(), 80 + step);
    m_columns[1]->SetMinWidth(80 + step);
    AltKey(VK_LEFT);
    EXPECT_EQ(m_columns[1]->GetWidth(), 80 + step);
    EXPECT_EQ(m_owner.Count(XTP_NM_REPORT_COLUMNWIDTHCHANGED), 3) << "not for a key without effect";
    m_columns[1]->SetResizable(FALSE);
    AltKey(VK_RIGHT);
    m_columns[1]->SetResizable(TRUE);
    m_header->AllowColumnResize(FALSE);
    AltKey(VK_RIGHT);
    AltKey(VK_OEM_PLUS);
    EXPECT_EQ(m_columns[1]->GetWidth(), 80 + step);
}

TEST_F(ColumnKeysTest, AltPlusFitsTheColumnAndMakesNoMenuOfItsCharacter) {
    FocusColumn(1);
    AltKey(VK_OEM_PLUS);
    EXPECT_EQ(m_columns[1]->GetWidth(), m_columns[1]->GetBestFitWidth());
    EXPECT_EQ(m_columns[0]->GetWidth(), 100);
    m_columns[1]->SetWidth(90);
    AltKey(VK_ADD);
    EXPECT_EQ(m_columns[1]->GetWidth(), m_columns[1]->GetBestFitWidth());
}

TEST_F(ColumnKeysTest, KeysForColumnsEndAGestureInTheHeader) {
    Press(HeaderOf(0));
    Move(CPoint(170, 8));
    ASSERT_EQ(m_grid.GetMouseMode(), xtpReportMouseColumnDrag);
    FocusColumn(2);
    Key(VK_F3);
    EXPECT_EQ(m_grid.GetMouseMode(), xtpReportMouseNothing);
    EXPECT_NE(::GetCapture(), m_grid.m_hWnd);
    Release(CPoint(170, 8));
    EXPECT_THAT(Order(), ElementsAre(0, 1, 2));
}

// --- Menus ----------------------------------------------------------------------------------------------------------

TEST_F(ColumnKeysTest, AltDownOpensTheMenuOfTheFocusedColumnsHeader) {
    AltKey(VK_DOWN);
    EXPECT_THAT(m_header->menus, ElementsAre(MenuPlaceOf(0))) << "the first column, before one is focused";
    FocusColumn(2);
    AltKey(VK_DOWN);
    ASSERT_EQ(m_header->menus.size(), 2U);
    EXPECT_EQ(m_header->menus[1], MenuPlaceOf(2));
    EXPECT_EQ(m_owner.Count(NM_RCLICK), 0);
    EXPECT_EQ(m_grid.GetFocusedRow()->GetIndex(), 2) << "the row stays";
}

TEST_F(ColumnKeysTest, AHeaderOutOfSightComesIntoViewBeforeItsMenu) {
    for (CXTPReportColumn* column : m_columns)
        column->SetWidth(250);
    FocusColumn(2);
    m_grid.SetLeftOffset(0);
    AltKey(VK_DOWN);
    ASSERT_EQ(m_header->menus.size(), 1U);
    EXPECT_EQ(m_header->HitTest(m_header->menus[0]), m_columns[2]);
}

TEST_F(ColumnKeysTest, TheMenuKeyTellsTheOwnerOfTheFocusedCell) {
    m_owner.answer = 1;
    FocusColumn(1);
    m_grid.SetTopRow(15);
    m_owner.notifications.clear();
    m_grid.SendMessage(WM_CONTEXTMENU, reinterpret_cast<WPARAM>(m_grid.m_hWnd), MAKELPARAM(-1, -1));
    ASSERT_EQ(m_owner.Count(NM_RCLICK), 1);
    EXPECT_EQ(m_owner.notifications[0].rowIndex, 2);
    EXPECT_EQ(m_owner.notifications[0].column, m_columns[1]);
    EXPECT_EQ(m_owner.notifications[0].item, Item(2, 1));
    EXPECT_EQ(m_grid.GetTopRowIndex(), 2) << "a menu opens where one sees what it is for";
}

TEST_F(ColumnKeysTest, TheMenuKeyFallsBackOnTheFocusedColumnsHeader) {
    FocusColumn(1);
    m_grid.SendMessage(WM_CONTEXTMENU, reinterpret_cast<WPARAM>(m_grid.m_hWnd), MAKELPARAM(-1, -1));
    EXPECT_THAT(m_header->menus, ElementsAre(MenuPlaceOf(1)));
}

// --- Cells ----------------------------------------------------------------------------------------------------------

TEST_F(ColumnKeysTest, EnterTellsTheOwnerOfTheFocusedCell) {
    FocusColumn(1);
    m_owner.notifications.clear();
    Key(VK_RETURN);
    ASSERT_EQ(m_owner.Count(NM_RETURN), 1);
    EXPECT_EQ(m_owner.notifications[0].item, Item(2, 1));
}

TEST_F(ColumnKeysTest, EnterFollowsTheLinkOfTheFocusedCell) {
    Item(2, 1)->AddHyperlink(new CXTPReportHyperlink(0, 0));
    FocusColumn(1);
    Key(VK_RETURN);
    EXPECT_EQ(m_owner.Count(XTP_NM_REPORT_HYPERLINK), 1);
    EXPECT_EQ(m_owner.Count(NM_RETURN), 0);
}

TEST_F(ColumnKeysTest, CtrlF1ShowsTheTipOfTheFocusedCell) {
    Item(2, 1)->SetTooltip(_T("the tip"));
    FocusColumn(1);
    const CXTPToolTipContext* tips = m_grid.GetToolTipContext();
    {
        const KeysDown ctrl({VK_CONTROL});
        Key(VK_F1);
    }
    EXPECT_TRUE(tips->IsTipVisible());
    EXPECT_EQ(tips->GetTipText(), _T("the tip"));
    // The system tells of a move of a mouse that rests, because a window has appeared.
    CPoint cursor;
    ::GetCursorPos(&cursor);
    m_grid.ScreenToClient(&cursor);
    m_grid.GetToolTipContext()->FilterToolTipMessage(&m_grid, WM_MOUSEMOVE, 0, MAKELPARAM(cursor.x, cursor.y));
    EXPECT_TRUE(tips->IsTipVisible());
    m_grid.GetToolTipContext()->FilterToolTipMessage(&m_grid, WM_MOUSEMOVE, 0, MAKELPARAM(cursor.x + 1, cursor.y));
    EXPECT_FALSE(tips->IsTipVisible());
    const KeysDown ctrl({VK_CONTROL});
    Key(VK_F1);
    EXPECT_TRUE(tips->IsTipVisible());
    Key(VK_ESCAPE);
    EXPECT_FALSE(tips->IsTipVisible());
    FocusColumn(0);
    Key(VK_F1);
    EXPECT_FALSE(tips->IsTipVisible()) << "a text that is not cut off has no tip";
}

// --- The mark -------------------------------------------------------------------------------------------------------

TEST_F(ColumnKeysTest, TheFocusedCellHasTwoFramesAndItsHeaderABar) {
    m_grid.SetFocus();
    FocusColumn(1);
    const auto marked = Printed();
    XTP_REPORTRECORDITEM_METRICS metrics;
    m_grid.GetPaintManager()->FillRowMetrics(m_grid.GetFocusedRow(), &metrics);
    const CRect rcItem = m_grid.GetFocusedRow()->GetItemRect(Item(2, 1));
    const int y = rcItem.CenterPoint().y;
    EXPECT_EQ(marked->At(rcItem.left, y), metrics.clrForeground);
    EXPECT_EQ(marked->At(rcItem.left + 1, y), metrics.clrBackground);
    EXPECT_EQ(marked->At(rcItem.right - 1, y), metrics.clrForeground);
    EXPECT_EQ(marked->At(rcItem.right - 2, y), metrics.clrBackground);
    const CRect rcColumn = m_columns[1]->GetRect();
    const COLORREF bar = m_grid.GetPaintManager()->m_clrHeaderText;
    EXPECT_EQ(marked->At(rcColumn.CenterPoint().x, rcColumn.bottom - 2), bar);
    EXPECT_EQ(marked->At(rcColumn.CenterPoint().x, rcColumn.bottom - 3), bar);
    EXPECT_NE(marked->At(m_columns[0]->GetRect().CenterPoint().x, rcColumn.bottom - 2), bar);
    EXPECT_EQ(Difference(*marked, *OnScreen()), 0) << "what is damaged is drawn";

    m_owner.SetFocus();
    const auto elsewhere = Printed();
    EXPECT_NE(elsewhere->At(rcColumn.CenterPoint().x, rcColumn.bottom - 2), bar) << "only with the focus";
    EXPECT_EQ(Difference(*elsewhere, *OnScreen()), 0);
    m_grid.SetFocus();
    Key(VK_LEFT);
    EXPECT_EQ(Difference(*Printed(), *OnScreen()), 0) << "the former mark has gone";
    Click(Cell(2, 0));
    EXPECT_EQ(Difference(*Printed(), *OnScreen()), 0);
}

// --- Owners that take things away ------------------------------------------------------------------------------------

TEST_F(ColumnKeysTest, TheOwnerMayDestroyTheControlInAnyNotificationOfAKey) {
    struct Case {
        UINT message;
        UINT key;
        UINT notification;
        std::vector<int> down;
    };
    const Case cases[] = {
        {WM_KEYDOWN, VK_RIGHT, XTP_NM_REPORT_FOCUSCHANGED, {}},
        {WM_KEYDOWN, VK_F3, XTP_NM_REPORT_FOCUSCHANGED, {}},
        {WM_KEYDOWN, VK_F3, XTP_NM_REPORT_SORTORDERCHANGED, {}},
        {WM_KEYDOWN, VK_RIGHT, XTP_NM_REPORT_COLUMNORDERCHANGED, {VK_CONTROL, VK_SHIFT}},
        {WM_SYSKEYDOWN, VK_RIGHT, XTP_NM_REPORT_COLUMNWIDTHCHANGED, {VK_MENU}},
        {WM_SYSKEYDOWN, VK_ADD, XTP_NM_REPORT_COLUMNWIDTHCHANGED, {VK_MENU}},
        {WM_SYSKEYDOWN, VK_DOWN, XTP_NM_REPORT_FOCUSCHANGED, {VK_MENU}},
        {WM_KEYDOWN, VK_RETURN, NM_RETURN, {}},
        {WM_KEYDOWN, VK_F1, XTP_NM_REPORT_FOCUSCHANGED, {VK_CONTROL}},
        {WM_CONTEXTMENU, 0, NM_RCLICK, {}},
        {WM_CONTEXTMENU, 0, XTP_NM_REPORT_FOCUSCHANGED, {}},
    };
    for (const Case& each : cases) {
        auto* grid = new CXTPReportControl;
        grid->Create(WS_CHILD | WS_VISIBLE, CRect(0, 0, 200, 200), &m_owner, 43);
        for (int i = 0; i < 2; ++i)
            grid->AddColumn(new CXTPReportColumn(i, _T("column"), 50));
        auto* record = new CXTPReportRecord;
        record->AddItem(new CXTPReportRecordItemText(_T("text")));
        grid->AddRecord(record);
        grid->Populate();
        grid->SetFocusedRow(grid->GetRows()->GetAt(0));
        bool isDeleted = false;
        m_owner.onNotify = [&](UINT code) {
            if (code != each.notification || isDeleted)
                return;
            isDeleted = true;
            delete grid;
        };
        KeysDown down({});
        BYTE keys[256] = {};
        for (const int key : each.down)
            keys[key] = 0x80;
        ::SetKeyboardState(keys);
        const WPARAM first = each.message == WM_CONTEXTMENU ? reinterpret_cast<WPARAM>(grid->m_hWnd) : each.key;
        grid->SendMessage(each.message, first, each.message == WM_CONTEXTMENU ? MAKELPARAM(-1, -1) : 1);
        m_owner.onNotify = nullptr;
        EXPECT_TRUE(isDeleted) << "key " << each.key << " message " << each.message;
        if (!isDeleted)
            delete grid;
    }
}

} // namespace
