// Editing in a grid: what begins it and what ends it, where the editor stands, what the item and the owner hear.
#include "EditWindow.h"

#include <clocale>

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

// --- Begin ----------------------------------------------------------------------------------------------------------

TEST_F(EditTest, F2EditsTheFocusedCell) {
    m_grid.SetFocusedColumn(m_columns[1]);
    TypeKey(VK_F2);
    ASSERT_EQ(m_grid.GetActiveItem(), Item(2, 1));
    EXPECT_EQ(EditorText(), _T("B2"));
    EXPECT_EQ(::GetFocus(), Editor()->m_hWnd);
    int first = -1, last = -1;
    Editor()->GetSel(first, last);
    EXPECT_EQ(first, 0);
    EXPECT_EQ(last, 2) << "all of it is selected";
    EXPECT_EQ(Editor()->GetItem(), Item(2, 1));
    EXPECT_EQ(Editor()->GetRow(), m_grid.GetRows()->GetAt(2));
    EXPECT_EQ(Editor()->GetColumn(), m_columns[1]);
    EXPECT_EQ(Editor()->GetControl(), &m_grid);
    EXPECT_THAT(EditCodes(), ElementsAre(XTP_NM_REPORT_REQUESTEDIT));
}

TEST_F(EditTest, EnterEditsTheFocusedCell) {
    TypeKey(VK_RETURN);
    EXPECT_EQ(m_grid.GetActiveItem(), Item(2, 0));
    EXPECT_EQ(EditorText(), _T("A2"));
    EXPECT_EQ(m_owner.Count(NM_RETURN), 0);
}

TEST_F(EditTest, EnterFollowsALinkAlsoInACellThatCanBeEdited) {
    Item(2, 0)->AddHyperlink(new CXTPReportHyperlink(0, 0));
    TypeKey(VK_RETURN);
    EXPECT_FALSE(IsEditing());
    EXPECT_EQ(m_owner.Count(XTP_NM_REPORT_HYPERLINK), 1);
}

TEST_F(EditTest, ADoubleClickEditsTheCellUnderIt) {
    DoubleClick(Cell(4, 1));
    EXPECT_EQ(m_grid.GetActiveItem(), Item(4, 1));
    EXPECT_EQ(Item(4, 1)->doubleClicks, 1);
    EXPECT_EQ(m_owner.Count(NM_DBLCLK), 1);
    EXPECT_EQ(m_grid.GetFocusedRow()->GetIndex(), 4);
    EXPECT_EQ(m_grid.GetFocusedColumn(), m_columns[1]);
}

TEST_F(EditTest, TypingReplacesTheText) {
    Type(L"xy");
    ASSERT_EQ(m_grid.GetActiveItem(), Item(2, 0));
    EXPECT_EQ(EditorText(), _T("xy"));
    EXPECT_EQ(Editor()->GetStartText(), _T("A2"));
    TypeKey(VK_RETURN);
    EXPECT_EQ(Item(2, 0)->GetValue(), _T("xy"));
    EXPECT_EQ(m_grid.GetFocusedRow()->GetIndex(), 2) << "no row was looked for";
}

TEST_F(EditTest, LettersOfAnInputMethodFollowTheFirstOne) {
    // They come one after the other to the window that had the keyboard as the word was begun.
    for (const wchar_t letter : {L'\u6F22', L'\u5B57', L'\xD83D', L'\xDE00'})
        m_grid.SendMessage(WM_CHAR, letter, 1);
    EXPECT_EQ(EditorText(), _T("\u6F22\u5B57\xD83D\xDE00"));
}

TEST_F(EditTest, CtrlAndALetterDoNotEdit) {
    const KeysDown ctrl({VK_CONTROL});
    m_grid.SendMessage(WM_CHAR, 'x', 1);
    EXPECT_FALSE(IsEditing());
}

TEST_F(EditTest, AltGrAndALetterDo) {
    const KeysDown altGr({VK_CONTROL, VK_MENU});
    m_grid.SendMessage(WM_CHAR, '@', 1);
    EXPECT_EQ(EditorText(), _T("@"));
}

TEST_F(EditTest, SpaceStillSelects) {
    m_grid.SetFocusedRow(m_grid.GetRows()->GetAt(5), FALSE);
    TypeKey(VK_SPACE);
    EXPECT_FALSE(IsEditing());
    EXPECT_THAT(Selected(), ElementsAre(5));
}

class ForbiddenEditTest : public EditTest {
protected:
    void ExpectNothingEdits() {
        EditCodes();
        TypeKey(VK_F2);
        EXPECT_FALSE(IsEditing());
        TypeKey(VK_RETURN);
        EXPECT_FALSE(IsEditing());
        EXPECT_EQ(m_owner.Count(NM_RETURN), 1) << "the owner still hears of Enter";
        Type(L"A"); // finds the next row instead
        EXPECT_FALSE(IsEditing());
        EXPECT_EQ(m_grid.GetFocusedRow()->GetIndex(), 3);
        DoubleClick(Cell(3));
        EXPECT_FALSE(IsEditing());
        Edit(3);
        EXPECT_FALSE(IsEditing());
        EXPECT_THAT(EditCodes(), IsEmpty());
    }
};

TEST_F(ForbiddenEditTest, NothingIsEditedWhereTheControlDoesNotAllowIt) {
    m_grid.AllowEdit(FALSE);
    EXPECT_FALSE(m_grid.IsAllowEdit());
    ExpectNothingEdits();
    EXPECT_FALSE(CXTPReportControl().IsAllowEdit()) << "at first";
}

TEST_F(ForbiddenEditTest, NothingIsEditedWhereTheColumnDoesNotAllowIt) {
    EXPECT_TRUE(m_columns[0]->IsEditable()) << "at first";
    m_columns[0]->SetEditable(FALSE);
    ExpectNothingEdits();
}

TEST_F(ForbiddenEditTest, NothingIsEditedWhereTheItemDoesNotAllowIt) {
    EXPECT_TRUE(Item(2, 0)->IsEditable()) << "at first";
    Item(2, 0)->SetEditable(FALSE);
    Item(3, 0)->SetEditable(FALSE);
    ExpectNothingEdits();
}

TEST_F(EditTest, TheOwnerMayRefuse) {
    m_owner.refusesEdit = true;
    TypeKey(VK_F2);
    EXPECT_FALSE(IsEditing());
    ASSERT_EQ(m_owner.Count(XTP_NM_REPORT_REQUESTEDIT), 1);
    EXPECT_EQ(m_owner.notifications.back().item, Item(2, 0));
    EXPECT_EQ(m_owner.notifications.back().column, m_columns[0]);
    EXPECT_EQ(m_owner.notifications.back().rowIndex, 2);
    EXPECT_TRUE(HasGridFocus());
}

TEST_F(EditTest, ACellOutsideTheViewIsScrolledIntoItFirst) {
    AddRecords(30);
    Edit(35);
    ASSERT_TRUE(IsEditing());
    EXPECT_GT(m_grid.GetTopRowIndex(), 20);
    EXPECT_THAT(Selected(), ElementsAre(35));
    CRect rc;
    Editor()->GetWindowRect(&rc);
    m_grid.ScreenToClient(&rc);
    EXPECT_EQ(rc, m_grid.GetRows()->GetAt(35)->GetItemRect(Item(35, 0)));
}

// --- The editor's place and look ------------------------------------------------------------------------------------

/// Columns and lines of a rectangle in which there is a pixel of the colour, as a rectangle; coordinates of `window`.
CRect Inked(CWnd& window, const CRect& rc, COLORREF color) {
    CClientDC dc(&window);
    CRect rcInk(rc.right, rc.bottom, rc.left, rc.top);
    for (int y = rc.top; y < rc.bottom; ++y)
        for (int x = rc.left; x < rc.right; ++x)
            if (dc.GetPixel(x, y) == color)
                rcInk = CRect(std::min<int>(rcInk.left, x), std::min<int>(rcInk.top, y), std::max<int>(rcInk.right, x),
                              std::max<int>(rcInk.bottom, y));
    return rcInk;
}

class EditPlaceTest : public EditTest, public ::testing::WithParamInterface<int> {
protected:
    /// Where the letters of the text stand, told by the first dark pixels, in the control's client coordinates.
    CRect Letters(CWnd& window) {
        const CRect rcCell = m_grid.GetRows()->GetAt(2)->GetItemRect(Item(2, 0));
        CRect rcInside(rcCell);
        rcInside.DeflateRect(2, 2);
        m_grid.MapWindowPoints(&window, &rcInside);
        CRect rcInk = Inked(window, rcInside, RGB(0, 0, 0));
        window.MapWindowPoints(&m_grid, &rcInk);
        return rcInk;
    }
};

TEST_P(EditPlaceTest, TheLettersStayWhereTheCellHasThem) {
    m_grid.SetTheme(xtpReportThemeWindows7, TRUE); // black on white, selected on light blue
    m_columns[0]->SetAlignment(GetParam());
    Item(2, 0)->SetValue(_T("HEH"));
    m_grid.GetSelectedRows()->Clear();
    m_grid.RedrawControl();
    m_grid.UpdateWindow();
    const CRect inCell = Letters(m_grid);
    ASSERT_GT(inCell.Width(), 8);
    TypeKey(VK_F2);
    Editor()->SetSel(3, 3);
    Editor()->UpdateWindow();
    ::HideCaret(nullptr);
    EXPECT_EQ(Letters(*Editor()), inCell)
        << "left " << inCell.left << " top " << inCell.top << " right " << inCell.right;
}

INSTANTIATE_TEST_SUITE_P(Alignments, EditPlaceTest, ::testing::Values(DT_LEFT, DT_CENTER, DT_RIGHT));

TEST_F(EditTest, TheEditorCoversTheCellWithAFrameAndTheCellsFont) {
    Item(2, 0)->SetBold();
    TypeKey(VK_F2);
    CRect rc;
    Editor()->GetWindowRect(&rc);
    m_grid.ScreenToClient(&rc);
    EXPECT_EQ(rc, m_grid.GetRows()->GetAt(2)->GetItemRect(Item(2, 0)));
    LOGFONT font = {};
    Editor()->GetFont()->GetLogFont(&font);
    EXPECT_EQ(font.lfWeight, FW_BOLD);
    Editor()->UpdateWindow();
    CWindowDC dc(Editor());
    const COLORREF frame = dc.GetPixel(0, 0);
    EXPECT_EQ(frame, COLORREF(m_grid.GetPaintManager()->m_clrWindowText)) << "without a frame colour in the theme";
    EXPECT_EQ(dc.GetPixel(rc.Width() - 1, rc.Height() - 1), frame);
    EXPECT_EQ(dc.GetPixel(rc.Width() / 2, 1), COLORREF(m_grid.GetPaintManager()->m_clrWindow));
}

TEST_F(EditTest, RowsAreNotDrawnOverTheEditor) {
    TypeKey(VK_F2);
    Editor()->UpdateWindow();
    CWindowDC dc(Editor());
    const COLORREF frame = dc.GetPixel(0, 0);
    m_grid.RedrawControl();
    EXPECT_FALSE(::GetUpdateRect(Editor()->m_hWnd, nullptr, FALSE)) << "nor has it to be drawn again";
    m_grid.UpdateWindow();
    EXPECT_EQ(dc.GetPixel(0, 0), frame);
}

// --- End ------------------------------------------------------------------------------------------------------------

TEST_F(EditTest, EnterGivesTheTextToTheItem) {
    TypeKey(VK_F2);
    Type(L"new");
    EditCodes();
    m_owner.onNotify = [this](UINT code) {
        if (code == XTP_NM_REPORT_VALUECHANGED) {
            EXPECT_EQ(Item(2, 0)->GetValue(), _T("new")) << "when the owner hears of it, it is there";
        }
    };
    TypeKey(VK_RETURN);
    EXPECT_FALSE(IsEditing());
    EXPECT_EQ(Item(2, 0)->GetValue(), _T("new"));
    EXPECT_EQ(m_owner.notifications.back().item, Item(2, 0));
    EXPECT_EQ(m_owner.notifications.back().rowIndex, 2);
    EXPECT_EQ(m_owner.notifications.back().column, m_columns[0]);
    EXPECT_THAT(EditCodes(), ElementsAre(XTP_NM_REPORT_VALUECHANGED));
    EXPECT_TRUE(HasGridFocus()) << "typing goes on there";
    EXPECT_EQ(Editor()->m_hWnd, nullptr);
    EXPECT_EQ(m_grid.GetFocusedRow()->GetIndex(), 2);
}

TEST_F(EditTest, EscapeLeavesTheItemAsItWas) {
    TypeKey(VK_F2);
    Type(L"new");
    TypeKey(VK_ESCAPE);
    EXPECT_FALSE(IsEditing());
    EXPECT_EQ(Item(2, 0)->GetValue(), _T("A2"));
    EXPECT_THAT(EditCodes(), ElementsAre(XTP_NM_REPORT_REQUESTEDIT, XTP_NM_REPORT_EDITCANCELED));
    EXPECT_TRUE(HasGridFocus());
    TypeKey(VK_F2);
    EXPECT_TRUE(IsEditing()) << "and the keys still work";
}

TEST_F(EditTest, TheSameTextIsNoChange) {
    TypeKey(VK_F2);
    TypeKey(VK_RETURN);
    EXPECT_THAT(EditCodes(), ElementsAre(XTP_NM_REPORT_REQUESTEDIT, XTP_NM_REPORT_EDITCANCELED));
}

TEST_F(EditTest, AnEmptyTextIsATextLikeAnyOther) {
    TypeKey(VK_F2);
    TypeKey(VK_DELETE);
    TypeKey(VK_RETURN);
    EXPECT_EQ(Item(2, 0)->GetValue(), _T(""));
    EXPECT_THAT(EditCodes(), ElementsAre(XTP_NM_REPORT_REQUESTEDIT, XTP_NM_REPORT_VALUECHANGED));
}

TEST_F(EditTest, UpAndDownTakeTheTextAndMove) {
    TypeKey(VK_F2);
    Type(L"one");
    TypeKey(VK_DOWN);
    EXPECT_FALSE(IsEditing());
    EXPECT_EQ(Item(2, 0)->GetValue(), _T("one"));
    EXPECT_THAT(Selected(), ElementsAre(3));
    TypeKey(VK_F2);
    Type(L"two");
    TypeKey(VK_UP);
    EXPECT_EQ(Item(3, 0)->GetValue(), _T("two"));
    EXPECT_THAT(Selected(), ElementsAre(2));
}

TEST_F(EditTest, LeftAndRightMoveInTheText) {
    TypeKey(VK_F2);
    TypeKey(VK_HOME);
    TypeKey(VK_RIGHT);
    TypeKey(VK_RIGHT);
    TypeKey(VK_LEFT);
    Type(L"-");
    EXPECT_EQ(EditorText(), _T("A-2"));
}

TEST_F(EditTest, TabEditsTheNextCellThatCanBeEdited) {
    m_columns[1]->SetEditable(FALSE);
    TypeKey(VK_F2);
    Type(L"one");
    TypeKey(VK_TAB);
    EXPECT_EQ(Item(2, 0)->GetValue(), _T("one"));
    ASSERT_EQ(m_grid.GetActiveItem(), Item(2, 2));
    EXPECT_EQ(m_grid.GetFocusedColumn(), m_columns[2]);
    TypeKey(VK_TAB);
    ASSERT_EQ(m_grid.GetActiveItem(), Item(3, 0)) << "in the next row";
    EXPECT_THAT(Selected(), ElementsAre(3));
    const KeysDown shift({VK_SHIFT});
    TypeKey(VK_TAB);
    EXPECT_EQ(m_grid.GetActiveItem(), Item(2, 2)) << "and back";
    EXPECT_EQ(Item(2, 2)->GetValue(), _T("C2"));
}

TEST_F(EditTest, TabInTheLastCellEndsTheEditing) {
    Edit(11, 2);
    Type(L"last");
    TypeKey(VK_TAB);
    EXPECT_FALSE(IsEditing());
    EXPECT_EQ(Item(11, 2)->GetValue(), _T("last"));
    EXPECT_TRUE(HasGridFocus());
}

TEST_F(EditTest, TabInTheGridEditsTheNextCell) {
    m_grid.SetFocusedColumn(m_columns[0]);
    TypeKey(VK_TAB);
    EXPECT_EQ(m_grid.GetActiveItem(), Item(2, 1));
    m_grid.AllowEdit(FALSE);
    TypeKey(VK_TAB);
    EXPECT_FALSE(IsEditing());
}

TEST_F(EditTest, APressElsewhereTakesTheTextAndSelects) {
    TypeKey(VK_F2);
    Type(L"new");
    Click(Cell(5, 1));
    EXPECT_FALSE(IsEditing());
    EXPECT_EQ(Item(2, 0)->GetValue(), _T("new"));
    EXPECT_THAT(Selected(), ElementsAre(5));
}

TEST_F(EditTest, APressWithShiftLosesNothing) {
    TypeKey(VK_F2);
    Type(L"new");
    Click(Cell(5, 1), MK_SHIFT);
    EXPECT_EQ(Item(2, 0)->GetValue(), _T("new"));
    EXPECT_THAT(Selected(), ElementsAre(2, 3, 4, 5));
}

TEST_F(EditTest, APressOfTheHeaderTakesTheText) {
    TypeKey(VK_F2);
    Type(L"new");
    Press(HeaderOf(1));
    EXPECT_FALSE(IsEditing());
    EXPECT_EQ(Item(2, 0)->GetValue(), _T("new"));
    Release(HeaderOf(1));
}

TEST_F(EditTest, TheLossOfTheFocusTakesTheText) {
    TypeKey(VK_F2);
    Type(L"new");
    m_owner.SetFocus();
    EXPECT_FALSE(IsEditing());
    EXPECT_EQ(Item(2, 0)->GetValue(), _T("new"));
    EXPECT_EQ(::GetFocus(), m_owner.m_hWnd) << "and nobody takes it back";
}

TEST_F(EditTest, ScrollingTakesTheText) {
    AddRecords(30);
    const std::function<void()> scrolls[] = {
        [this] { Wheel(-WHEEL_DELTA); },
        [this] { m_grid.SendMessage(WM_VSCROLL, SB_LINEDOWN, 0); },
        [this] { m_grid.SetTopRow(0); },
        [this] { m_grid.SendMessage(WM_HSCROLL, SB_LINERIGHT, 0); },
        [this] { m_grid.SetLeftOffset(0); },
        [this] { m_grid.SetFocusedRow(m_grid.GetRows()->GetAt(30)); },
        [this] { m_grid.SetFocusedColumn(m_columns[2]); },
    };
    int count = 0;
    for (const auto& scroll : scrolls) {
        CString text;
        text.Format(_T("text %d"), ++count);
        Edit(4);
        Editor()->ReplaceSel(text);
        scroll();
        EXPECT_FALSE(IsEditing()) << count;
        EXPECT_EQ(Item(4, 0)->GetValue(), text);
    }
}

TEST_F(EditTest, AnotherCellIsEditedAfterTheFirstHasTakenItsText) {
    Edit(2);
    Type(L"one");
    Edit(4, 1);
    EXPECT_EQ(Item(2, 0)->GetValue(), _T("one"));
    EXPECT_EQ(m_grid.GetActiveItem(), Item(4, 1));
    EXPECT_EQ(EditorText(), _T("B4"));
}

TEST_F(EditTest, TheHostEndsTheEditingEitherWay) {
    Edit(2);
    Type(L"one");
    m_grid.EditItem(nullptr);
    EXPECT_FALSE(IsEditing());
    EXPECT_EQ(Item(2, 0)->GetValue(), _T("one"));
    Edit(2);
    Type(L"two");
    Editor()->EndEdit(FALSE);
    EXPECT_FALSE(IsEditing());
    EXPECT_EQ(Item(2, 0)->GetValue(), _T("one"));
}

TEST_F(EditTest, ATextThatTheHostPutsInIsThatOfTheBeginning) {
    Edit(2);
    Editor()->SetWindowText(_T("other"));
    EXPECT_EQ(Editor()->GetStartText(), _T("other"));
    EditCodes();
    TypeKey(VK_RETURN);
    EXPECT_EQ(Item(2, 0)->GetValue(), _T("A2"));
    EXPECT_THAT(EditCodes(), ElementsAre(XTP_NM_REPORT_EDITCANCELED));
}

TEST_F(EditTest, AcceleratorsOfTheFrameLeaveTheEditorItsKeys) {
    Edit(2);
    for (const UINT key : {UINT(VK_RETURN), UINT(VK_ESCAPE), UINT(VK_DELETE), UINT('A')}) {
        MSG message = {Editor()->m_hWnd, WM_KEYUP, key, LPARAM(0xC0000001), 0, {}};
        EXPECT_TRUE(Editor()->PreTranslateMessage(&message)) << key;
    }
    MSG help = {Editor()->m_hWnd, WM_KEYDOWN, VK_F1, 1, 0, {}};
    EXPECT_FALSE(Editor()->PreTranslateMessage(&help));
    const KeysDown ctrl({VK_CONTROL});
    MSG copy = {Editor()->m_hWnd, WM_KEYUP, 'C', LPARAM(0xC0000001), 0, {}};
    EXPECT_TRUE(Editor()->PreTranslateMessage(&copy));
    MSG open = {Editor()->m_hWnd, WM_KEYDOWN, 'O', 1, 0, {}};
    EXPECT_FALSE(Editor()->PreTranslateMessage(&open)) << "a command of the frame";
    EXPECT_NE(Editor()->SendMessage(WM_GETDLGCODE) & DLGC_WANTALLKEYS, 0);
}

TEST_F(EditTest, CtrlASelectsTheText) {
    Edit(2);
    Editor()->SetSel(1, 1);
    const KeysDown ctrl({VK_CONTROL});
    Editor()->SendMessage(WM_KEYDOWN, 'A', 1);
    Editor()->SendMessage(WM_CHAR, 1, 1);
    int first = -1, last = -1;
    Editor()->GetSel(first, last);
    EXPECT_EQ(first, 0);
    EXPECT_EQ(last, 2);
    EXPECT_EQ(EditorText(), _T("A2"));
}

// --- What the items take --------------------------------------------------------------------------------------------

class NumberEditTest : public EditTest {
protected:
    NumberEditTest() {
        auto* const record = new CXTPReportRecord;
        m_number = new CXTPReportRecordItemNumber(1.5, _T("%g"));
        record->AddItem(m_number);
        m_grid.AddRecord(record);
        m_grid.Populate();
    }
    double Typed(const wchar_t* text) {
        m_number->SetValue(1.5);
        Edit(12);
        Editor()->ReplaceSel(text);
        TypeKey(VK_RETURN);
        return m_number->GetValue();
    }
    CXTPReportRecordItemNumber* m_number;
};

TEST_F(NumberEditTest, ANumberTakesBothSeparators) {
    EXPECT_EQ(Typed(L"2.25"), 2.25);
    EXPECT_EQ(Typed(L"2,25"), 2.25);
    EXPECT_EQ(Typed(L"  -1e3 "), -1000.0);
}

TEST_F(NumberEditTest, ANumberStaysAsItIsWhenTheTextIsNone) {
    for (const wchar_t* text : {L"", L"abc", L"1.2.3", L"1 2", L"inf", L"nan", L"1e999", L"12x"})
        EXPECT_EQ(Typed(text), 1.5) << CString(text).GetString();
}

TEST_F(NumberEditTest, BothSeparatorsAreTakenWithADecimalCommaInTheLocale) {
    const std::string former = std::setlocale(LC_NUMERIC, nullptr);
    if (!std::setlocale(LC_NUMERIC, "German") && !std::setlocale(LC_NUMERIC, "de-DE"))
        GTEST_SKIP() << "no locale with a decimal comma here";
    EXPECT_EQ(Typed(L"2.25"), 2.25);
    EXPECT_EQ(Typed(L"2,25"), 2.25);
    std::setlocale(LC_NUMERIC, former.c_str());
}

TEST_F(NumberEditTest, AnExplicitCaptionGivesWayToWhatWasTyped) {
    m_number->SetCaption(_T("none"));
    EXPECT_EQ(Typed(L"3"), 3.0);
    EXPECT_EQ(m_number->GetCaption(m_columns[0]), _T("3"));
    Item(2, 0)->SetCaption(_T("caption"));
    Edit(2);
    EXPECT_EQ(EditorText(), _T("caption")) << "what the cell shows";
    Type(L"text");
    TypeKey(VK_RETURN);
    EXPECT_EQ(Item(2, 0)->GetCaption(m_columns[0]), _T("text"));
}

} // namespace
