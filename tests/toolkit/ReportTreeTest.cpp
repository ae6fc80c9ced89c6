// Records below records: their rows, and how the user expands and collapses them.
#include "OutlineGrid.h"

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class TreeTest : public OutlineTest {
protected:
    TreeTest() {
        m_columns[0]->SetTreeColumn(TRUE);
        m_b = Add(nullptr, _T("b"));
        m_b2 = Add(m_b, _T("b2"));
        m_b1 = Add(m_b, _T("b1"));
        m_deep = Add(m_b1, _T("deep"));
        m_c = Add(nullptr, _T("c"));
        m_a = Add(nullptr, _T("a"));
        Add(m_a, _T("a1"));
        m_grid.Populate();
        Settle();
    }
    void Expand(CXTPReportRecord* record, bool expand = true) { RowOf(record)->SetExpanded(expand); }

    CXTPReportRecord *m_b, *m_b1, *m_b2, *m_deep, *m_c, *m_a;
};

// --- Rows -----------------------------------------------------------------------------------------------------------

TEST_F(TreeTest, ChildRecordsHaveRowsWhileTheRecordIsExpanded) {
    EXPECT_THAT(Shown(), ElementsAre(L"b", L"c", L"a"));
    Expand(m_b);
    EXPECT_THAT(Shown(), ElementsAre(L"b", L".b2", L".b1", L"c", L"a"));
    Expand(m_b1);
    EXPECT_THAT(Shown(), ElementsAre(L"b", L".b2", L".b1", L"..deep", L"c", L"a"));
    Expand(m_b, false);
    EXPECT_THAT(Shown(), ElementsAre(L"b", L"c", L"a"));
    Expand(m_b);
    EXPECT_THAT(Shown(), ElementsAre(L"b", L".b2", L".b1", L"..deep", L"c", L"a")) << "b1 has kept its state";
}

TEST_F(TreeTest, ARowTellsWhatStandsAboveAndBelowIt) {
    Expand(m_b);
    Expand(m_b1);
    EXPECT_TRUE(RowOf(m_b)->HasChildren());
    EXPECT_TRUE(RowOf(m_b)->IsExpanded());
    EXPECT_FALSE(RowOf(m_c)->HasChildren());
    EXPECT_FALSE(RowOf(m_c)->IsExpanded());
    EXPECT_TRUE(RowOf(m_a)->HasChildren());
    EXPECT_FALSE(RowOf(m_a)->IsExpanded());
    EXPECT_EQ(RowOf(m_b)->GetParentRow(), nullptr);
    EXPECT_EQ(RowOf(m_deep)->GetParentRow(), RowOf(m_b1));
    EXPECT_EQ(RowOf(m_deep)->GetTreeDepth(), 2);
    EXPECT_EQ(RowOf(m_deep)->GetGroupLevel(), 0);
    EXPECT_EQ(RowOf(m_b)->GetFirstChildRow(), RowOf(m_b2));
    EXPECT_EQ(RowOf(m_a)->GetFirstChildRow(), nullptr) << "it is collapsed";
    EXPECT_EQ(RowOf(m_b)->GetNextSiblingRow(), RowOf(m_c));
    EXPECT_EQ(RowOf(m_b2)->GetNextSiblingRow(), RowOf(m_b1));
    EXPECT_EQ(RowOf(m_b1)->GetNextSiblingRow(), nullptr);
    EXPECT_FALSE(RowOf(m_b)->IsGroupRow());
    EXPECT_EQ(m_grid.GetRows()->Find(m_a->GetChilds()->GetAt(0)), nullptr);
}

TEST_F(TreeTest, WhatIsExpandedSurvivesPopulateAndIsSetByTheHost) {
    Expand(m_b);
    m_grid.Populate();
    EXPECT_THAT(Shown(), ElementsAre(L"b", L".b2", L".b1", L"c", L"a"));
    EXPECT_TRUE(m_b->IsExpanded());
    m_b->SetExpanded(FALSE);
    m_a->SetExpanded(TRUE);
    EXPECT_EQ(m_grid.GetRows()->GetCount(), 5) << "the next Populate shows it";
    m_grid.Populate();
    EXPECT_THAT(Shown(), ElementsAre(L"b", L"c", L"a", L".a1"));
}

TEST_F(TreeTest, ChildrenAreSortedAmongThemselves) {
    m_grid.ExpandAll();
    m_grid.GetColumns()->SetSortColumn(m_columns[0], TRUE);
    m_grid.Populate();
    EXPECT_THAT(Shown(), ElementsAre(L"a", L".a1", L"b", L".b1", L"..deep", L".b2", L"c"));
    m_grid.GetColumns()->SetSortColumn(m_columns[0], FALSE);
    m_grid.Populate();
    EXPECT_THAT(Shown(), ElementsAre(L"c", L"b", L".b2", L".b1", L"..deep", L"a", L".a1"));
}

TEST_F(TreeTest, AllRowsAreExpandedAndCollapsedAtOnce) {
    Focus(1); // c
    m_owner.notifications.clear();
    m_grid.ExpandAll();
    EXPECT_THAT(Shown(), ElementsAre(L"b", L".b2", L".b1", L"..deep", L"c", L"a", L".a1"));
    EXPECT_EQ(Focused(), 4);
    EXPECT_THAT(Selected(), ElementsAre(4));
    EXPECT_THAT(m_owner.notifications, IsEmpty());
    Focus(3); // deep
    m_grid.CollapseAll();
    EXPECT_THAT(Shown(), ElementsAre(L"b", L"c", L"a"));
    EXPECT_EQ(Focused(), 0) << "what stands above the focused row takes the focus";
    EXPECT_FALSE(m_b1->IsExpanded());
}

TEST_F(TreeTest, AnInvisibleRecordHidesWhatIsBelowIt) {
    m_grid.ExpandAll();
    m_b1->SetVisible(FALSE);
    m_grid.Populate();
    EXPECT_THAT(Shown(), ElementsAre(L"b", L".b2", L"c", L"a", L".a1"));
    m_b2->SetVisible(FALSE);
    m_grid.Populate();
    EXPECT_FALSE(RowOf(m_b)->HasChildren()) << "nothing below it can be shown";
    EXPECT_TRUE(RowOf(m_b)->GetExpandButtonRect().IsRectEmpty());
}

TEST_F(TreeTest, RecordsThatAreAddedShowAfterPopulate) {
    Expand(m_b);
    Add(m_c, _T("c1"));
    Add(m_b, _T("b3"));
    EXPECT_FALSE(RowOf(m_c)->HasChildren());
    m_grid.Populate();
    EXPECT_TRUE(RowOf(m_c)->HasChildren());
    EXPECT_THAT(Shown(), ElementsAre(L"b", L".b2", L".b1", L".b3", L"c", L"a"));
}

TEST_F(TreeTest, RowObjectsStayTheSameWhileOthersComeAndGo) {
    CXTPReportRow* const a = RowOf(m_a);
    Expand(m_b);
    EXPECT_EQ(RowOf(m_a), a);
    EXPECT_EQ(a->GetIndex(), 4);
    CXTPReportRow* const b1 = RowOf(m_b1);
    b1->InternalAddRef();
    Expand(m_b, false);
    EXPECT_EQ(a->GetIndex(), 2);
    EXPECT_EQ(b1->GetControl(), nullptr) << "it was taken out";
    EXPECT_EQ(b1->GetRecord(), nullptr);
    EXPECT_EQ(b1->GetParentRow(), nullptr);
    b1->SetExpanded(TRUE);
    b1->InternalRelease();
    Expand(m_b);
    EXPECT_EQ(RowOf(m_b1)->GetRecord(), m_b1);
}

TEST_F(TreeTest, VirtualModeHasNoTree) {
    auto* record = new CXTPReportRecord;
    record->AddItem(new ProbeItem(_T("v")));
    record->GetChilds()->Add(new CXTPReportRecord);
    record->SetExpanded(TRUE);
    m_grid.SetVirtualMode(record, 20);
    m_grid.Populate();
    m_grid.ExpandAll();
    m_grid.CollapseAll();
    EXPECT_EQ(m_grid.GetRows()->GetCount(), 20);
    EXPECT_FALSE(Row(3)->HasChildren());
    Row(3)->SetExpanded(TRUE);
    EXPECT_EQ(m_grid.GetRows()->GetCount(), 20);
    EXPECT_EQ(Row(3)->GetTreeIndent(m_columns[0]), 0);
    m_grid.SetVirtualMode(nullptr, 0);
}

TEST_F(TreeTest, ATreeMayBeVeryDeep) {
    m_grid.ResetContent();
    CXTPReportRecord* record = nullptr;
    for (int i = 0; i < 3000; ++i) {
        record = Add(record, _T("x"));
        record->SetExpanded(TRUE);
    }
    m_grid.Populate();
    ASSERT_EQ(m_grid.GetRows()->GetCount(), 3000);
    EXPECT_EQ(Row(2999)->GetTreeDepth(), 2999);
    m_grid.UpdateWindow();
    Focus(2999);
    m_grid.UpdateWindow();
    m_grid.GetSelectedRows()->SelectBlock(0, 2999);
    m_grid.Copy();
    m_grid.CollapseAll();
    EXPECT_EQ(Focused(), 0);
}

// --- Selection and focus ---------------------------------------------------------------------------------------------

TEST_F(TreeTest, SelectionAndFocusMoveAlongWithTheirRows) {
    Focus(1); // c
    m_grid.GetSelectedRows()->Add(Row(2));
    m_grid.GetSelectedRows()->Add(Row(0));
    m_grid.selectionChanges = 0;
    Expand(m_b);
    EXPECT_THAT(Selected(), ElementsAre(0, 3, 4)) << "new rows part what is selected";
    EXPECT_EQ(Focused(), 3);
    EXPECT_EQ(m_grid.GetSelectedRows()->GetAnchor(), 3);
    Expand(m_b, false);
    EXPECT_THAT(Selected(), ElementsAre(0, 1, 2));
    EXPECT_EQ(Focused(), 1);
    EXPECT_EQ(m_grid.selectionChanges, 0);
}

TEST_F(TreeTest, ACollapsedRowTakesTheFocusOfThoseBelowIt) {
    m_grid.ExpandAll();
    Focus(3); // deep
    m_grid.selectionChanges = 0;
    m_owner.notifications.clear();
    Expand(m_b, false);
    EXPECT_EQ(Focused(), 0);
    EXPECT_THAT(Selected(), ElementsAre(0));
    EXPECT_EQ(m_grid.selectionChanges, 1);
    EXPECT_EQ(m_owner.Count(XTP_NM_REPORT_FOCUSCHANGED), 1);
    ASSERT_EQ(m_owner.notifications.back().code, XTP_NM_REPORT_ROWEXPANDED);
    EXPECT_EQ(m_owner.notifications.back().rowIndex, 0);
}

TEST_F(TreeTest, WhatElseIsSelectedStaysWhenARowIsCollapsed) {
    m_grid.ExpandAll();
    Focus(5); // a
    m_grid.GetSelectedRows()->Add(Row(1));
    m_grid.SetFocusedRow(Row(1), FALSE);
    Expand(m_b, false);
    EXPECT_EQ(Focused(), 0);
    EXPECT_THAT(Selected(), ElementsAre(2)) << "a, and nothing else";
}

TEST_F(TreeTest, RowsThatComeInAboveTheViewDoNotMoveIt) {
    for (int i = 0; i < 30; ++i)
        Add(nullptr, _T("x"));
    m_grid.Populate();
    m_grid.SetTopRow(5);
    CXTPReportRecord* const top = Row(5)->GetRecord();
    Expand(m_b);
    EXPECT_EQ(Row(m_grid.GetTopRowIndex())->GetRecord(), top);
    Expand(m_b, false);
    EXPECT_EQ(m_grid.GetTopRowIndex(), 5);
}

// --- Removal --------------------------------------------------------------------------------------------------------

TEST_F(TreeTest, ARemovedRecordTakesAllRowsBelowItAlong) {
    m_grid.ExpandAll();
    Focus(4); // c
    m_b->Delete();
    EXPECT_THAT(Shown(), ElementsAre(L"c", L"a", L".a1"));
    EXPECT_EQ(Focused(), 0);
    EXPECT_THAT(Selected(), ElementsAre(0));
    m_grid.Populate();
    EXPECT_THAT(Shown(), ElementsAre(L"c", L"a", L".a1"));
}

TEST_F(TreeTest, AChildIsRemovedWhetherItIsShownOrNot) {
    m_deep->Delete();
    Expand(m_b);
    EXPECT_FALSE(RowOf(m_b1)->HasChildren());
    m_b2->Delete();
    EXPECT_THAT(Shown(), ElementsAre(L"b", L".b1", L"c", L"a"));
    Expand(m_b, false);
    m_b->GetChilds()->RemoveAll();
    EXPECT_THAT(Shown(), ElementsAre(L"b", L"c", L"a"));
    EXPECT_FALSE(RowOf(m_b)->HasChildren());
    Expand(m_b);
    EXPECT_THAT(Shown(), ElementsAre(L"b", L"c", L"a"));
}

TEST_F(TreeTest, AllChildrenOfAnExpandedRecordGoAtOnce) {
    m_grid.ExpandAll();
    Focus(3);
    m_b->GetChilds()->RemoveAll();
    EXPECT_THAT(Shown(), ElementsAre(L"b", L"c", L"a", L".a1"));
    EXPECT_EQ(Focused(), 1) << "what stands in its place";
    m_grid.GetRecords()->RemoveAll();
    EXPECT_THAT(Shown(), IsEmpty());
}

TEST_F(TreeTest, ARemovedRecordMayComeBackElsewhere) {
    m_grid.ExpandAll();
    m_b1->InternalAddRef();
    m_b->GetChilds()->RemoveRecord(m_b1);
    EXPECT_THAT(Shown(), ElementsAre(L"b", L".b2", L"c", L"a", L".a1"));
    m_c->GetChilds()->Add(m_b1);
    m_c->SetExpanded(TRUE);
    m_grid.Populate();
    EXPECT_THAT(Shown(), ElementsAre(L"b", L".b2", L"c", L".b1", L"..deep", L"a", L".a1"));
}

TEST_F(TreeTest, AnEditorBelowARemovedRecordClosesWithoutEffect) {
    m_grid.AllowEdit(TRUE);
    m_grid.ExpandAll();
    Focus(3); // deep
    Key(VK_F2);
    ASSERT_EQ(m_grid.GetActiveItem(), m_deep->GetItem(0));
    m_grid.GetInplaceEdit()->ReplaceSel(_T("typed"));
    m_b->Delete();
    EXPECT_EQ(m_grid.GetActiveItem(), nullptr);
    EXPECT_EQ(m_owner.Count(XTP_NM_REPORT_EDITCANCELED), 1);
}

// --- The mouse -------------------------------------------------------------------------------------------------------

TEST_F(TreeTest, APressOnTheButtonExpandsAndDoesNothingElse) {
    Focus(2);
    m_owner.notifications.clear();
    Click(ButtonOf(0));
    EXPECT_THAT(Shown(), ElementsAre(L"b", L".b2", L".b1", L"c", L"a"));
    ASSERT_EQ(m_owner.notifications.size(), 1U);
    EXPECT_EQ(m_owner.notifications[0].code, XTP_NM_REPORT_ROWEXPANDED);
    EXPECT_EQ(m_owner.notifications[0].rowIndex, 0);
    EXPECT_EQ(Focused(), 4);
    EXPECT_THAT(Selected(), ElementsAre(4));
    Click(ButtonOf(2));
    EXPECT_EQ(m_grid.GetRows()->GetCount(), 6);
    Click(ButtonOf(0));
    EXPECT_THAT(Shown(), ElementsAre(L"b", L"c", L"a"));
}

TEST_F(TreeTest, TwoQuickPressesOnTheButtonAreTwo) {
    DoubleClick(ButtonOf(0));
    EXPECT_THAT(Shown(), ElementsAre(L"b", L"c", L"a"));
    EXPECT_EQ(m_owner.Count(XTP_NM_REPORT_ROWEXPANDED), 2);
    EXPECT_EQ(m_owner.Count(NM_DBLCLK), 0);
}

TEST_F(TreeTest, ADoubleClickInTheTreeColumnExpands) {
    DoubleClick(Cell(0, 0));
    EXPECT_EQ(m_grid.GetRows()->GetCount(), 5);
    EXPECT_EQ(m_owner.Count(NM_DBLCLK), 1);
    DoubleClick(Cell(0, 1));
    EXPECT_EQ(m_grid.GetRows()->GetCount(), 5) << "cells of other columns may want the second press";
    DoubleClick(Cell(0, 0));
    EXPECT_EQ(m_grid.GetRows()->GetCount(), 3);
}

TEST_F(TreeTest, ADoubleClickOnACellThatCanBeEditedEditsIt) {
    m_grid.AllowEdit(TRUE);
    DoubleClick(Cell(0, 0));
    EXPECT_EQ(m_grid.GetRows()->GetCount(), 3);
    EXPECT_EQ(m_grid.GetActiveItem(), m_b->GetItem(0));
}

TEST_F(TreeTest, TheButtonStandsInTheLastStepOfTheIndentation) {
    m_grid.ExpandAll();
    const CRect rcRow = RowOf(m_b1)->GetRect();
    EXPECT_EQ(RowOf(m_b1)->GetExpandButtonRect(),
              CRect(rcRow.left + Step(), rcRow.top, rcRow.left + 2 * Step(), rcRow.bottom - 1));
    EXPECT_EQ(RowOf(m_deep)->GetTreeIndent(m_columns[0]), 3 * Step());
    EXPECT_EQ(RowOf(m_deep)->GetTreeIndent(m_columns[1]), 0);
    EXPECT_TRUE(RowOf(m_deep)->GetExpandButtonRect().IsRectEmpty()) << "nothing stands below it";
    m_columns[0]->SetVisible(FALSE);
    EXPECT_TRUE(RowOf(m_b1)->GetExpandButtonRect().IsRectEmpty()) << "no column shows the tree";
}

TEST_F(TreeTest, CellsStandBehindTheIndentation) {
    m_grid.ExpandAll();
    m_grid.UpdateWindow();
    const CRect rcRow = RowOf(m_deep)->GetRect();
    auto* item = static_cast<ProbeItem*>(m_deep->GetItem(0));
    const CRect rcItem(3 * Step(), rcRow.top, 99, rcRow.bottom - 1);
    EXPECT_EQ(RowOf(m_deep)->GetItemRect(item), rcItem);
    EXPECT_EQ(item->drawnAt, rcItem);
    CRect rcHit;
    EXPECT_EQ(RowOf(m_deep)->HitTest(CPoint(3 * Step(), rcRow.top), &rcHit), item);
    EXPECT_EQ(rcHit, rcItem);
    EXPECT_EQ(RowOf(m_deep)->HitTest(CPoint(3 * Step() - 1, rcRow.top)), nullptr);
    Click(CPoint(1, rcRow.CenterPoint().y));
    EXPECT_EQ(Focused(), 3) << "the indentation belongs to the row";
    m_grid.AllowEdit(TRUE);
    Key(VK_F2);
    CRect rcEdit;
    m_grid.GetInplaceEdit()->GetWindowRect(&rcEdit);
    m_grid.ScreenToClient(&rcEdit);
    EXPECT_EQ(rcEdit, rcItem);
}

TEST_F(TreeTest, BestFitMakesRoomForTheIndentation) {
    m_grid.ExpandAll();
    const int withTree = m_columns[0]->GetBestFitWidth();
    m_columns[0]->SetTreeColumn(FALSE);
    static_cast<ProbeItem*>(m_deep->GetItem(0))->SetValue(_T("a rather long text at the bottom"));
    const int text = m_columns[0]->GetBestFitWidth();
    m_columns[0]->SetTreeColumn(TRUE);
    EXPECT_EQ(m_columns[0]->GetBestFitWidth(), text + 3 * Step());
    EXPECT_LT(withTree, text);
}

TEST_F(TreeTest, ATextThatTheIndentationCutsOffHasATip) {
    m_grid.ExpandAll();
    auto* item = static_cast<ProbeItem*>(m_deep->GetItem(0));
    item->SetValue(_T("wide"));
    const int text = m_grid.GetPaintManager()->GetTextWidth(_T("wide"));
    m_columns[0]->SetMinWidth(0);
    m_columns[0]->SetWidth(3 * Step() + text + 2 * m_grid.GetPaintManager()->GetCellPadding() + 1);
    TOOLINFO tool = {};
    tool.cbSize = sizeof(tool);
    const CPoint point = RowOf(m_deep)->GetItemRect(item).CenterPoint();
    EXPECT_EQ(m_grid.OnToolHitTest(point, &tool), -1);
    m_columns[0]->SetWidth(m_columns[0]->GetWidth() - 1);
    EXPECT_NE(m_grid.OnToolHitTest(point, &tool), -1);
    std::free(tool.lpszText);
}

// --- Keys -----------------------------------------------------------------------------------------------------------

TEST_F(TreeTest, RightExpandsAndGoesDownLeftCollapsesAndGoesUp) {
    Focus(0);
    Key(VK_RIGHT);
    EXPECT_EQ(m_grid.GetRows()->GetCount(), 5);
    EXPECT_EQ(Focused(), 0);
    Key(VK_RIGHT);
    EXPECT_EQ(Focused(), 1) << "the first row below";
    Key(VK_DOWN);
    Key(VK_RIGHT);
    Key(VK_RIGHT);
    EXPECT_EQ(Focused(), 3);
    EXPECT_EQ(TextOf(m_grid.GetFocusedRow()), _T("deep"));
    Key(VK_LEFT);
    EXPECT_EQ(Focused(), 2);
    Key(VK_LEFT);
    EXPECT_EQ(m_grid.GetRows()->GetCount(), 5) << "b1 is collapsed";
    Key(VK_LEFT);
    EXPECT_EQ(Focused(), 0);
    EXPECT_THAT(Selected(), ElementsAre(0));
    Key(VK_LEFT);
    EXPECT_EQ(m_grid.GetRows()->GetCount(), 3);
    EXPECT_EQ(m_grid.GetFocusedColumn(), nullptr) << "none of them was for the columns";
}

TEST_F(TreeTest, LeftAndRightMoveAmongTheColumnsWhereTheyHaveNothingToDoInTheTree) {
    Focus(1); // c, with nothing above or below
    Key(VK_RIGHT);
    Key(VK_RIGHT);
    EXPECT_EQ(m_grid.GetFocusedColumn(), m_columns[1]);
    Focus(0);
    Key(VK_RIGHT);
    EXPECT_EQ(m_grid.GetFocusedColumn(), m_columns[2]) << "it is not the tree column that is focused";
    EXPECT_EQ(m_grid.GetRows()->GetCount(), 3);
    Key(VK_LEFT);
    Key(VK_LEFT);
    EXPECT_EQ(m_grid.GetFocusedColumn(), m_columns[0]);
    Key(VK_RIGHT);
    EXPECT_EQ(m_grid.GetRows()->GetCount(), 5);
}

TEST_F(TreeTest, SignsOfTheNumberPadExpandAndCollapse) {
    Focus(0);
    Sign(VK_ADD, '+');
    EXPECT_EQ(m_grid.GetRows()->GetCount(), 5);
    Sign(VK_ADD, '+');
    EXPECT_EQ(m_grid.GetRows()->GetCount(), 5);
    Sign(VK_SUBTRACT, '-');
    EXPECT_EQ(m_grid.GetRows()->GetCount(), 3);
    m_owner.notifications.clear();
    Sign(VK_MULTIPLY, '*');
    EXPECT_THAT(Shown(), ElementsAre(L"b", L".b2", L".b1", L"..deep", L"c", L"a"));
    EXPECT_EQ(m_owner.Count(XTP_NM_REPORT_ROWEXPANDED), 1);
    Expand(m_b1, false);
    Sign(VK_MULTIPLY, '*');
    EXPECT_EQ(m_grid.GetRows()->GetCount(), 6) << "what was collapsed below it, too";
    EXPECT_EQ(Focused(), 0);
}

TEST_F(TreeTest, SignsAreTypedIntoACellThatCanBeEdited) {
    m_grid.AllowEdit(TRUE);
    Focus(0);
    Sign(VK_SUBTRACT, '-');
    ASSERT_EQ(m_grid.GetActiveItem(), m_b->GetItem(0));
    CString text;
    m_grid.GetInplaceEdit()->GetWindowText(text);
    EXPECT_EQ(text, _T("-"));
}

TEST_F(TreeTest, AnExpansionByKeyShowsTheRowsBelow) {
    m_grid.ResetContent();
    for (int i = 0; i < 10; ++i)
        Add(nullptr, _T("x"));
    CXTPReportRecord* const last = m_grid.GetRecords()->GetAt(9);
    for (int i = 0; i < 4; ++i)
        Add(last, _T("child"));
    m_grid.Populate();
    Focus(9);
    Key(VK_RIGHT);
    EXPECT_EQ(m_grid.GetTopRowIndex(), 4) << "all four of them";
    Key(VK_LEFT);
    for (int i = 0; i < 30; ++i)
        Add(last, _T("child"));
    m_grid.Populate();
    Key(VK_RIGHT);
    EXPECT_EQ(m_grid.GetTopRowIndex(), 9) << "as many as there is room for below the row";
}

TEST_F(TreeTest, TheOwnerMayDestroyTheGridWhenItHearsOfAnExpansion) {
    m_owner.onNotify = [this](UINT code) {
        if (code == XTP_NM_REPORT_ROWEXPANDED)
            m_grid.DestroyWindow();
    };
    Click(ButtonOf(0));
    EXPECT_EQ(m_grid.m_hWnd, nullptr);
}

TEST_F(TreeTest, TheOwnerMayPopulateWhenItHearsOfAnExpansion) {
    m_owner.onNotify = [this](UINT code) {
        if (code == XTP_NM_REPORT_ROWEXPANDED)
            m_grid.Populate();
    };
    Focus(0);
    Key(VK_RIGHT);
    EXPECT_EQ(m_grid.GetRows()->GetCount(), 5);
}

TEST_F(TreeTest, AnExpansionEndsAnEditing) {
    m_grid.AllowEdit(TRUE);
    Focus(2);
    Key(VK_F2);
    m_grid.GetInplaceEdit()->ReplaceSel(_T("typed"));
    Expand(m_b);
    EXPECT_EQ(m_grid.GetActiveItem(), nullptr);
    EXPECT_EQ(TextOf(RowOf(m_a)), _T("typed"));
}

// --- Drawing --------------------------------------------------------------------------------------------------------

TEST_F(TreeTest, TheButtonOfABoxShowsAPlusOrAMinus) {
    m_grid.SetTheme(xtpReportThemeOfficeXP);
    m_grid.GetPaintManager()->m_clrExpandButton.SetCustomValue(RGB(1, 0, 0));
    m_grid.GetPaintManager()->m_clrExpandButtonFill.SetCustomValue(RGB(2, 0, 0));
    m_grid.GetPaintManager()->m_clrExpandButtonSign.SetCustomValue(RGB(3, 0, 0));
    m_grid.GetRecords()->RemoveRecord(m_a);
    const CRect rcButton = Row(0)->GetExpandButtonRect();
    const CPoint corner(rcButton.left + (rcButton.Width() - 9) / 2, rcButton.top + (rcButton.Height() - 9) / 2);
    const auto collapsed = Printed();
    EXPECT_EQ(collapsed->BoxOf(RGB(1, 0, 0)), CRect(corner, CSize(9, 9)));
    EXPECT_EQ(collapsed->Count(RGB(1, 0, 0)), 4 * 8);
    EXPECT_EQ(collapsed->Count(RGB(3, 0, 0)), 5 + 4) << "a plus of five pixels each way";
    Expand(m_b);
    m_b1->GetChilds()->RemoveAll();
    const auto expanded = Printed();
    EXPECT_EQ(expanded->Count(RGB(3, 0, 0)), 5);
    EXPECT_EQ(expanded->BoxOf(RGB(3, 0, 0)), CRect(corner + CPoint(2, 4), CSize(5, 1)));
}

TEST_F(TreeTest, TheButtonOfATrianglePointsRightOrDown) {
    m_grid.SetTheme(xtpReportThemeWindows7);
    m_grid.GetPaintManager()->m_clrExpandButton.SetCustomValue(RGB(1, 0, 0));
    m_grid.GetRecords()->RemoveRecord(m_a);
    const auto collapsed = Printed();
    EXPECT_EQ(collapsed->BoxOf(RGB(1, 0, 0)).Size(), CSize(5, 9));
    EXPECT_EQ(collapsed->Count(RGB(1, 0, 0)), 9 + 7 + 5 + 3 + 1);
    Expand(m_b);
    m_b1->GetChilds()->RemoveAll();
    const auto expanded = Printed();
    EXPECT_EQ(expanded->BoxOf(RGB(1, 0, 0)).Size(), CSize(6, 6));
    EXPECT_EQ(expanded->Count(RGB(1, 0, 0)), 6 + 5 + 4 + 3 + 2 + 1);
}

TEST_F(TreeTest, LinesJoinTheRecordsBelowOneAnother) {
    m_grid.SetTheme(xtpReportThemeOfficeXP);
    m_grid.GetPaintManager()->m_clrTreeLine.SetCustomValue(RGB(1, 0, 0));
    m_grid.GetRecords()->RemoveRecord(m_a);
    m_grid.GetRecords()->RemoveRecord(m_c);
    m_deep->Delete();
    Expand(m_b);
    const auto picture = Printed();
    const auto isLine = [&](int level, const CXTPReportRecord* record, int y) {
        const int x = level * Step() + Step() / 2;
        const CRect rc = m_grid.GetRows()->Find(const_cast<CXTPReportRecord*>(record))->GetRect();
        const int middle = (rc.top + rc.bottom - 1) / 2;
        int count = 0; // every second pixel
        for (int at = y < 0 ? rc.top : middle + 1; at < (y < 0 ? middle : rc.bottom - 1); ++at)
            count += picture->At(x, at) == RGB(1, 0, 0);
        return count > 2;
    };
    EXPECT_FALSE(isLine(0, m_b, -1)) << "nothing stands above the first one";
    EXPECT_FALSE(isLine(0, m_b, 1)) << "nor below the last one of its level";
    EXPECT_TRUE(isLine(1, m_b2, -1));
    EXPECT_TRUE(isLine(1, m_b2, 1));
    EXPECT_TRUE(isLine(1, m_b1, -1));
    EXPECT_FALSE(isLine(1, m_b1, 1)) << "the last child";
    EXPECT_FALSE(isLine(0, m_b1, -1)) << "no further record of its parent's level follows";
    m_grid.GetPaintManager()->m_clrTreeLine.SetCustomValue(CXTPPaintManagerColor::Unset);
    m_grid.SetTheme(xtpReportThemeOffice2013);
    EXPECT_EQ(Printed()->Count(RGB(1, 0, 0)), 0);
}

TEST_F(TreeTest, TheTreeScalesWithTheResolution) {
    const int step = Step();
    m_grid.GetPaintManager()->SetDpi(2 * m_grid.GetPaintManager()->GetDpi());
    EXPECT_EQ(Step(), 2 * step);
    m_grid.AdjustLayout();
    EXPECT_EQ(Row(0)->GetExpandButtonRect().Width(), 2 * step);
}

TEST_F(TreeTest, OnScreenIsWhatIsDrawnAnew) {
    Click(ButtonOf(0));
    Pump();
    EXPECT_EQ(Difference(*OnScreen(), *Printed()), 0);
    Key(VK_DOWN);
    Click(ButtonOf(0));
    EXPECT_EQ(Difference(*OnScreen(), *Printed()), 0);
}

// --- Clipboard ------------------------------------------------------------------------------------------------------

class CuttingGrid : public ProbeGrid {
public:
    BOOL CanCut() override { return TRUE; }
    BOOL CanPaste() override { return TRUE; }
};

TEST_F(TreeTest, RecordsBelowASelectedOneAreCutWithIt) {
    CuttingGrid grid;
    grid.Create(WS_CHILD | WS_VISIBLE, CRect(0, 0, 200, 200), &m_owner, 43);
    grid.AddColumn(new CXTPReportColumn(0, _T("A"), 100));
    auto* parent = grid.AddRecord(new CXTPReportRecord);
    parent->AddItem(new CXTPReportRecordItemText(_T("parent")));
    auto* child = parent->GetChilds()->Add(new CXTPReportRecord);
    child->AddItem(new CXTPReportRecordItemText(_T("child")));
    parent->SetExpanded(TRUE);
    auto* other = grid.AddRecord(new CXTPReportRecord);
    other->AddItem(new CXTPReportRecordItemText(_T("other")));
    grid.Populate();
    grid.GetSelectedRows()->SelectBlock(0, 1);
    grid.Cut();
    ASSERT_EQ(grid.GetRecords()->GetCount(), 1);
    EXPECT_EQ(grid.GetRows()->GetCount(), 1);
    grid.SetFocusedRow(grid.GetRows()->GetAt(0));
    grid.Paste();
    ASSERT_EQ(grid.GetRecords()->GetCount(), 2) << "the child came along, and not a second time";
    EXPECT_EQ(grid.GetRecords()->GetAt(0)->GetChilds()->GetCount(), 1);
    ASSERT_EQ(grid.GetRows()->GetCount(), 3) << "expanded as it was";
    grid.SetFocusedRow(grid.GetRows()->GetAt(1)); // the child
    grid.Paste();
    EXPECT_EQ(grid.GetRecords()->GetAt(0)->GetChilds()->GetCount(), 2) << "in front of the focused record";
    grid.DestroyWindow();
}

} // namespace
