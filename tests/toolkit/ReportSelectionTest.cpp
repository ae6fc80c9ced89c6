// Selection and focus of a report control by mouse and keyboard.
#include "GridWindow.h"

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class UserSelectionTest : public GridTest {
protected:
    UserSelectionTest() { AddRecords(30); }
    int Focused() const { return m_grid.GetFocusedRow() ? m_grid.GetFocusedRow()->GetIndex() : -1; }
};

// --- Mouse ----------------------------------------------------------------------------------------------------------

TEST_F(UserSelectionTest, AClickSelectsOneRowAndFocusesIt) {
    Click(Cell(3));
    EXPECT_THAT(Selected(), ElementsAre(3));
    Click(Cell(5, 2));
    EXPECT_THAT(Selected(), ElementsAre(5));
    EXPECT_EQ(Focused(), 5);
    EXPECT_EQ(m_grid.selectionChanges, 2);
}

TEST_F(UserSelectionTest, AClickOnTheSelectedRowChangesNothing) {
    Click(Cell(3));
    Click(Cell(3));
    EXPECT_EQ(m_grid.selectionChanges, 1);
    EXPECT_EQ(m_owner.Count(XTP_NM_REPORT_SELCHANGED), 1);
    EXPECT_EQ(m_owner.Count(XTP_NM_REPORT_FOCUSCHANGED), 1);
}

TEST_F(UserSelectionTest, AClickRightOfTheColumnsSelectsTheRow) {
    Click(CPoint(250, Cell(4).y));
    EXPECT_THAT(Selected(), ElementsAre(4));
}

TEST_F(UserSelectionTest, CtrlAddsAndRemovesRows) {
    Click(Cell(2));
    Click(Cell(5), MK_CONTROL);
    Click(Cell(7), MK_CONTROL);
    EXPECT_THAT(Selected(), ElementsAre(2, 5, 7));
    Click(Cell(5), MK_CONTROL);
    EXPECT_THAT(Selected(), ElementsAre(2, 7));
    EXPECT_EQ(Focused(), 5);
    EXPECT_EQ(m_grid.selectionChanges, 4);
}

TEST_F(UserSelectionTest, ShiftSelectsFromTheLastRowClickedWithoutIt) {
    Click(Cell(4));
    Click(Cell(7), MK_SHIFT);
    EXPECT_THAT(Selected(), ElementsAre(4, 5, 6, 7));
    Click(Cell(2), MK_SHIFT);
    EXPECT_THAT(Selected(), ElementsAre(2, 3, 4));
    EXPECT_EQ(m_grid.selectionChanges, 3);
}

TEST_F(UserSelectionTest, ShiftAndCtrlTogetherAddABlock) {
    Click(Cell(1));
    Click(Cell(6), MK_CONTROL);
    Click(Cell(8), MK_CONTROL | MK_SHIFT);
    EXPECT_THAT(Selected(), ElementsAre(1, 6, 7, 8));
}

TEST_F(UserSelectionTest, WithoutMultipleSelectionCtrlAndShiftSelectOneRow) {
    m_grid.SetMultipleSelection(FALSE);
    Click(Cell(2));
    Click(Cell(5), MK_CONTROL);
    EXPECT_THAT(Selected(), ElementsAre(5));
    Click(Cell(8), MK_SHIFT);
    EXPECT_THAT(Selected(), ElementsAre(8));
}

TEST_F(UserSelectionTest, EndingMultipleSelectionKeepsTheFocusedRow) {
    Click(Cell(2));
    Click(Cell(6), MK_SHIFT);
    m_grid.SetMultipleSelection(FALSE);
    EXPECT_THAT(Selected(), ElementsAre(6));
}

TEST_F(UserSelectionTest, EndingMultipleSelectionEndsADragOverRows) {
    Press(Cell(2));
    Move(Cell(5));
    m_grid.SetMultipleSelection(FALSE);
    EXPECT_EQ(m_grid.GetMouseMode(), xtpReportMouseNothing);
    Move(Cell(7));
    EXPECT_EQ(Selected().size(), 1U);
    Release(Cell(7));
    m_grid.SetMultipleSelection(TRUE);
    Press(Cell(2));
    m_grid.SetMultipleSelection(FALSE);
    Move(Cell(5));
    EXPECT_THAT(Selected(), ElementsAre(2)) << "nor does a press go on to become one";
    Release(Cell(5));
}

TEST_F(UserSelectionTest, ARightClickSelectsARowThatIsNotSelected) {
    Click(Cell(2));
    Click(Cell(4), MK_SHIFT);
    const CPoint inside = Cell(3), outside = Cell(7);
    m_grid.SendMessage(WM_RBUTTONDOWN, MK_RBUTTON, MAKELPARAM(inside.x, inside.y));
    EXPECT_THAT(Selected(), ElementsAre(2, 3, 4)) << "a menu for all of them";
    m_grid.SendMessage(WM_RBUTTONDOWN, MK_RBUTTON, MAKELPARAM(outside.x, outside.y));
    EXPECT_THAT(Selected(), ElementsAre(7));
}

TEST_F(UserSelectionTest, PressingBelowTheRowsKeepsTheSelection) {
    m_grid.ResetContent();
    AddRecords(3);
    Click(Cell(1));
    Click(CPoint(10, HeaderHeight() + 5 * RowHeight()));
    EXPECT_THAT(Selected(), ElementsAre(1));
}

// --- Dragging over rows ---------------------------------------------------------------------------------------------

TEST_F(UserSelectionTest, DraggingSelectsTheRowsPassedOver) {
    Press(Cell(2));
    EXPECT_EQ(m_grid.GetMouseMode(), xtpReportMouseNothing);
    Move(Cell(5));
    EXPECT_EQ(m_grid.GetMouseMode(), xtpReportMouseSelectingRows);
    EXPECT_THAT(Selected(), ElementsAre(2, 3, 4, 5));
    Move(Cell(1));
    EXPECT_THAT(Selected(), ElementsAre(1, 2));
    Release(Cell(1));
    EXPECT_EQ(m_grid.GetMouseMode(), xtpReportMouseNothing);
    EXPECT_NE(::GetCapture(), m_grid.m_hWnd);
    EXPECT_EQ(m_grid.selectionChanges, 2) << "once for the press, once for the drag";
    EXPECT_EQ(Item(1, 0)->clicks, 0);
}

TEST_F(UserSelectionTest, DraggingWithCtrlAddsToTheSelection) {
    Click(Cell(8));
    Press(Cell(2), MK_CONTROL);
    Move(Cell(4), MK_CONTROL | MK_LBUTTON);
    Release(Cell(4), MK_CONTROL);
    EXPECT_THAT(Selected(), ElementsAre(2, 3, 4, 8));
}

TEST_F(UserSelectionTest, DraggingWithCtrlFromASelectedRowTakesAway) {
    Click(Cell(2));
    Click(Cell(8), MK_SHIFT);
    Press(Cell(4), MK_CONTROL);
    Move(Cell(6), MK_CONTROL | MK_LBUTTON);
    Release(Cell(6), MK_CONTROL);
    EXPECT_THAT(Selected(), ElementsAre(2, 3, 7, 8));
}

TEST_F(UserSelectionTest, DraggingWithoutMultipleSelectionSelectsNothingMore) {
    m_grid.SetMultipleSelection(FALSE);
    Press(Cell(2));
    Move(Cell(5));
    Release(Cell(5));
    EXPECT_THAT(Selected(), ElementsAre(2));
}

TEST_F(UserSelectionTest, EscapeTakesTheDragBack) {
    Click(Cell(7));
    Press(Cell(2));
    Move(Cell(5));
    Key(VK_ESCAPE);
    EXPECT_THAT(Selected(), ElementsAre(2)) << "what the press selected";
    EXPECT_EQ(m_grid.GetMouseMode(), xtpReportMouseNothing);
    EXPECT_NE(::GetCapture(), m_grid.m_hWnd);
    Move(Cell(6));
    EXPECT_THAT(Selected(), ElementsAre(2));
}

TEST_F(UserSelectionTest, LosingTheCaptureEndsTheDrag) {
    Press(Cell(2));
    Move(Cell(5));
    m_owner.SetCapture();
    EXPECT_EQ(m_grid.GetMouseMode(), xtpReportMouseNothing);
    Move(Cell(8));
    EXPECT_THAT(Selected(), ElementsAre(2));
    ::ReleaseCapture();
}

TEST_F(UserSelectionTest, DraggingBeyondTheEdgeScrolls) {
    const CPoint below(20, m_grid.GetReportRectangle().bottom + 5);
    PutCursor(below);
    Press(Cell(8));
    Move(below);
    Pump(400);
    EXPECT_GT(m_grid.GetTopRowIndex(), 1);
    const std::vector<int> selected = Selected();
    ASSERT_FALSE(selected.empty());
    EXPECT_EQ(selected.front(), 8);
    EXPECT_EQ(selected.back(), m_grid.GetTopRowIndex() + VisibleRows - 1);
    const int top = m_grid.GetTopRowIndex();
    Release(below);
    Pump(200);
    EXPECT_EQ(m_grid.GetTopRowIndex(), top) << "scrolling ends with the drag";
}

// A derived control that drags something in a cell captures the mouse after our handler of the press, and moves the
// points into that cell.
TEST_F(UserSelectionTest, ADerivedControlsDragIsNotDisturbed) {
    Press(Cell(3, 1));
    m_grid.SetCapture();
    for (int x = 110; x < 170; x += 20)
        Move(CPoint(x, Cell(3).y));
    EXPECT_THAT(Selected(), ElementsAre(3));
    EXPECT_EQ(m_grid.GetMouseMode(), xtpReportMouseNothing);
    EXPECT_EQ(Item(3, 1)->moves.size(), 3U);
    Release(CPoint(150, Cell(3).y));
    ::ReleaseCapture();
    EXPECT_THAT(Selected(), ElementsAre(3));
    EXPECT_EQ(m_grid.selectionChanges, 1);
}

TEST_F(UserSelectionTest, AnItemThatTakesThePressKeepsTheRowFromBeingSelected) {
    Item(4, 0)->takesPress = true;
    Click(Cell(1));
    Press(Cell(4));
    Move(Cell(7));
    Release(Cell(7));
    EXPECT_THAT(Selected(), ElementsAre(1));
    EXPECT_EQ(Focused(), 1);
}

// --- Keyboard -------------------------------------------------------------------------------------------------------

TEST_F(UserSelectionTest, ArrowsMoveFocusAndSelection) {
    Key(VK_DOWN);
    EXPECT_THAT(Selected(), ElementsAre(0));
    Key(VK_DOWN);
    Key(VK_DOWN);
    Key(VK_UP);
    EXPECT_THAT(Selected(), ElementsAre(1));
    EXPECT_EQ(Focused(), 1);
    EXPECT_EQ(m_grid.selectionChanges, 4) << "once per key";
    Key(VK_UP);
    Key(VK_UP);
    EXPECT_EQ(Focused(), 0);
    EXPECT_EQ(m_grid.selectionChanges, 5) << "at the top the arrow changes nothing";
}

TEST_F(UserSelectionTest, PagesHomeAndEnd) {
    Click(Cell(0));
    Key(VK_NEXT);
    EXPECT_EQ(Focused(), VisibleRows - 1);
    Key(VK_NEXT);
    EXPECT_EQ(Focused(), 2 * (VisibleRows - 1));
    EXPECT_EQ(m_grid.GetTopRowIndex(), VisibleRows - 1);
    Key(VK_END);
    EXPECT_EQ(Focused(), 29);
    EXPECT_EQ(m_grid.GetTopRowIndex(), 20);
    Key(VK_PRIOR);
    EXPECT_EQ(Focused(), 20);
    Key(VK_PRIOR);
    EXPECT_EQ(Focused(), 11);
    Key(VK_HOME);
    EXPECT_EQ(Focused(), 0);
    EXPECT_EQ(m_grid.GetTopRowIndex(), 0);
}

TEST_F(UserSelectionTest, ShiftExtendsByKeyboard) {
    Click(Cell(4));
    {
        const KeysDown shift({VK_SHIFT});
        Key(VK_DOWN);
        Key(VK_DOWN);
        EXPECT_THAT(Selected(), ElementsAre(4, 5, 6));
        Key(VK_UP);
        Key(VK_UP);
        Key(VK_UP);
        EXPECT_THAT(Selected(), ElementsAre(3, 4));
        Key(VK_HOME);
        EXPECT_THAT(Selected(), ElementsAre(0, 1, 2, 3, 4));
    }
    Key(VK_DOWN);
    EXPECT_THAT(Selected(), ElementsAre(1));
}

TEST_F(UserSelectionTest, CtrlMovesTheFocusAlone) {
    Click(Cell(4));
    {
        const KeysDown ctrl({VK_CONTROL});
        Key(VK_DOWN);
        Key(VK_DOWN);
        EXPECT_EQ(Focused(), 6);
        EXPECT_THAT(Selected(), ElementsAre(4));
        Key(VK_SPACE);
        EXPECT_THAT(Selected(), ElementsAre(4, 6));
        Key(VK_SPACE);
        EXPECT_THAT(Selected(), ElementsAre(4));
    }
    Key(VK_SPACE);
    EXPECT_THAT(Selected(), ElementsAre(6));
}

TEST_F(UserSelectionTest, CtrlASelectsEverything) {
    const KeysDown ctrl({VK_CONTROL});
    Key('A');
    EXPECT_EQ(m_grid.GetSelectedRows()->GetCount(), 30);
    EXPECT_EQ(m_grid.selectionChanges, 1);
    m_grid.SetMultipleSelection(FALSE);
    const int count = m_grid.GetSelectedRows()->GetCount();
    Key('A');
    EXPECT_EQ(m_grid.GetSelectedRows()->GetCount(), count);
}

TEST_F(UserSelectionTest, TypingFindsTheRowThatBeginsWithIt) {
    for (const wchar_t letter : {L'a', L'1', L'2'})
        m_grid.SendMessage(WM_CHAR, letter, 1);
    EXPECT_EQ(Focused(), 12);
    EXPECT_THAT(Selected(), ElementsAre(12));
    m_grid.SendMessage(WM_CHAR, 'z', 1);
    EXPECT_EQ(Focused(), 12) << "nothing begins with that";
}

TEST_F(UserSelectionTest, DialogsLeaveArrowsAndCharactersToTheGrid) {
    const LRESULT code = m_grid.SendMessage(WM_GETDLGCODE);
    EXPECT_EQ(code & (DLGC_WANTARROWS | DLGC_WANTCHARS), DLGC_WANTARROWS | DLGC_WANTCHARS);
    EXPECT_EQ(code & DLGC_WANTALLKEYS, 0);
    Press(HeaderOf(0));
    EXPECT_NE(m_grid.SendMessage(WM_GETDLGCODE) & DLGC_WANTALLKEYS, 0) << "Escape belongs to the gesture";
    Key(VK_ESCAPE);
}

// --- By the host ----------------------------------------------------------------------------------------------------

TEST_F(UserSelectionTest, FocusingARowSelectsItAndBringsItIntoView) {
    m_grid.SetFocusedRow(m_grid.GetRows()->GetAt(20));
    EXPECT_THAT(Selected(), ElementsAre(20));
    EXPECT_EQ(m_grid.GetTopRowIndex(), 11);
    EXPECT_EQ(m_grid.selectionChanges, 1);
    m_grid.SetFocusedRow(m_grid.GetRows()->GetAt(2), FALSE);
    EXPECT_THAT(Selected(), ElementsAre(20));
    EXPECT_TRUE(m_grid.GetRows()->GetAt(2)->IsFocused());
    m_grid.SetFocusedRow(nullptr);
    EXPECT_EQ(Focused(), -1);
}

TEST_F(UserSelectionTest, SelectionAndFocusStayWithTheirRecordsWhenSorted) {
    Click(Cell(2));
    Click(Cell(3), MK_CONTROL);
    m_grid.GetColumns()->SetSortColumn(m_columns[0], FALSE);
    m_grid.Populate();
    EXPECT_EQ(m_grid.selectionChanges, 2) << "populating is not the user's doing";
    for (const int row : Selected())
        EXPECT_TRUE(Item(row, 0)->GetValue() == _T("A2") || Item(row, 0)->GetValue() == _T("A3"));
    EXPECT_EQ(m_grid.GetSelectedRows()->GetCount(), 2);
    EXPECT_EQ(Item(Focused(), 0)->GetValue(), _T("A3"));
}

TEST_F(UserSelectionTest, TheRowThatTakesARemovedOnesPlaceGetsTheFocus) {
    Click(Cell(5));
    m_grid.GetRecords()->RemoveAt(2);
    EXPECT_EQ(Focused(), 4);
    EXPECT_THAT(Selected(), ElementsAre(4));
    m_grid.GetRecords()->RemoveAt(4);
    EXPECT_EQ(Focused(), 4);
    EXPECT_THAT(Selected(), IsEmpty());
    m_grid.ResetContent();
    EXPECT_EQ(Focused(), -1);
}

} // namespace
