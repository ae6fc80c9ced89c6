// The slider with editable ends: its picture, its cursors and tips, and what the grid hears of what was typed.
#include "PlotPictures.h"

#include "../support/PointerPlace.h"
#include "../support/QueuedKeys.h"

#include <common/KyMessages.h>
#include <plotcells/KyDragLineMinMaxRecordItem.h>
#include <reportgrid/KyInPlaceEdit.h>

#include <functional>
#include <memory>

namespace {

constexpr double M = -99.0; // no value
constexpr COLORREF Track = 0x00E7EAEA;

/// The cell with its drawing and its values opened.
class ProbeMinMax : public KyDragLineMinMaxRecordItem {
public:
    using KyDragLineMinMaxRecordItem::GetAllowInteraction;
    using KyDragLineMinMaxRecordItem::KyDragLineMinMaxRecordItem;
    using KyDragLineMinMaxRecordItem::m_draggingCenter;
    using KyDragLineMinMaxRecordItem::m_itemRect;
    using KyDragLineMinMaxRecordItem::OnDrawCaption;
    using KyDragLineMinMaxRecordItem::OnValidateEdit;
};

/// A plot grid that answers what was typed.
class AnsweringGrid : public ProbePlotGrid {
public:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message == WM_KYRANGEEDITED) {
            edited.push_back(*reinterpret_cast<KyRangeEdited*>(wParam));
            parameters.push_back(lParam);
            if (answer)
                answer(edited.back());
        }
        return ProbePlotGrid::WindowProc(message, wParam, lParam);
    }
    std::vector<KyRangeEdited> edited;
    std::vector<LPARAM> parameters;
    std::function<void(const KyRangeEdited&)> answer;
};

/// Two rows of 48 pixels with a cell on the scale 10…20 each, in a column of 201 pixels.
class MinMaxTest : public ProfileTest {
protected:
    MinMaxTest() {
        frame.CreateEx(0, AfxRegisterWndClass(0), _T("host"), WS_POPUP | WS_VISIBLE, CRect(20, 30, 460, 330), nullptr,
                       0);
        grid.Create(WS_CHILD | WS_VISIBLE | WS_TABSTOP, CRect(0, 0, 440, 300), &frame, 100);
        grid.GetPaintManager()->SetRowHeight(48);
        grid.AddColumn(new CXTPReportColumn(0, _T("Plot"), 201, FALSE));
        for (ProbeMinMax** cell : {&first, &second}) {
            *cell = new ProbeMinMax(L"%g");
            (*cell)->SetTargetValues(15, 10, 20);
            auto* const record = new CXTPReportRecord;
            record->AddItem(*cell);
            grid.AddRecord(record);
        }
        grid.Populate();
        grid.RedrawControl();
        grid.UpdateWindow();
        grid.SetFocus();
    }
    ~MinMaxTest() override {
        grid.DestroyWindow();
        frame.DestroyWindow();
    }
    CRect CellRect(int row = 0) const {
        CXTPReportRow* const at = grid.GetRows()->GetAt(row);
        return at->GetItemRect(at->GetRecord()->GetItem(0));
    }
    /// Points in the halves of the lower area and on the slider.
    CPoint MinPoint(int row = 0) const { return CPoint(CellRect(row).left + 4, CellRect(row).bottom - 8); }
    CPoint MaxPoint(int row = 0) const { return CPoint(CellRect(row).right - 4, CellRect(row).bottom - 8); }
    CPoint SliderPoint(int row = 0) const { return CPoint(CellRect(row).CenterPoint().x, CellRect(row).top + 12); }

    void Click(CPoint point) {
        grid.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(point.x, point.y));
        grid.SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(point.x, point.y));
    }
    CXTPReportInplaceEdit& Editor() { return *grid.GetInplaceEdit(); }
    bool IsEditing() const { return grid.GetActiveItem() != nullptr; }
    CString EditorText() {
        CString text;
        if (Editor().m_hWnd)
            Editor().GetWindowText(text);
        return text;
    }
    /// Clicks, types and presses Enter; what the grid has heard is the result.
    std::vector<KyRangeEdited> Typed(CPoint point, const wchar_t* text) {
        grid.edited.clear();
        Click(point);
        EXPECT_TRUE(IsEditing());
        Editor().ReplaceSel(text);
        TypeKey(VK_RETURN);
        EXPECT_FALSE(IsEditing());
        return grid.edited;
    }
    /// Asks the cursor that shows at the point; null when the cell leaves the choice to the grid.
    HCURSOR CursorAt(CPoint point) {
        ::SetCursor(nullptr);
        return first->OnSetCursor(point) ? ::GetCursor() : nullptr;
    }
    CString TipAt(CPoint point) {
        TOOLINFO info = {};
        EXPECT_EQ(first->OnToolHitTest(point, &info), 1);
        const CString text = info.lpszText;
        if (info.lpszText) {
            EXPECT_EQ(info.hwnd, grid.m_hWnd);
            EXPECT_EQ(info.uId, 1u);
            EXPECT_EQ(CRect(info.rect), CellRect());
        }
        std::free(info.lpszText);
        return text;
    }

    CWnd frame;
    AnsweringGrid grid;
    ProbeMinMax* first = nullptr;
    ProbeMinMax* second = nullptr;
};

TEST_F(MinMaxTest, IsCreatedByItsRuntimeClassWithTheGeneralFormat) {
    CObject* const object = RUNTIME_CLASS(KyDragLineMinMaxRecordItem)->CreateObject();
    ASSERT_NE(object, nullptr);
    EXPECT_TRUE(object->IsKindOf(RUNTIME_CLASS(KyDragLineRecordItem)));
    delete object;
}

TEST(RangeEdited, TheMessageAndItsRecordAreAsHostsKnowThem) {
    EXPECT_EQ(WM_KYRANGEEDITED, 0x1788u);
    EXPECT_EQ(sizeof(KyRangeEdited::value), 4u);
    EXPECT_EQ(offsetof(KyRangeEdited, isMinimum), 4u);
    EXPECT_EQ(sizeof(KyRangeEdited::isMinimum), 4u);
    EXPECT_EQ(offsetof(KyRangeEdited, item), 8u);
}

// --- Picture --------------------------------------------------------------------------------------------------------

/// Rows and columns of the pixels that are neither of the two colours.
CRect InkIn(const PixelImage& image, CRect rc, COLORREF background) {
    CRect ink(rc.right, rc.bottom, rc.left, rc.top);
    for (int y = rc.top; y < rc.bottom; ++y)
        for (int x = rc.left; x < rc.right; ++x)
            if (image.At(x, y) != background)
                ink = CRect(std::min<int>(ink.left, x), std::min<int>(ink.top, y), std::max<int>(ink.right, x + 1),
                            std::max<int>(ink.bottom, y + 1));
    return ink;
}

TEST_F(MinMaxTest, TheSliderStandsInTheUpperHalf) {
    first->SetMargin(0.0);
    const PixelImage picture = PictureOf(*first, grid, 102, 47);
    // From 3 to 47 - 3 - 23 = 21; the track is 4 rows around the middle of 4…20, from 12 - 3 on.
    EXPECT_EQ(first->m_itemRect, CRect(0, 3, 102, 21));
    EXPECT_EQ(picture.At(20, 9), 0x00D6D6D6u);
    EXPECT_EQ(picture.At(20, 10), Track);
    EXPECT_EQ(picture.At(20, 12), 0x00D6D6D6u);
    EXPECT_EQ(picture.At(20, 8), White);
    EXPECT_EQ(picture.At(20, 13), White);
    // The handle's top stands at (4 + 20 - 13) / 2 = 5, its centre at 1 + 50.
    EXPECT_NE(picture.At(51, 5), White);
    EXPECT_EQ(picture.At(51, 4), White);
    EXPECT_NE(picture.At(51, 18), White);
    EXPECT_EQ(picture.At(51, 19), White);
}

TEST_F(MinMaxTest, TheNumbersStandInTheLowerHalfAtBothSides) {
    first->SetTargetValues(M, 7, 1234);
    const PixelImage picture = PictureOf(*first, grid, 200, 46);
    const CRect left = InkIn(picture, CRect(0, 24, 100, 46), White);
    const CRect right = InkIn(picture, CRect(100, 24, 200, 46), White);
    EXPECT_GE(left.left, 1);
    EXPECT_LE(left.left, 3) << "left-aligned from the first pixel";
    EXPECT_LE(right.right, 199);
    EXPECT_GE(right.right, 197) << "right-aligned to the last but one";
    EXPECT_LT(left.Width(), right.Width());
    // Both are centred in the rows 24…45.
    EXPECT_NEAR(left.CenterPoint().y, 34.5, 2.0);
    EXPECT_NEAR(right.CenterPoint().y, 34.5, 2.0);
}

TEST_F(MinMaxTest, MissingEndsShowNoNumber) {
    first->SetTargetValues(15, M, M);
    EXPECT_EQ(PictureOf(*first, grid, 200, 46).Count(White, 0, 200) > 0, true);
    const PixelImage picture = PictureOf(*first, grid, 200, 46);
    EXPECT_TRUE(InkIn(picture, CRect(0, 24, 200, 46), White).Width() < 0);
}

TEST_F(MinMaxTest, TheFormatIsTheHosts) {
    first->SetFormat(L"%.3f");
    const int wide = InkIn(PictureOf(*first, grid, 200, 46), CRect(0, 24, 100, 46), White).Width();
    first->SetFormat(L"%.0f");
    const int narrow = InkIn(PictureOf(*first, grid, 200, 46), CRect(0, 24, 100, 46), White).Width();
    EXPECT_GT(wide, narrow + 10);
}

TEST_F(MinMaxTest, TheWholeCellHasTheBackgroundAndTheTextColourComesBack) {
    first->SetBackgroundColor(Green);
    Surface surface(120, 60, Gold);
    surface.Dc().SetTextColor(Blue);
    surface.Dc().SetBkMode(OPAQUE);
    XTP_REPORTRECORDITEM_DRAWARGS args;
    args.pDC = &surface.Dc();
    args.pControl = &grid;
    args.rcItem = CRect(10, 5, 110, 51);
    first->OnDrawCaption(&args, nullptr);
    EXPECT_EQ(surface.Dc().GetTextColor(), Blue);
    EXPECT_EQ(::GetBkMode(surface.Dc()), OPAQUE);
    const PixelImage image = surface.Image();
    EXPECT_EQ(image.At(10, 5), Green);
    EXPECT_EQ(image.At(109, 50), Green);
    EXPECT_EQ(image.At(9, 5), Gold);
    EXPECT_EQ(image.At(110, 50), Gold);
    EXPECT_EQ(image.Count(Blue, 0, 120), 0) << "numbers are black";
}

TEST_F(MinMaxTest, WithoutAGridNothingIsDrawn) {
    Surface surface(120, 60, Gold);
    XTP_REPORTRECORDITEM_DRAWARGS args;
    args.pDC = &surface.Dc();
    args.rcItem = CRect(10, 5, 110, 51);
    first->OnDrawCaption(&args, nullptr);
    EXPECT_EQ(surface.Image().Count(Gold, 0, 120), 120 * 60);
}

TEST_F(MinMaxTest, CellsOfEverySizeKeepInside) {
    for (const CRect& place : CellsOfEverySize()) {
        ProbeMinMax cell(L"%g");
        cell.SetTargetValues(15, 10, 20);
        EXPECT_TRUE(StaysInside(cell, grid, place));
    }
}

// --- Mouse ----------------------------------------------------------------------------------------------------------

TEST_F(MinMaxTest, TheHalvesOfTheLowerAreaTakeNoDrag) {
    bool allow = false;
    first->SetAllowInteraction(false); // is not asked
    const CRect rc = CellRect();
    const int top = rc.top + 1 + rc.Height() / 2, middle = rc.left + 1 + rc.Width() / 2;
    EXPECT_TRUE(first->GetAllowInteraction(CPoint(rc.left + 1, top), allow));
    EXPECT_FALSE(allow);
    EXPECT_TRUE(first->GetAllowInteraction(CPoint(middle, top), allow));
    EXPECT_FALSE(allow) << "the whole half, not the number alone";
    EXPECT_TRUE(first->GetAllowInteraction(CPoint(rc.right - 2, rc.bottom - 2), allow));
    EXPECT_FALSE(allow);
    EXPECT_TRUE(first->GetAllowInteraction(CPoint(rc.left + 1, top - 1), allow));
    EXPECT_TRUE(allow);
    EXPECT_TRUE(first->GetAllowInteraction(CPoint(rc.left, top), allow));
    EXPECT_TRUE(allow);
    EXPECT_TRUE(first->GetAllowInteraction(CPoint(rc.left + 1, rc.bottom - 1), allow));
    EXPECT_TRUE(allow);
}

TEST_F(MinMaxTest, NumbersHaveTheTextCursorAsWideAsTheyAre) {
    first->SetFormat(L"%.3f");
    grid.RedrawControl();
    grid.UpdateWindow();
    const CRect rc = CellRect();
    EXPECT_EQ(CursorAt(MinPoint()), StandardCursor(IDC_IBEAM));
    EXPECT_EQ(CursorAt(MaxPoint()), StandardCursor(IDC_IBEAM));
    EXPECT_EQ(CursorAt(CPoint(rc.left + 1 + 12, MinPoint().y)), StandardCursor(IDC_IBEAM));
    EXPECT_EQ(CursorAt(CPoint(rc.CenterPoint().x, MinPoint().y)), nullptr) << "between the numbers";
}

TEST_F(MinMaxTest, ANarrowNumberHasATextCursorOfTenPixels) {
    first->SetTargetValues(15, M, M); // no number at all
    grid.RedrawControl();
    grid.UpdateWindow();
    const CRect rc = CellRect();
    const int y = MinPoint().y;
    EXPECT_EQ(CursorAt(CPoint(rc.left + 1 + 9, y)), StandardCursor(IDC_IBEAM));
    EXPECT_EQ(CursorAt(CPoint(rc.left + 1 + 10, y)), nullptr);
    EXPECT_EQ(CursorAt(CPoint(rc.right - 1 - 10, y)), StandardCursor(IDC_IBEAM));
    EXPECT_EQ(CursorAt(CPoint(rc.right - 1 - 11, y)), nullptr);
}

TEST_F(MinMaxTest, TheSliderHasItsCursorsAndIsDragged) {
    EXPECT_EQ(CursorAt(SliderPoint()), StandardCursor(IDC_SIZEWE));
    EXPECT_EQ(CursorAt(SliderPoint() + CSize(40, 0)), nullptr);
    const CPoint from = SliderPoint(), to = from + CSize(14, 0);
    grid.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(from.x, from.y));
    EXPECT_TRUE(first->m_draggingCenter);
    grid.SendMessage(WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(to.x, to.y));
    grid.SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(to.x, to.y));
    EXPECT_FALSE(first->m_draggingCenter);
    EXPECT_NEAR(first->GetTarget(), 16.0, 0.15);
    EXPECT_FALSE(IsEditing());
}

TEST_F(MinMaxTest, EachPartHasItsTip) {
    EXPECT_EQ(TipAt(MinPoint()), L"") << "at first";
    first->SetMinimumTooltip(L"the minimum");
    first->SetMaximumTooltip(L"the maximum");
    first->SetSliderTooltip(L"the slider");
    EXPECT_EQ(TipAt(MinPoint()), L"the minimum");
    EXPECT_EQ(TipAt(MaxPoint()), L"the maximum");
    EXPECT_EQ(TipAt(SliderPoint()), L"the slider");
    EXPECT_EQ(TipAt(CPoint(SliderPoint().x, CellRect().top + 1)), L"") << "above the slider";
    EXPECT_EQ(TipAt(CPoint(300, 2000)), L"") << "where there is no row";
    EXPECT_EQ(first->OnToolHitTest(MinPoint(), nullptr), 1);
    TOOLINFO info = {};
    EXPECT_NE(grid.OnToolHitTest(MaxPoint(), &info), -1);
    EXPECT_STREQ(info.lpszText, L"the maximum");
    std::free(info.lpszText);
}

// --- Editing --------------------------------------------------------------------------------------------------------

TEST_F(MinMaxTest, AClickOnANumberOpensAnEditorOverIt) {
    Click(MinPoint());
    ASSERT_EQ(grid.GetActiveItem(), first);
    EXPECT_NE(DYNAMIC_DOWNCAST(KyInPlaceEdit, &Editor()), nullptr);
    EXPECT_EQ(EditorText(), L"10");
    EXPECT_EQ(::GetFocus(), Editor().m_hWnd);
    int begin = -1, end = -1;
    Editor().GetSel(begin, end);
    EXPECT_EQ(begin, 0);
    EXPECT_EQ(end, 2);
    CRect place;
    Editor().GetWindowRect(&place);
    grid.ScreenToClient(&place);
    const CRect rc = CellRect();
    EXPECT_EQ(place, CRect(rc.left + 1, rc.top + 1 + rc.Height() / 2, rc.right - 1 - rc.Width() / 2, rc.bottom - 1));
    EXPECT_EQ(Editor().GetStyle() & ES_RIGHT, 0u);
    EXPECT_EQ(static_cast<short>(LOWORD(Editor().SendMessage(EM_POSFROMCHAR, 0))), 0) << "right behind the frame";

    Click(MaxPoint());
    EXPECT_EQ(EditorText(), L"20");
    EXPECT_NE(Editor().GetStyle() & ES_RIGHT, 0u);
    const auto letters = static_cast<short>(LOWORD(Editor().SendMessage(EM_POSFROMCHAR, 0)));
    EXPECT_GT(letters, 60) << "the number stands where the cell has it";
    Editor().GetWindowRect(&place);
    grid.ScreenToClient(&place);
    EXPECT_EQ(place, CRect(rc.left + 1 + rc.Width() / 2, rc.top + 1 + rc.Height() / 2, rc.right - 1, rc.bottom - 1));
    EXPECT_TRUE(grid.edited.empty()) << "nothing was typed over the minimum";
}

TEST_F(MinMaxTest, MissingEndsOpenAnEmptyEditor) {
    first->SetTargetValues(M, M, M);
    for (const CPoint point : {MinPoint(), MaxPoint()}) {
        Click(point);
        EXPECT_TRUE(IsEditing());
        EXPECT_EQ(EditorText(), L"");
    }
    const auto edited = Typed(MinPoint(), L"5");
    ASSERT_EQ(edited.size(), 1u);
    EXPECT_EQ(edited[0].value, 5.0f);
}

TEST_F(MinMaxTest, TheGridHearsOfATypedEndAndTheCellStaysAsItIs) {
    auto edited = Typed(MinPoint(), L"5.5");
    ASSERT_EQ(edited.size(), 1u);
    EXPECT_EQ(edited[0].value, 5.5f);
    EXPECT_EQ(edited[0].isMinimum, 1);
    EXPECT_EQ(edited[0].item, first);
    EXPECT_EQ(grid.parameters.back(), 0);
    EXPECT_EQ(first->GetMin(), 10.0);
    edited = Typed(MaxPoint(1), L"0.1");
    ASSERT_EQ(edited.size(), 1u);
    EXPECT_EQ(edited[0].value, 0.1f);
    EXPECT_EQ(edited[0].isMinimum, 0);
    EXPECT_EQ(edited[0].item, second);
    EXPECT_EQ(second->GetMax(), 20.0);
}

TEST_F(MinMaxTest, ATypedMissingMarkIsPinned) {
    for (const wchar_t* text : {L"-99", L"-99.0"}) {
        const auto edited = Typed(MinPoint(), text);
        ASSERT_EQ(edited.size(), 1u);
        EXPECT_EQ(edited[0].value, -99.0001f);
    }
}

TEST_F(MinMaxTest, ThePresentMinimumIsNoNewsForEitherEnd) {
    EXPECT_TRUE(Typed(MinPoint(), L"10").empty());
    EXPECT_TRUE(Typed(MinPoint(), L"10.000001").empty()) << "within the tolerance";
    EXPECT_EQ(Typed(MinPoint(), L"10.00001").size(), 1u);
    EXPECT_TRUE(Typed(MaxPoint(), L"10").empty()) << "intended";
    EXPECT_EQ(Typed(MaxPoint(), L"20").size(), 1u) << "intended: the present maximum is told";
}

TEST_F(MinMaxTest, WhatIsNoNumberIsDropped) {
    for (const wchar_t* text : {L"", L" ", L"abc", L"1.2.3", L"1e999"})
        EXPECT_TRUE(Typed(MinPoint(), text).empty()) << CString(text).GetString();
}

TEST_F(MinMaxTest, BothSeparatorsAreTaken) {
    for (const wchar_t* text : {L"1,5", L"1.5"}) {
        const auto edited = Typed(MinPoint(), text);
        ASSERT_EQ(edited.size(), 1u);
        EXPECT_EQ(edited[0].value, 1.5f);
    }
}

TEST_F(MinMaxTest, EscapePutsTheNumberBackAndGoesOnEditing) {
    Click(MaxPoint());
    TypeText(L"77");
    TypeKey(VK_ESCAPE);
    ASSERT_TRUE(IsEditing());
    EXPECT_EQ(EditorText(), L"20");
    TypeKey(VK_TAB);
    EXPECT_FALSE(IsEditing());
    EXPECT_EQ(grid.edited.size(), 1u) << "the maximum, though it is the present one";
}

TEST_F(MinMaxTest, AClickOnTheOtherNumberTellsOfTheFirst) {
    Click(MinPoint());
    TypeText(L"3");
    Click(MaxPoint());
    ASSERT_EQ(grid.edited.size(), 1u);
    EXPECT_EQ(grid.edited[0].value, 3.0f);
    EXPECT_EQ(grid.edited[0].isMinimum, 1);
    ASSERT_TRUE(IsEditing());
    TypeText(L"30");
    Click(MinPoint(1));
    ASSERT_EQ(grid.edited.size(), 2u);
    EXPECT_EQ(grid.edited[1].isMinimum, 0);
    EXPECT_EQ(grid.GetActiveItem(), second);
}

TEST_F(MinMaxTest, AnEditorThatTheHostOpensTellsOfTheFirstAsWell) {
    first->BeginDrag(MinPoint(), CellRect());
    TypeText(L"3");
    first->BeginDrag(MaxPoint(), CellRect());
    ASSERT_EQ(grid.edited.size(), 1u);
    EXPECT_EQ(grid.edited[0].value, 3.0f);
    EXPECT_EQ(grid.edited[0].isMinimum, 1);
    EXPECT_EQ(EditorText(), L"20");
    TypeText(L"4");
    grid.EditItem(nullptr);
    ASSERT_EQ(grid.edited.size(), 2u);
    EXPECT_EQ(grid.edited[1].isMinimum, 0);
}

TEST_F(MinMaxTest, AHostThatAnswersChangesTheScale) {
    grid.answer = [](const KyRangeEdited& edited) {
        edited.isMinimum ? edited.item->SetMin(edited.value) : edited.item->SetMax(edited.value);
    };
    Typed(MinPoint(), L"-5");
    Typed(MaxPoint(), L"50");
    EXPECT_EQ(first->GetMin(), -5.0);
    EXPECT_EQ(first->GetMax(), 50.0);
}

TEST_F(MinMaxTest, AHostMayOpenTheEditorAgain) {
    grid.answer = [this](const KyRangeEdited&) {
        grid.answer = nullptr;
        first->BeginDrag(MinPoint(), CellRect());
    };
    Click(MinPoint());
    TypeText(L"3");
    grid.EditItem(nullptr);
    ASSERT_TRUE(IsEditing()) << "the value was refused";
    TypeText(L"4");
    grid.EditItem(nullptr);
    ASSERT_EQ(grid.edited.size(), 2u);
    EXPECT_EQ(grid.edited[1].value, 4.0f);
    EXPECT_EQ(grid.edited[1].isMinimum, 1);
}

TEST_F(MinMaxTest, AnEditorClosesWithItsRecordItsColumnAndItsGrid) {
    Click(MinPoint());
    TypeText(L"3");
    grid.GetRecords()->RemoveAt(0);
    EXPECT_FALSE(IsEditing());
    EXPECT_TRUE(grid.edited.empty());
    grid.UpdateWindow();

    Click(MinPoint());
    TypeText(L"4");
    grid.GetColumns()->GetAt(0)->SetVisible(FALSE);
    EXPECT_FALSE(IsEditing());
    ASSERT_EQ(grid.edited.size(), 1u);
    EXPECT_EQ(grid.edited[0].item, second);
    grid.GetColumns()->GetAt(0)->SetVisible(TRUE);
    grid.UpdateWindow();

    Click(MinPoint());
    TypeText(L"5");
    grid.Populate();
    EXPECT_FALSE(IsEditing());
    EXPECT_EQ(grid.edited.size(), 2u);
    grid.UpdateWindow();

    Click(MinPoint());
    TypeText(L"6");
    grid.DestroyWindow();
    EXPECT_EQ(grid.edited.size(), 3u);
}

TEST_F(MinMaxTest, AHostMayRemoveTheCellOrTheGridWhenItHearsOfAnEnd) {
    grid.answer = [this](const KyRangeEdited&) { grid.GetRecords()->RemoveAt(0); };
    Click(MinPoint());
    TypeText(L"3");
    TypeKey(VK_RETURN);
    EXPECT_EQ(grid.GetRecords()->GetCount(), 1);
    grid.UpdateWindow();
    grid.answer = [this](const KyRangeEdited&) { grid.DestroyWindow(); };
    Click(MinPoint());
    TypeText(L"4");
    Click(MaxPoint());
    EXPECT_EQ(grid.m_hWnd, nullptr);
}

} // namespace
