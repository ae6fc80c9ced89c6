// The header of a report control in the user's hands: sort, resize, best fit, move, menus.
#include "GridWindow.h"

namespace {

using ::testing::ElementsAre;

class HeaderTest : public GridTest {
protected:
    HeaderTest() {
        for (const wchar_t* texts : {L"b2x", L"a1y", L"b1z", L"a2w"}) {
            auto* record = new CXTPReportRecord;
            for (int i = 0; i < 3; ++i)
                record->AddItem(new ProbeItem(CString(texts[i])));
            m_grid.AddRecord(record);
        }
        m_grid.Populate();
        Settle();
    }
    std::vector<std::wstring> Rows() const {
        std::vector<std::wstring> rows;
        for (int i = 0; i < m_grid.GetRows()->GetCount(); ++i) {
            const CString text = Item(i, 0)->GetValue() + Item(i, 1)->GetValue() + Item(i, 2)->GetValue();
            rows.emplace_back(text.GetString());
        }
        return rows;
    }
    std::vector<std::wstring> Order() const {
        std::vector<std::wstring> names;
        for (int i = 0; i < m_grid.GetColumns()->GetCount(); ++i)
            names.emplace_back(m_grid.GetColumns()->GetAt(i)->GetCaption().GetString());
        return names;
    }
    void Drag(CPoint from, CPoint to) {
        Press(from);
        Move(CPoint(from.x + (to.x > from.x ? 10 : -10), from.y));
        Move(to);
    }
};

// --- Sorting --------------------------------------------------------------------------------------------------------

TEST_F(HeaderTest, AClickSortsAndTheNextOneTurnsRound) {
    Click(HeaderOf(2));
    EXPECT_THAT(Rows(), ElementsAre(L"a2w", L"b2x", L"a1y", L"b1z"));
    EXPECT_TRUE(m_columns[2]->IsSortedIncreasing());
    Click(HeaderOf(2));
    EXPECT_THAT(Rows(), ElementsAre(L"b1z", L"a1y", L"b2x", L"a2w"));
    EXPECT_TRUE(m_columns[2]->IsSortedDecreasing());
    EXPECT_EQ(m_owner.Count(XTP_NM_REPORT_SORTORDERCHANGED), 2);
}

TEST_F(HeaderTest, AClickOnAnotherColumnReplacesTheOrder) {
    Click(HeaderOf(2));
    Click(HeaderOf(0));
    EXPECT_FALSE(m_columns[2]->IsSorted());
    EXPECT_THAT(Rows(), ElementsAre(L"a1y", L"a2w", L"b2x", L"b1z")) << "equal ones stay in the records' order";
}

class AddKeyTest : public HeaderTest, public ::testing::WithParamInterface<int> {};

TEST_P(AddKeyTest, ShiftAndCtrlAddASortKey) {
    Click(HeaderOf(0));
    {
        const KeysDown key({GetParam()});
        Click(HeaderOf(1));
    }
    EXPECT_THAT(Rows(), ElementsAre(L"a1y", L"a2w", L"b1z", L"b2x"));
    {
        const KeysDown key({GetParam()});
        Click(HeaderOf(1));
    }
    EXPECT_THAT(Rows(), ElementsAre(L"a2w", L"a1y", L"b2x", L"b1z"));
    EXPECT_EQ(m_grid.GetColumns()->GetSortOrder()->GetCount(), 2);
    Click(HeaderOf(1));
    EXPECT_EQ(m_grid.GetColumns()->GetSortOrder()->GetCount(), 1);
}

INSTANTIATE_TEST_SUITE_P(Keys, AddKeyTest, ::testing::Values(VK_SHIFT, VK_CONTROL));

TEST_F(HeaderTest, RowsThatAreEqualInEveryKeyStayInTheRecordsOrder) {
    for (int i = 0; i < 40; ++i) {
        auto* record = new CXTPReportRecord;
        CString text;
        text.Format(_T("%c"), L'a' + i % 2);
        record->AddItem(new ProbeItem(text));
        text.Format(_T("%d"), i % 3);
        record->AddItem(new ProbeItem(text));
        text.Format(_T("%02d"), i);
        record->AddItem(new ProbeItem(text));
        m_grid.AddRecord(record);
    }
    m_header->Sort(m_columns[0], FALSE);
    m_header->Sort(m_columns[1], TRUE);
    m_header->Sort(m_columns[0], TRUE); // turns it round and keeps its rank
    EXPECT_EQ(m_columns[0]->GetSortRank(), 1);
    EXPECT_EQ(m_columns[1]->GetSortRank(), 2);
    EXPECT_EQ(m_columns[2]->GetSortRank(), 0);
    for (int i = 1; i < m_grid.GetRows()->GetCount(); ++i) {
        const int first = Item(i - 1, 0)->GetValue().Compare(Item(i, 0)->GetValue());
        const int second = Item(i - 1, 1)->GetValue().Compare(Item(i, 1)->GetValue());
        ASSERT_GE(first, 0) << i;
        ASSERT_TRUE(first > 0 || second <= 0) << i;
        const bool isOlder = m_grid.GetRows()->GetAt(i - 1)->GetRecord()->GetIndex() <
                             m_grid.GetRows()->GetAt(i)->GetRecord()->GetIndex();
        ASSERT_TRUE(first > 0 || second < 0 || isOlder) << i;
    }
}

class RankTest : public HeaderTest, public ::testing::WithParamInterface<int> {};

TEST_P(RankTest, SeveralKeysShowTheirRank) {
    CXTPReportPaintManager& look = *m_grid.GetPaintManager();
    look.SetColumnStyle(static_cast<XTPReportColumnStyle>(GetParam()));
    for (int i = 0; i < 2; ++i) {
        m_columns[i]->SetCaption(_T(""));
        m_columns[i]->SetWidth(90);
    }
    const COLORREF text = RGB(1, 2, 3);
    look.m_clrHeaderText = text;
    UsePlainLetters();
    m_columns[2]->SetVisible(FALSE);
    m_header->Sort(m_columns[0], FALSE);
    EXPECT_EQ(Printed()->Count(text), 0) << "one key needs no rank";
    EXPECT_EQ(look.GetSortMarkSpace(m_columns[0]), look.GetSortArrowSpace());
    EXPECT_EQ(look.GetSortMarkSpace(m_columns[1]), 0);
    m_header->Sort(m_columns[1], TRUE);
    const auto picture = Printed();
    const int right = 90 - look.GetCellPadding() - 1;
    for (const int column : {0, 1}) {
        int count = 0;
        for (int y = 0; y < HeaderHeight(); ++y) {
            for (int x = 90 * column; x < 90 * column + 90; ++x) {
                if (picture->At(x, y) != text)
                    continue;
                ++count;
                EXPECT_GE(x, 90 * column + right - look.GetSortMarkSpace(m_columns[column])) << column;
                EXPECT_LT(x, 90 * column + right) << column;
            }
        }
        EXPECT_GT(count, 3) << "a digit";
    }
    int different = 0;
    for (int y = 0; y < HeaderHeight() - 3; ++y) {
        for (int x = 3; x < 87; ++x)
            different += (picture->At(x, y) == text) != (picture->At(x + 90, y) == text);
    }
    EXPECT_GT(different, 2) << "another digit";
    m_columns[0]->SetCaption(_T("Caption"));
    m_header->BestFit(m_columns[0]);
    EXPECT_EQ(m_columns[0]->GetWidth(),
              look.GetTextWidth(_T("Caption")) + look.GetSortMarkSpace(m_columns[0]) + 2 * look.GetCellPadding() + 1);
}

INSTANTIATE_TEST_SUITE_P(Styles, RankTest, ::testing::Range(0, 5));

TEST_F(HeaderTest, TheTipTellsTheRank) {
    const auto tip = [this](int column) {
        TOOLINFO tool = {};
        tool.cbSize = sizeof(tool);
        if (m_grid.OnToolHitTest(HeaderOf(column), &tool) == -1)
            return std::wstring(L"(none)");
        const std::wstring text = tool.lpszText;
        std::free(tool.lpszText);
        return text;
    };
    m_header->Sort(m_columns[1], FALSE);
    EXPECT_EQ(tip(1), L"(none)");
    m_header->Sort(m_columns[0], TRUE);
    EXPECT_EQ(tip(1), L"B\r\nSort order: 1 of 2");
    EXPECT_EQ(tip(0), L"A\r\nSort order: 2 of 2");
    EXPECT_EQ(tip(2), L"(none)");
    m_columns[0]->SetTooltip(_T("the first"));
    EXPECT_EQ(tip(0), L"the first\r\nSort order: 2 of 2");
}

TEST_F(HeaderTest, ColumnsThatAreNotSortableStay) {
    m_columns[0]->SetSortable(FALSE);
    Click(HeaderOf(0));
    EXPECT_FALSE(m_columns[0]->IsSorted());
    m_header->AllowColumnSort(FALSE);
    Click(HeaderOf(1));
    EXPECT_FALSE(m_columns[1]->IsSorted());
    EXPECT_EQ(m_owner.Count(XTP_NM_REPORT_SORTORDERCHANGED), 0);
}

TEST_F(HeaderTest, APressThatIsReleasedElsewhereSortsNothing) {
    m_header->AllowColumnReorder(FALSE);
    Press(HeaderOf(0));
    EXPECT_EQ(m_header->GetPressedColumn(), m_columns[0]);
    Move(HeaderOf(1));
    Release(HeaderOf(1));
    EXPECT_FALSE(m_columns[0]->IsSorted());
    EXPECT_FALSE(m_columns[1]->IsSorted());
    EXPECT_EQ(m_header->GetPressedColumn(), nullptr);
}

TEST_F(HeaderTest, TwoQuickClicksTurnTwice) {
    DoubleClick(HeaderOf(0));
    EXPECT_TRUE(m_columns[0]->IsSortedDecreasing());
    EXPECT_EQ(m_owner.Count(XTP_NM_REPORT_SORTORDERCHANGED), 2);
}

// --- Resizing -------------------------------------------------------------------------------------------------------

TEST_F(HeaderTest, DraggingTheDividerResizesWhileTheMouseMoves) {
    Press(DividerOf(0));
    EXPECT_EQ(m_grid.GetMouseMode(), xtpReportMouseColumnResize);
    Move(CPoint(130, 5));
    EXPECT_EQ(m_columns[0]->GetWidth(), 130);
    EXPECT_EQ(m_columns[1]->GetRect().left, 130);
    Move(CPoint(85, 5));
    EXPECT_EQ(m_columns[0]->GetWidth(), 85);
    EXPECT_EQ(m_owner.Count(XTP_NM_REPORT_COLUMNWIDTHCHANGED), 0);
    Release(CPoint(85, 5));
    EXPECT_EQ(m_owner.Count(XTP_NM_REPORT_COLUMNWIDTHCHANGED), 1);
    EXPECT_EQ(m_grid.GetMouseMode(), xtpReportMouseNothing);
    EXPECT_NE(::GetCapture(), m_grid.m_hWnd);
}

TEST_F(HeaderTest, TheWidthFollowsThePlaceOfThePress) {
    Press(CPoint(97, 5));
    Move(CPoint(107, 5));
    Release(CPoint(107, 5));
    EXPECT_EQ(m_columns[0]->GetWidth(), 110);
}

TEST_F(HeaderTest, LimitsOfTheWidthAreKeptWithoutLosingThePointer) {
    m_columns[0]->SetMinWidth(60);
    m_columns[0]->SetMaxWidth(120);
    Press(DividerOf(0));
    Move(CPoint(10, 5));
    EXPECT_EQ(m_columns[0]->GetWidth(), 60);
    Move(CPoint(250, 5));
    EXPECT_EQ(m_columns[0]->GetWidth(), 120);
    Move(CPoint(110, 5));
    EXPECT_EQ(m_columns[0]->GetWidth(), 110);
    Release(CPoint(110, 5));
}

TEST_F(HeaderTest, EscapeGivesTheWidthBack) {
    Press(DividerOf(1));
    Move(CPoint(250, 5));
    Key(VK_ESCAPE);
    EXPECT_EQ(m_columns[1]->GetWidth(), 80);
    EXPECT_EQ(m_grid.GetMouseMode(), xtpReportMouseNothing);
    Move(CPoint(260, 5));
    Release(CPoint(260, 5));
    EXPECT_EQ(m_columns[1]->GetWidth(), 80);
    EXPECT_EQ(m_owner.Count(XTP_NM_REPORT_COLUMNWIDTHCHANGED), 0);
}

TEST_F(HeaderTest, LosingTheCaptureGivesTheWidthBack) {
    Press(DividerOf(1));
    Move(CPoint(250, 5));
    m_owner.SetCapture();
    EXPECT_EQ(m_columns[1]->GetWidth(), 80);
    ::ReleaseCapture();
    Press(DividerOf(1));
    Move(CPoint(250, 5));
    m_grid.SendMessage(WM_CANCELMODE);
    EXPECT_EQ(m_columns[1]->GetWidth(), 80);
    EXPECT_NE(::GetCapture(), m_grid.m_hWnd);
}

TEST_F(HeaderTest, HoveringADividerIsAMouseMode) {
    Move(DividerOf(0), 0);
    EXPECT_EQ(m_grid.GetMouseMode(), xtpReportMouseOverColumnDivide);
    EXPECT_EQ(m_header->GetHotColumn(), nullptr);
    Move(HeaderOf(0), 0);
    EXPECT_EQ(m_grid.GetMouseMode(), xtpReportMouseNothing);
    EXPECT_EQ(m_header->GetHotColumn(), m_columns[0]);
    Move(DividerOf(0), 0);
    Move(Cell(0), 0);
    EXPECT_EQ(m_grid.GetMouseMode(), xtpReportMouseNothing);
}

// --- Best fit -------------------------------------------------------------------------------------------------------

TEST_F(HeaderTest, ADoubleClickOnTheDividerFitsTheColumn) {
    const CXTPReportPaintManager* look = m_grid.GetPaintManager();
    Item(1, 0)->SetValue(_T("a rather long text that sets the width"));
    const int expected =
        look->GetTextWidth(_T("a rather long text that sets the width")) + 2 * look->GetCellPadding() + 1;
    DoubleClick(DividerOf(0));
    EXPECT_EQ(m_columns[0]->GetWidth(), expected);
    EXPECT_EQ(m_owner.Count(XTP_NM_REPORT_COLUMNWIDTHCHANGED), 1);
    const auto picture = Printed();
    m_columns[0]->SetWidth(expected + 50);
    const auto wider = Printed();
    const CRect rc = m_grid.GetRows()->GetAt(1)->GetRect();
    for (int y = rc.top; y < rc.bottom; ++y) {
        for (int x = 0; x < expected - 1; ++x)
            ASSERT_EQ(picture->At(x, y), wider->At(x, y)) << "no ellipsis at " << x << "," << y;
    }
}

TEST_F(HeaderTest, TheCaptionAndItsArrowFitAsWell) {
    const CXTPReportPaintManager* look = m_grid.GetPaintManager();
    m_columns[1]->SetCaption(_T("A caption that is wide"));
    const int caption = look->GetTextWidth(_T("A caption that is wide")) + 2 * look->GetCellPadding() + 1;
    m_header->BestFit(m_columns[1]);
    EXPECT_EQ(m_columns[1]->GetWidth(), caption);
    Click(HeaderOf(1));
    m_header->BestFit(m_columns[1]);
    EXPECT_EQ(m_columns[1]->GetWidth(), caption + look->GetSortArrowSpace());
}

TEST_F(HeaderTest, BestFitLooksAtTheRowsInViewAndKeepsTheLimits) {
    m_grid.ResetContent();
    AddRecords(100);
    Item(90, 0)->SetValue(_T("a text that is very much longer than all the others"));
    m_header->BestFit(m_columns[0]);
    const int narrow = m_columns[0]->GetWidth();
    m_grid.SetTopRow(85);
    m_header->BestFit(m_columns[0]);
    EXPECT_GT(m_columns[0]->GetWidth(), narrow + 100);
    m_columns[0]->SetMaxWidth(150);
    m_header->BestFit(m_columns[0]);
    EXPECT_EQ(m_columns[0]->GetWidth(), 150);
}

/// A cell whose text takes its time.
class SlowItem : public CXTPReportRecordItemText {
public:
    explicit SlowItem(int& asked) : m_asked(asked) {}
    CString GetCaption(CXTPReportColumn*) override {
        ++m_asked;
        ::Sleep(15);
        return L"a text that is wider than its column";
    }

private:
    int& m_asked;
};

TEST_F(HeaderTest, BestFitDoesNotWaitForManySlowTexts) {
    int asked = 0;
    m_grid.ResetContent();
    for (int row = 0; row < VisibleRows; ++row) {
        auto* const record = new CXTPReportRecord;
        for (int column = 0; column < 3; ++column)
            record->AddItem(new SlowItem(asked));
        m_grid.AddRecord(record);
    }
    m_grid.SendMessage(WM_SETREDRAW, FALSE);
    m_grid.Populate();
    asked = 0;
    m_header->BestFit(m_columns[0]);
    EXPECT_GE(asked, 1);
    EXPECT_LE(asked, 3) << "40 ms are over then";
    const int wide = m_columns[0]->GetWidth();
    EXPECT_GT(wide, 150);

    asked = 0;
    m_header->BestFitAll();
    EXPECT_GE(asked, 3) << "one cell of each column at least";
    EXPECT_LE(asked, 5);
    for (const CXTPReportColumn* column : m_columns)
        EXPECT_EQ(column->GetWidth(), wide);
}

/// A cell that draws something else than a text.
class PictureItem : public CXTPReportRecordItem {
public:
    void OnDrawCaption(XTP_REPORTRECORDITEM_DRAWARGS* args, XTP_REPORTRECORDITEM_METRICS*) override {
        rect = args->rcItem;
        args->pDC->FillSolidRect(rect.CenterPoint().x, rect.CenterPoint().y, 1, 1, RGB(255, 0, 0));
    }
    CRect rect;
};

/// A cell of a kind of its own that shows a text.
class OwnTextItem : public CXTPReportRecordItemText {};

TEST_F(HeaderTest, BestFitKeepsTheWidthForPictures) {
    m_grid.ResetContent();
    const auto add = [this](CXTPReportRecordItem* item) {
        auto* const record = new CXTPReportRecord;
        record->AddItem(item);
        m_grid.AddRecord(record);
        m_grid.Populate();
        m_header->BestFit(m_columns[0]);
        return m_columns[0]->GetWidth();
    };
    m_columns[0]->SetWidth(123);
    const int caption = add(new CXTPReportRecordItemText(L""));
    EXPECT_LT(caption, 123) << "an empty text needs no room";
    m_columns[0]->SetWidth(123);
    EXPECT_EQ(add(new OwnTextItem), caption);
    m_columns[0]->SetWidth(123);
    auto* const picture = new PictureItem;
    EXPECT_EQ(add(picture), 123);
    EXPECT_EQ(picture->rect, m_grid.GetRows()->GetAt(2)->GetItemRect(picture)) << "drawn where it stands";
    EXPECT_EQ(add(new CXTPReportRecordItemText(L"short")), 123);
    EXPECT_GT(add(new CXTPReportRecordItemText(L"a text that is wider than the picture beside it")), 123);
}

TEST_F(HeaderTest, CtrlPlusFitsAllColumns) {
    const KeysDown ctrl({VK_CONTROL});
    Key(VK_ADD);
    for (const CXTPReportColumn* column : m_columns)
        EXPECT_EQ(column->GetWidth(), column->GetBestFitWidth());
}

// --- Moving columns -------------------------------------------------------------------------------------------------

TEST_F(HeaderTest, AColumnIsDroppedWhereTheMarkStands) {
    Drag(HeaderOf(0), CPoint(170, 8));
    EXPECT_EQ(m_grid.GetMouseMode(), xtpReportMouseColumnDrag);
    const COLORREF mark = RGB(3, 4, 5);
    m_grid.GetPaintManager()->m_clrDropMark = mark;
    const CRect box = Printed()->BoxOf(mark);
    EXPECT_EQ((box.left + box.right) / 2, 180) << "before the third column";
    EXPECT_EQ(box.bottom - box.top, HeaderHeight());
    Release(CPoint(170, 8));
    EXPECT_THAT(Order(), ElementsAre(L"B", L"A", L"C"));
    EXPECT_EQ(m_owner.Count(XTP_NM_REPORT_COLUMNORDERCHANGED), 1);
    EXPECT_FALSE(m_columns[0]->IsSorted()) << "a drag is no click";
    EXPECT_EQ(m_columns[1]->GetRect().left, 0);
}

TEST_F(HeaderTest, AColumnMovesToTheFrontAndToTheEnd) {
    Drag(HeaderOf(2), CPoint(10, 8));
    Release(CPoint(10, 8));
    EXPECT_THAT(Order(), ElementsAre(L"C", L"A", L"B"));
    Drag(HeaderOf(0), CPoint(280, 8));
    Release(CPoint(280, 8));
    EXPECT_THAT(Order(), ElementsAre(L"A", L"B", L"C"));
}

TEST_F(HeaderTest, HiddenColumnsKeepTheirPlaceBesideTheirNeighbours) {
    m_columns[1]->SetVisible(FALSE);
    Drag(HeaderOf(2), CPoint(10, 8));
    Release(CPoint(10, 8));
    EXPECT_THAT(Order(), ElementsAre(L"C", L"A", L"B"));
}

TEST_F(HeaderTest, ThePictureOfTheColumnFollowsThePointer) {
    m_grid.UpdateWindow();
    Drag(HeaderOf(0), CPoint(170, 20));
    EXPECT_EQ(m_header->GetDragRect().bottom, HeaderHeight() + 20 - HeaderOf(0).y);
    EXPECT_EQ(Difference(*OnScreen(), *Printed()), 0);
    Move(CPoint(60, 30));
    EXPECT_EQ(Difference(*OnScreen(), *Printed()), 0);
    Key(VK_ESCAPE);
    EXPECT_TRUE(m_header->GetDragRect().IsRectEmpty());
    EXPECT_EQ(Difference(*OnScreen(), *Printed()), 0) << "nothing of it stays";
}

TEST_F(HeaderTest, DroppingOutsideCancels) {
    Drag(HeaderOf(0), CPoint(170, 150));
    EXPECT_EQ(::GetCursor(), ::LoadCursor(nullptr, IDC_NO));
    Release(CPoint(170, 150));
    EXPECT_THAT(Order(), ElementsAre(L"A", L"B", L"C"));
    EXPECT_EQ(m_grid.GetMouseMode(), xtpReportMouseNothing);
    EXPECT_EQ(m_owner.Count(XTP_NM_REPORT_COLUMNORDERCHANGED), 0);
}

TEST_F(HeaderTest, EscapeAndTheLossOfCaptureCancelTheDrag) {
    Drag(HeaderOf(0), CPoint(170, 8));
    Key(VK_ESCAPE);
    Release(CPoint(170, 8));
    Drag(HeaderOf(0), CPoint(170, 8));
    m_owner.SetCapture();
    EXPECT_EQ(m_grid.GetMouseMode(), xtpReportMouseNothing);
    ::ReleaseCapture();
    Release(CPoint(170, 8));
    EXPECT_THAT(Order(), ElementsAre(L"A", L"B", L"C"));
    EXPECT_FALSE(m_columns[0]->IsSorted());
}

TEST_F(HeaderTest, ColumnsThatMayNotBeDraggedStay) {
    m_columns[0]->SetAllowDragging(FALSE);
    Drag(HeaderOf(0), CPoint(170, 8));
    EXPECT_EQ(m_grid.GetMouseMode(), xtpReportMousePrepareColumnDrag);
    Release(CPoint(170, 8));
    m_header->AllowColumnReorder(FALSE);
    Drag(HeaderOf(1), CPoint(10, 8));
    Release(CPoint(10, 8));
    EXPECT_THAT(Order(), ElementsAre(L"A", L"B", L"C"));
}

TEST_F(HeaderTest, AColumnMayBeRemovedWhileItIsDragged) {
    Drag(HeaderOf(0), CPoint(170, 8));
    m_grid.GetColumns()->Remove(m_columns[0]);
    EXPECT_EQ(m_grid.GetMouseMode(), xtpReportMouseNothing);
    Release(CPoint(170, 8));
    EXPECT_THAT(Order(), ElementsAre(L"B", L"C"));
    Move(HeaderOf(0), 0);
    m_grid.GetColumns()->Clear();
    EXPECT_EQ(m_header->GetHotColumn(), nullptr);
    m_grid.UpdateWindow();
}

// --- Menus ----------------------------------------------------------------------------------------------------------

TEST_F(HeaderTest, ARightClickAsksTheHeaderForItsMenu) {
    const CPoint point = HeaderOf(1);
    m_grid.SendMessage(WM_RBUTTONDOWN, MK_RBUTTON, MAKELPARAM(point.x, point.y));
    m_grid.SendMessage(WM_RBUTTONUP, 0, MAKELPARAM(point.x, point.y));
    EXPECT_THAT(m_header->menus, ElementsAre(point));
    EXPECT_EQ(m_owner.contextMenus, 0);
    EXPECT_EQ(m_owner.Count(NM_RCLICK), 0);
}

TEST_F(HeaderTest, AMenuOverADividerFindsTheIdleMode) {
    const CPoint point = DividerOf(0);
    Move(point, 0);
    m_grid.SendMessage(WM_RBUTTONUP, 0, MAKELPARAM(point.x, point.y));
    EXPECT_EQ(m_header->menus.size(), 1U);
    EXPECT_EQ(m_grid.GetMouseMode(), xtpReportMouseNothing);
}

TEST_F(HeaderTest, TheKeyboardOpensTheHeadersMenuWhereTheOwnerHasNone) {
    m_grid.SendMessage(WM_CONTEXTMENU, reinterpret_cast<WPARAM>(m_grid.m_hWnd), MAKELPARAM(-1, -1));
    EXPECT_EQ(m_owner.Count(NM_RCLICK), 1);
    EXPECT_THAT(m_header->menus, ElementsAre(CPoint(0, HeaderHeight() - 1))) << "under the first column's header";
    m_owner.answer = 1;
    m_grid.SendMessage(WM_CONTEXTMENU, reinterpret_cast<WPARAM>(m_grid.m_hWnd), MAKELPARAM(-1, -1));
    EXPECT_EQ(m_header->menus.size(), 1U) << "the owner has shown its own";
}

} // namespace
