// The main window: opening files, what it shows and tells, what it keeps.
#include "ProfilerTestApp.h"

#include "common/Translation.h"
#include "resource.h"
#include "window/ColumnPlotItem.h"
#include "window/ShareItem.h"

#include "reportgrid/KyDialogReportControlTheme.h"

#include "../support/QueuedKeys.h"

#include <gmock/gmock.h>

#include <cstring>
#include <shlobj.h>

namespace {

using testing::ElementsAre;
using testing::EndsWith;
using testing::IsEmpty;

TEST_F(ProfilerFrameTest, WithoutAFileItSaysWhatToDo) {
    EXPECT_EQ(Title(), L"Column Profiler");
    EXPECT_EQ(Status(), L"Ready");
    EXPECT_EQ(Rows(), 0);
    EXPECT_STREQ(Grid().GetPaintManager()->GetNoItemText(), L"Open a CSV file (Ctrl+O) or drop one here.");
}

TEST_F(ProfilerFrameTest, ShowsOneRowPerColumn) {
    OpenShipped(L"penguins.csv");
    EXPECT_EQ(Title(), L"penguins.csv \u2013 Column Profiler");
    EXPECT_EQ(Status(), L"penguins.csv is open.");
    ASSERT_EQ(Rows(), 7);
    EXPECT_EQ(Cell(2, NameItem), L"Beak Length (mm)");
    EXPECT_EQ(Cell(2, TypeItem), L"Number");
    EXPECT_EQ(Cell(2, CountItem), L"342");
    EXPECT_EQ(Cell(2, MissingItem), L"2");
    EXPECT_EQ(Cell(2, MinimumItem), L"32.1");
    EXPECT_EQ(Cell(2, MeanItem), L"43.9219");
    EXPECT_EQ(Cell(2, MaximumItem), L"59.6");
    EXPECT_EQ(Cell(2, InsideItem), L"59.6 %"); // 204 of 342
    EXPECT_EQ(Cell(6, NameItem), L"Sex");
    EXPECT_EQ(Cell(6, TypeItem), L"Text");
    EXPECT_EQ(Cell(6, MinimumItem), L"");
    EXPECT_EQ(Cell(6, PlotItem), L"3 different texts");
    EXPECT_EQ(Cell(6, InsideItem), L"\u2013");
    EXPECT_EQ(Cell(6, RequiredItem), L"\u2013");
}

TEST_F(ProfilerFrameTest, ShowsTheFirstAndTheLastDate) {
    OpenShipped(L"seattle-weather.csv");
    EXPECT_EQ(Cell(0, TypeItem), L"Date");
    EXPECT_EQ(Cell(0, MinimumItem), L"2012-01-01");
    EXPECT_EQ(Cell(0, MeanItem), L"");
    EXPECT_EQ(Cell(0, MaximumItem), L"2015-12-31");
    EXPECT_EQ(Cell(0, PlotItem), L"1461 different dates");
}

TEST_F(ProfilerFrameTest, ColumnsWithoutAScaleSayWhy) {
    Open(Write(L"plain.csv", "same,empty,one,date\n5,,x,2024-01-01\n5,,x,2024-01-01\n5,,x,2024-01-01\n"));
    EXPECT_EQ(Cell(0, PlotItem), L"All values are the same");
    EXPECT_EQ(Cell(0, MinimumItem), L"5");
    EXPECT_EQ(Cell(1, TypeItem), L"Empty");
    EXPECT_EQ(Cell(1, PlotItem), L"No values");
    EXPECT_EQ(Cell(2, PlotItem), L"1 text");
    EXPECT_EQ(Cell(3, PlotItem), L"1 date");
}

TEST_F(ProfilerFrameTest, AFileThatCannotBeOpenedLeavesTheFormerOne) {
    OpenShipped(L"penguins.csv");
    Open(L"Z:\\no\\such.csv");
    EXPECT_THAT(ProfilerTestApp::Get().m_boxes,
                ElementsAre(L"Z:\\no\\such.csv cannot be found. Check its name and its folder."));
    EXPECT_EQ(Status(), ProfilerTestApp::Get().m_boxes[0]);
    EXPECT_EQ(Title(), L"penguins.csv \u2013 Column Profiler");
    EXPECT_EQ(Rows(), 7);
}

TEST_F(ProfilerFrameTest, AnEmptyFileIsToldInABox) {
    Open(Write(L"empty.csv", ""));
    EXPECT_THAT(ProfilerTestApp::Get().m_boxes,
                ElementsAre(L"empty.csv, line 1: the file is empty. Its first line must name the columns."));
    EXPECT_EQ(Title(), L"Column Profiler");
}

TEST_F(ProfilerFrameTest, OddRowsAreToldInTheStatusBarOnly) {
    Open(Write(L"odd.csv", "a,b\n1,2\n3\n"));
    EXPECT_THAT(ProfilerTestApp::Get().m_boxes, IsEmpty());
    EXPECT_EQ(Status(), L"odd.csv, line 3: 1 field where the header has 2. The others count as missing.");
    EXPECT_EQ(Rows(), 2);
}

TEST_F(ProfilerFrameTest, OnlyAHeaderShowsItsColumns) {
    Open(Write(L"header.csv", "a,b,c\n"));
    EXPECT_THAT(ProfilerTestApp::Get().m_boxes, IsEmpty());
    EXPECT_EQ(Status(), L"header.csv, line 1: only a header, no rows below it. There is nothing to compute.");
    ASSERT_EQ(Rows(), 3);
    EXPECT_EQ(Cell(0, CountItem), L"0");
    EXPECT_EQ(Cell(0, TypeItem), L"Empty");
}

TEST_F(ProfilerFrameTest, TheMessagesHaveTheirColoursAlsoWithoutADeviceContext) {
    const HWND window = ::FindWindow(nullptr, L"Messages");
    ASSERT_NE(window, nullptr);
    EXPECT_EQ(reinterpret_cast<HBRUSH>(::SendMessage(window, WM_CTLCOLORSTATIC, 0, 0)),
              ::GetSysColorBrush(COLOR_WINDOW));
}

TEST_F(ProfilerFrameTest, MessagesCanBeLookedAtAndHidden) {
    Open(Write(L"odd.csv", "a,b\n1,2\n3\n"));
    EXPECT_EQ(MenuState(2, ID_VIEW_MESSAGES) & MF_CHECKED, 0u);
    Command(ID_VIEW_MESSAGES);
    EXPECT_NE(MenuState(2, ID_VIEW_MESSAGES) & MF_CHECKED, 0u);
    HWND window = ::FindWindow(nullptr, L"Messages about odd.csv");
    ASSERT_NE(window, nullptr);
    CString text;
    CWnd::FromHandle(::GetWindow(window, GW_CHILD))->GetWindowText(text);
    EXPECT_STREQ(text, L"odd.csv, line 3: 1 field where the header has 2. The others count as missing.\r\n");
    Command(ID_VIEW_MESSAGES);
    EXPECT_FALSE(::IsWindowVisible(window));
}

TEST_F(ProfilerFrameTest, ReloadingReadsTheFileAgain) {
    EXPECT_NE(MenuState(0, ID_FILE_RELOAD) & MF_GRAYED, 0u);
    Open(Write(L"grows.csv", "a\n1\n2\n"));
    EXPECT_EQ(MenuState(0, ID_FILE_RELOAD) & MF_GRAYED, 0u);
    EXPECT_EQ(Cell(0, CountItem), L"2");
    Write(L"grows.csv", "a\n1\n2\n3\n");
    Command(ID_FILE_RELOAD);
    WaitUntilRead();
    EXPECT_EQ(Cell(0, CountItem), L"3");
}

/// What the system sends when files are dropped. The receiver frees it.
HDROP Drop(const std::vector<CString>& paths) {
    std::wstring names;
    for (const CString& path : paths)
        names += std::wstring(path) + L'\0';
    names += L'\0';
    const std::size_t bytes = names.size() * sizeof(wchar_t);
    HGLOBAL memory = ::GlobalAlloc(GHND, sizeof(DROPFILES) + bytes);
    auto* header = static_cast<DROPFILES*>(::GlobalLock(memory));
    header->pFiles = sizeof(DROPFILES);
    header->fWide = TRUE;
    std::memcpy(header + 1, names.data(), bytes);
    ::GlobalUnlock(memory);
    return static_cast<HDROP>(memory);
}

TEST_F(ProfilerFrameTest, ADroppedFileIsOpened) {
    const CString path = Write(L"dropped.csv", "a\n1\n2\n");
    Frame().SendMessage(WM_DROPFILES, reinterpret_cast<WPARAM>(Drop({path})));
    WaitUntilRead();
    EXPECT_EQ(Title(), L"dropped.csv \u2013 Column Profiler");
    EXPECT_EQ(Status(), L"dropped.csv is open.");
}

TEST_F(ProfilerFrameTest, OfSeveralDroppedFilesTheFirstIsOpened) {
    const CString first = Write(L"first.csv", "a\n1\n");
    const CString second = Write(L"second.csv", "b\n1\n");
    Frame().SendMessage(WM_DROPFILES, reinterpret_cast<WPARAM>(Drop({first, second})));
    WaitUntilRead();
    EXPECT_EQ(Title(), L"first.csv \u2013 Column Profiler");
    EXPECT_EQ(Status(), L"Only the first of the dropped files was opened: the program shows one at a time.");
}

// --- Reading ---------------------------------------------------------------------------------------------------------
//
// What the reading thread has to tell comes as a message, so nothing changes before the messages are handled.

TEST_F(ProfilerFrameTest, WhileAFileIsReadTheFormerOneStays) {
    OpenShipped(L"penguins.csv");
    EXPECT_NE(MenuState(0, ID_FILE_STOP) & MF_GRAYED, 0u);
    Frame().OpenPath(Write(L"next.csv", "a\n1\n2\n"));
    EXPECT_TRUE(Frame().IsReading());
    EXPECT_EQ(Title(), L"penguins.csv \u2013 Column Profiler");
    EXPECT_EQ(Cell(2, NameItem), L"Beak Length (mm)");
    EXPECT_EQ(MenuState(0, ID_FILE_STOP) & MF_GRAYED, 0u);
    EXPECT_NE(MenuState(0, ID_FILE_RELOAD) & MF_GRAYED, 0u);
    WaitUntilRead();
    EXPECT_EQ(Title(), L"next.csv \u2013 Column Profiler");
    EXPECT_NE(MenuState(0, ID_FILE_STOP) & MF_GRAYED, 0u);
}

TEST_F(ProfilerFrameTest, EscapeGivesUpReading) {
    OpenShipped(L"penguins.csv");
    Frame().OpenPath(Write(L"next.csv", "a\n1\n2\n"));
    EXPECT_TRUE(PressEscape());
    EXPECT_FALSE(Frame().IsReading());
    EXPECT_EQ(Status(), L"Cancelled: the file was not opened.");
    HandleMessages();
    EXPECT_EQ(Title(), L"penguins.csv \u2013 Column Profiler");
    EXPECT_EQ(Rows(), 7);
    EXPECT_FALSE(PressEscape()); // there is nothing to give up
}

TEST_F(ProfilerFrameTest, TheCommandGivesUpReading) {
    Frame().OpenPath(Write(L"next.csv", "a\n1\n2\n"));
    Command(ID_FILE_STOP);
    EXPECT_EQ(Status(), L"Cancelled: the file was not opened.");
    HandleMessages();
    EXPECT_EQ(Title(), L"Column Profiler");
    EXPECT_EQ(Rows(), 0);
}

TEST_F(ProfilerFrameTest, AnotherMonitorScalesItAndComingBackChangesNothing) {
    OpenShipped(L"penguins.csv");
    CRect place;
    Frame().GetWindowRect(&place);
    const auto widths = [this] {
        std::vector<int> result;
        for (int i = 0; i < Grid().GetColumns()->GetCount(); ++i)
            result.push_back(Grid().GetColumns()->GetAt(i)->GetWidth());
        return result;
    };
    const auto goTo = [&](int dpi) {
        const CRect suggested(place.TopLeft(),
                              CSize(::MulDiv(place.Width(), dpi, 96), ::MulDiv(place.Height(), dpi, 96)));
        Frame().SendMessage(WM_DPICHANGED, MAKEWPARAM(dpi, dpi), reinterpret_cast<LPARAM>(&suggested));
    };
    goTo(96);
    const std::vector<int> before = widths();
    EXPECT_EQ(Grid().GetPaintManager()->GetRowHeight(), 34);
    goTo(144);
    EXPECT_EQ(Grid().GetPaintManager()->GetRowHeight(), 51);
    for (std::size_t i = 0; i < before.size(); ++i)
        EXPECT_EQ(widths()[i], (before[i] * 3 + 1) / 2) << i;
    goTo(96);
    EXPECT_EQ(Grid().GetPaintManager()->GetRowHeight(), 34);
    EXPECT_EQ(widths(), before);
    CRect now;
    Frame().GetWindowRect(&now);
    EXPECT_EQ(now, place);
}

TEST_F(ProfilerFrameTest, AnotherFileTakesThePlaceOfTheOneThatIsRead) {
    Frame().OpenPath(L"Z:\\no\\such.csv");
    Frame().OpenPath(Write(L"second.csv", "a,b\n1,2\n"));
    WaitUntilRead();
    EXPECT_EQ(Title(), L"second.csv \u2013 Column Profiler");
    EXPECT_EQ(Rows(), 2);
    EXPECT_THAT(ProfilerTestApp::Get().m_boxes, IsEmpty());
}

TEST_F(ProfilerFrameTest, TheWindowCanBeClosedWhileAFileIsRead) {
    Frame().OpenPath(Write(L"next.csv", "a\n1\n2\n"));
    Restart();
    HandleMessages();
    EXPECT_EQ(Title(), L"Column Profiler");
    EXPECT_FALSE(Frame().IsReading());
}

TEST_F(ProfilerFrameTest, DuringADragTheGridKeepsItsRowsAndTheEscapeKey) {
    OpenShipped(L"penguins.csv");
    Frame().OpenPath(Write(L"next.csv", "a\n1\n2\n"));
    Grid().SetCapture();
    EXPECT_FALSE(PressEscape());
    HandleMessagesUntil(WM_APP + 1); // the file is read
    EXPECT_EQ(Title(), L"penguins.csv \u2013 Column Profiler");
    EXPECT_EQ(Rows(), 7);
    ::ReleaseCapture();
    WaitUntilRead();
    EXPECT_EQ(Title(), L"next.csv \u2013 Column Profiler");
}

// --- Limits ----------------------------------------------------------------------------------------------------------

class LimitsTest : public ProfilerFrameTest {
protected:
    void SetUp() override {
        ProfilerFrameTest::SetUp();
        Open(Write(L"ten.csv", "n\n1\n2\n3\n4\n5\n6\n7\n8\n9\n10\n"));
    }

    /// Ends a drag as the plot does.
    void Dragged(float lower, float target, float upper) {
        auto* plot = dynamic_cast<ColumnPlotItem*>(Grid().GetRows()->GetAt(0)->GetRecord()->GetItem(PlotItem));
        ASSERT_NE(plot, nullptr);
        plot->m_valueChanged(lower, target, upper);
    }

    template <class Plot>
    Plot& At(int item, int row = 0) {
        return dynamic_cast<Plot&>(*Grid().GetRows()->GetAt(row)->GetRecord()->GetItem(item));
    }
    void Mouse(UINT message, CPoint point) {
        Grid().SendMessage(message, message == WM_LBUTTONUP ? 0 : MK_LBUTTON, MAKELPARAM(point.x, point.y));
    }
    /// The point at a fraction of the cell's width.
    CPoint PointAt(int item, double fraction, int row = 0) {
        Grid().UpdateWindow();
        CXTPReportRow* const shown = Grid().GetRows()->GetAt(row);
        CRect rect = shown->GetItemRect(shown->GetRecord()->GetItem(item));
        rect.DeflateRect(1, 1);
        return CPoint(rect.left + static_cast<int>(rect.Width() * fraction + 0.5), rect.CenterPoint().y);
    }
    /// Where a value stands in a plot with the margin, on the scale from 1 to 10.
    static double Place(double value, double margin) { return (value - 1) / 9 * (1 - 2 * margin) + margin; }
};

constexpr double kHistogramMargin = 0.06;
constexpr double kTargetMargin = 0.08;

TEST_F(LimitsTest, BeginAtTheMeanPlusAndMinusTheStandardDeviation) {
    EXPECT_EQ(Cell(0, InsideItem), L"60.0 %"); // 5.5 - 3.03 to 5.5 + 3.03 holds 3 to 8
}

TEST_F(LimitsTest, TheShareFollowsTheDraggedLimit) {
    Dragged(1.5f, -99.0f, -99.0f);
    EXPECT_EQ(Cell(0, InsideItem), L"70.0 %");
    EXPECT_EQ(Status(), L"n: 70.0 % of the values lie from 1.5 to 8.52765.");
    Dragged(-99.0f, -99.0f, 9.0f);
    EXPECT_EQ(Cell(0, InsideItem), L"80.0 %");
    EXPECT_EQ(Status(), L"n: 80.0 % of the values lie from 1.5 to 9.");
}

TEST_F(LimitsTest, ATargetTakesThePassedLimitAlong) {
    Dragged(-99.0f, 9.5f, -99.0f);
    EXPECT_EQ(Status(), L"n: 70.0 % of the values lie from 2.47235 to 9.5.");
    Dragged(-99.0f, 2.0f, -99.0f);
    EXPECT_EQ(Status(), L"n: 80.0 % of the values lie from 2 to 9.5.");
}

TEST_F(LimitsTest, ReloadingPutsThemBack) {
    Dragged(1.5f, -99.0f, -99.0f);
    Command(ID_FILE_RELOAD);
    WaitUntilRead();
    EXPECT_EQ(Cell(0, InsideItem), L"60.0 %");
}

TEST_F(LimitsTest, TheHistogramsMarksAreTheSameLimits) {
    const auto& histogram = At<ColumnHistogramItem>(HistogramItem);
    EXPECT_EQ(histogram.GetMin(), 1); // and stay, unlike those of other histograms
    EXPECT_EQ(histogram.GetMax(), 10);
    EXPECT_EQ(histogram.GetTarget(), 5.5);
    Dragged(-99.0f, 7.0f, -99.0f);
    EXPECT_EQ(histogram.GetTarget(), 7);
    EXPECT_EQ(At<ColumnTargetItem>(TargetItem).GetTarget(), 7);
    EXPECT_EQ(histogram.GetMin(), 1);
}

TEST_F(LimitsTest, TheShareFollowsAHistogramsMarkWhileItIsDragged) {
    Mouse(WM_LBUTTONDOWN, PointAt(HistogramItem, Place(2.4723, kHistogramMargin)));
    Mouse(WM_MOUSEMOVE, PointAt(HistogramItem, Place(4.4, kHistogramMargin)));
    EXPECT_EQ(Cell(0, InsideItem), L"40.0 %"); // 5 to 8
    EXPECT_THAT(Status(), testing::StartsWith(L"n: lower limit at 4."));
    Mouse(WM_LBUTTONUP, PointAt(HistogramItem, Place(3.5, kHistogramMargin)));
    EXPECT_EQ(Cell(0, InsideItem), L"50.0 %"); // 4 to 8
    Mouse(WM_LBUTTONDOWN, PointAt(HistogramItem, Place(8.5276, kHistogramMargin)));
    Mouse(WM_MOUSEMOVE, PointAt(HistogramItem, Place(9.5, kHistogramMargin)));
    Mouse(WM_LBUTTONUP, PointAt(HistogramItem, Place(9.5, kHistogramMargin)));
    EXPECT_EQ(Cell(0, InsideItem), L"60.0 %"); // 4 to 9
}

TEST_F(LimitsTest, EscapeDuringAHistogramsDragPutsEverythingBack) {
    Mouse(WM_LBUTTONDOWN, PointAt(HistogramItem, Place(5.5, kHistogramMargin)));
    Mouse(WM_MOUSEMOVE, PointAt(HistogramItem, Place(9.8, kHistogramMargin)));
    EXPECT_EQ(Cell(0, InsideItem), L"70.0 %"); // the upper limit goes along: 3 to 9
    EXPECT_NEAR(At<ColumnTargetItem>(TargetItem).GetTarget(), 9.8, 0.1);
    MSG escape{Grid().m_hWnd, WM_KEYDOWN, VK_ESCAPE, 0, 0, {}};
    Grid().PreTranslateMessage(&escape);
    EXPECT_EQ(Cell(0, InsideItem), L"60.0 %");
    EXPECT_EQ(At<ColumnTargetItem>(TargetItem).GetTarget(), 5.5);
    EXPECT_EQ(At<ColumnPlotItem>(PlotItem).GetTarget(), 5.5);
    Mouse(WM_LBUTTONUP, PointAt(HistogramItem, 0.9));
    EXPECT_EQ(Cell(0, InsideItem), L"60.0 %");
}

TEST_F(LimitsTest, TheSliderDragsTheTargetOfAllPlots) {
    Mouse(WM_LBUTTONDOWN, PointAt(TargetItem, Place(5.5, kTargetMargin)));
    Mouse(WM_MOUSEMOVE, PointAt(TargetItem, Place(9.6, kTargetMargin)));
    EXPECT_NEAR(At<ColumnHistogramItem>(HistogramItem).GetTarget(), 9.6, 0.1);
    EXPECT_EQ(Cell(0, InsideItem), L"70.0 %"); // the upper limit goes along: 3 to 9
    Mouse(WM_LBUTTONUP, PointAt(TargetItem, Place(7, kTargetMargin)));
    EXPECT_NEAR(At<ColumnPlotItem>(PlotItem).GetTarget(), 7, 0.1);
    EXPECT_NEAR(At<ColumnHistogramItem>(HistogramItem).GetTarget(), 7, 0.1);
    EXPECT_EQ(Cell(0, InsideItem), L"60.0 %"); // it was pushed for as long as the target stood there
}

TEST_F(LimitsTest, AClickBesideTheHandleSetsTheTarget) {
    Mouse(WM_LBUTTONDOWN, PointAt(TargetItem, Place(1.9, kTargetMargin)));
    Mouse(WM_LBUTTONUP, PointAt(TargetItem, Place(1.9, kTargetMargin)));
    EXPECT_NEAR(At<ColumnPlotItem>(PlotItem).GetTarget(), 1.9, 0.1);
    EXPECT_THAT(Status(), testing::StartsWith(L"n: 70.0 % of the values lie from ")); // 2 to 8
}

TEST_F(LimitsTest, TipsTellTheBinUnderThePointer) {
    // 10 values: quartiles 3.25 and 7.75, bins 2 · 4.5 / cbrt(10) = 4.18 wide, 3 of them: 1 to 4 to 7 to 10.
    auto& histogram = At<ColumnHistogramItem>(HistogramItem);
    const auto tipAt = [&](double value) {
        histogram.OnMouseMove(0, PointAt(HistogramItem, Place(value, kHistogramMargin)), nullptr);
        return std::wstring(histogram.GetInfoTip());
    };
    EXPECT_EQ(tipAt(1.1), L"1 to 4: 3");
    EXPECT_EQ(tipAt(5.5), L"4 to 7: 3");
    EXPECT_EQ(tipAt(9.9), L"7 to 10: 4");
    EXPECT_EQ(tipAt(0.5), L"");
}

TEST_F(LimitsTest, DatesHaveLimitsToo) {
    OpenShipped(L"seattle-weather.csv");
    EXPECT_EQ(Cell(0, InsideItem), L"57.7 %");
    auto& histogram = At<ColumnHistogramItem>(HistogramItem);
    EXPECT_EQ(histogram.GetMin(), 15340);
    EXPECT_EQ(histogram.GetMax(), 16800);
    Grid().UpdateWindow();
    histogram.m_valueChanged(16071.0f, -99.0f, -99.0f);
    EXPECT_EQ(Status(), L"date: 28.9 % of the values lie from 2013-12-31 to 2015-02-25.");
    histogram.OnMouseMove(0, PointAt(HistogramItem, 0.07), nullptr);
    EXPECT_EQ(std::wstring(histogram.GetInfoTip()), L"2012-01-01 to 2012-05-01: 122");
}

TEST_F(LimitsTest, TextsShowHowOftenTheMostFrequentOnesCome) {
    OpenShipped(L"penguins.csv");
    auto& histogram = At<ColumnHistogramItem>(HistogramItem);
    EXPECT_EQ(histogram.GetTarget(), -99);
    EXPECT_EQ(histogram.GetMax(), 3);
    for (const auto& [place, tip] :
         {std::pair{0.1, L"Adelie: 152"}, std::pair{0.5, L"Gentoo: 124"}, std::pair{0.9, L"Chinstrap: 68"}}) {
        histogram.OnMouseMove(0, PointAt(HistogramItem, place), nullptr);
        EXPECT_EQ(std::wstring(histogram.GetInfoTip()), tip);
    }
    EXPECT_EQ(dynamic_cast<ColumnTargetItem*>(Grid().GetRows()->GetAt(0)->GetRecord()->GetItem(TargetItem)), nullptr);
}

// --- Row height ------------------------------------------------------------------------------------------------------

TEST_F(ProfilerFrameTest, TheHeightOfRowsIsChosenAndKept) {
    OpenShipped(L"penguins.csv");
    EXPECT_NE(MenuState(2, ID_VIEW_ROW_HEIGHT_FIRST + 1) & MF_CHECKED, 0u);
    Command(ID_VIEW_ROW_HEIGHT_FIRST + 1);
    EXPECT_EQ(Grid().GetPaintManager()->GetRowHeight(), 34);
    EXPECT_EQ(Status(), L"Rows are 34 pixels high.");
    Command(ID_VIEW_ROW_HEIGHT_LAST);
    EXPECT_EQ(Grid().GetPaintManager()->GetRowHeight(), 48);
    EXPECT_EQ(MenuState(2, ID_VIEW_ROW_HEIGHT_FIRST) & MF_CHECKED, 0u);
    EXPECT_NE(MenuState(2, ID_VIEW_ROW_HEIGHT_LAST) & MF_CHECKED, 0u);
    Command(ID_VIEW_THEME_FIRST + 3); // makes a paint manager of its own
    EXPECT_EQ(Grid().GetPaintManager()->GetRowHeight(), 48);
    Restart();
    OpenShipped(L"penguins.csv");
    EXPECT_EQ(Grid().GetPaintManager()->GetRowHeight(), 48);
    const CRect row = Grid().GetRows()->GetAt(0)->GetRect();
    EXPECT_EQ(Grid().GetRows()->GetAt(1)->GetRect().top - row.top, 48);
    ProfilerTestApp::Get().WriteProfileInt(L"Window", L"RowHeight", 5); // none of the choices
    Restart();
    EXPECT_EQ(Grid().GetPaintManager()->GetRowHeight(), 34);
}

// --- Typed numbers ---------------------------------------------------------------------------------------------------

class TypedTest : public LimitsTest {
protected:
    void SetUp() override {
        LimitsTest::SetUp();
        Grid().UpdateWindow();
        Grid().SetFocus();
    }
    KyDragLineMinMaxRecordItem& Scale() { return At<KyDragLineMinMaxRecordItem>(ScaleItem); }
    bool IsEditing() { return Grid().GetActiveItem() != nullptr; }
    /// Clicks the number at that end of the scale.
    void ClickEnd(bool minimum) {
        CXTPReportRow* const row = Grid().GetRows()->GetAt(0);
        const CRect rect = row->GetItemRect(&Scale());
        const CPoint point(minimum ? rect.left + 4 : rect.right - 4, rect.bottom - 6);
        Mouse(WM_LBUTTONDOWN, point);
        Mouse(WM_LBUTTONUP, point);
        ASSERT_TRUE(IsEditing());
    }
    void TypeEnd(bool minimum, const wchar_t* text) {
        ClickEnd(minimum);
        TypeText(text);
        TypeKey(VK_RETURN);
        EXPECT_FALSE(IsEditing());
    }
    void EditLimit() {
        Grid().SetFocusedColumn(Grid().GetColumns()->Find(RequiredItem));
        TypeKey(VK_F2);
        ASSERT_TRUE(IsEditing());
    }
    ShareItem& Inside() { return At<ShareItem>(InsideItem); }
    bool IsInsideRed() {
        CClientDC dc(nullptr);
        dc.SetTextColor(RGB(0, 0, 0));
        XTP_REPORTRECORDITEM_DRAWARGS args;
        args.pDC = &dc;
        Inside().OnDrawCaption(&args, nullptr);
        return dc.GetTextColor() == RGB(255, 0, 0);
    }
};

TEST_F(TypedTest, ATypedEndBecomesTheCellsScale) {
    EXPECT_EQ(Scale().GetMin(), 1.0);
    EXPECT_EQ(Scale().GetMax(), 10.0);
    TypeEnd(true, L"-5");
    EXPECT_EQ(Scale().GetMin(), -5.0);
    EXPECT_EQ(Status(), L"n: the scale now runs from -5 to 10.");
    TypeEnd(false, L"7,5");
    EXPECT_EQ(Scale().GetMax(), 7.5);
    EXPECT_EQ(Status(), L"n: the scale now runs from -5 to 7.5.");
    EXPECT_EQ(Scale().GetTarget(), 5.5) << "the target stays";
}

TEST_F(TypedTest, AMinimumThatIsNotBelowTheMaximumLeavesTheScale) {
    TypeEnd(true, L"10");
    EXPECT_EQ(Scale().GetMin(), 1.0);
    EXPECT_EQ(Status(), L"n: the minimum 10 is not below the maximum 10. The scale still runs from 1 to 10.");
    TypeEnd(false, L"0");
    EXPECT_EQ(Scale().GetMax(), 10.0);
    EXPECT_EQ(Status(), L"n: the minimum 1 is not below the maximum 0. The scale still runs from 1 to 10.");
    TypeEnd(false, L"inf");
    EXPECT_EQ(Scale().GetMax(), 10.0);
    EXPECT_EQ(Status(), L"n: an end of a scale must be finite. The scale still runs from 1 to 10.");
}

TEST_F(TypedTest, TheTargetIsDraggedOnTheTypedScale) {
    TypeEnd(true, L"0");
    TypeEnd(false, L"20");
    Grid().UpdateWindow();
    const CRect rect = Scale().GetItemRect();
    const auto at = [&rect](double value) {
        const double place = value / 20 * (1 - 2 * kTargetMargin) + kTargetMargin;
        return CPoint(rect.left + 1 + static_cast<int>((rect.Width() - 2) * place + 0.5), rect.CenterPoint().y);
    };
    Mouse(WM_LBUTTONDOWN, at(5.5));
    Mouse(WM_MOUSEMOVE, at(7));
    Mouse(WM_LBUTTONUP, at(7));
    EXPECT_NEAR(Scale().GetTarget(), 7, 0.2);
    EXPECT_EQ(At<ColumnTargetItem>(TargetItem).GetTarget(), Scale().GetTarget()) << "it is that of the other plots";
}

TEST_F(TypedTest, TheShareIsRedBelowItsLimit) {
    EXPECT_EQ(Cell(0, RequiredItem), L"90 %");
    EXPECT_TRUE(IsInsideRed()); // 60 %
    EditLimit();
    TypeText(L"60%");
    TypeKey(VK_RETURN);
    EXPECT_EQ(Cell(0, RequiredItem), L"60 %");
    EXPECT_FALSE(IsInsideRed());
    EXPECT_EQ(Status(), L"n: 60.0 % of the values lie inside, 60 % are asked for.");
    Dragged(3.5f, -99.0f, -99.0f);
    EXPECT_TRUE(IsInsideRed()) << "it follows the limits";
    EditLimit();
    TypeKey(VK_DELETE);
    TypeKey(VK_RETURN);
    EXPECT_EQ(Cell(0, RequiredItem), L"\u2013");
    EXPECT_FALSE(IsInsideRed());
    EXPECT_EQ(Status(), L"n: any share will do.");
}

TEST_F(TypedTest, OnlyTheLimitIsEdited) {
    for (int item = NameItem; item <= RequiredItem; ++item) {
        Grid().SetFocusedColumn(Grid().GetColumns()->Find(item));
        TypeKey(VK_F2);
        EXPECT_EQ(IsEditing(), item == RequiredItem) << item;
        if (!IsEditing())
            TypeKey(VK_ESCAPE); // plots have been taken hold of
        Grid().EditItem(nullptr);
    }
}

TEST_F(TypedTest, AFileThatIsReadWaitsForTheTypedNumber) {
    EditLimit();
    TypeText(L"50");
    Frame().OpenPath(Write(L"next.csv", "a\n1\n2\n"));
    HandleMessagesUntil(WM_TIMER);
    for (int i = 0; i < 20 && Frame().IsReading(); ++i)
        HandleMessagesUntil(WM_TIMER);
    EXPECT_EQ(Title(), L"ten.csv \u2013 Column Profiler");
    TypeKey(VK_RETURN);
    EXPECT_EQ(Cell(0, RequiredItem), L"50 %");
    WaitUntilRead();
    EXPECT_EQ(Title(), L"next.csv \u2013 Column Profiler");
}

// --- Details ---------------------------------------------------------------------------------------------------------

/// Looks at the dialog as soon as it is open, and closes it.
class DialogLook {
public:
    explicit DialogLook(const wchar_t* title) {
        s_look = this;
        m_title = title;
        m_timer = ::SetTimer(nullptr, 0, 30, &OnTimer);
    }
    ~DialogLook() {
        ::KillTimer(nullptr, m_timer);
        s_look = nullptr;
    }
    int lines = 0;
    bool hasDialogLook = false;
    CString firstValue;

private:
    static void CALLBACK OnTimer(HWND, UINT, UINT_PTR, DWORD) {
        const HWND dialog = ::FindWindow(L"#32770", s_look->m_title);
        if (dialog == nullptr || !::IsWindowVisible(dialog))
            return;
        if (auto* grid = dynamic_cast<CXTPReportControl*>(CWnd::FromHandlePermanent(::GetDlgItem(dialog, 100)))) {
            s_look->lines = grid->GetRows()->GetCount();
            s_look->firstValue = grid->GetRows()->GetAt(0)->GetRecord()->GetItem(1)->GetCaption(nullptr);
            s_look->hasDialogLook = dynamic_cast<KyDialogReportControlTheme*>(grid->GetPaintManager()) != nullptr;
        }
        ::PostMessage(dialog, WM_COMMAND, IDCANCEL, 0);
    }
    inline static DialogLook* s_look = nullptr;
    CString m_title;
    UINT_PTR m_timer;
};

TEST_F(TypedTest, TheDetailsTellOfTheSelectedColumn) {
    EXPECT_EQ(MenuState(2, ID_VIEW_DETAILS) & MF_GRAYED, 0u);
    DialogLook look(L"Details of n");
    Command(ID_VIEW_DETAILS);
    EXPECT_EQ(look.lines, 12);
    EXPECT_EQ(look.firstValue, L"Number");
    EXPECT_TRUE(look.hasDialogLook);
}

TEST_F(TypedTest, ADoubleClickOpensTheDetailsWhereItNeitherDragsNorEdits) {
    const CRect name = Grid().GetRows()->GetAt(0)->GetItemRect(&At<CXTPReportRecordItem>(NameItem));
    DialogLook look(L"Details of n");
    Mouse(WM_LBUTTONDBLCLK, name.CenterPoint());
    EXPECT_EQ(look.lines, 12);
    look.lines = 0;
    Mouse(WM_LBUTTONDBLCLK, PointAt(RequiredItem, 0.5));
    EXPECT_TRUE(IsEditing());
    Mouse(WM_LBUTTONDBLCLK, PointAt(PlotItem, 0.5));
    EXPECT_EQ(look.lines, 0);
}

TEST_F(ProfilerFrameTest, WithoutAFileThereAreNoDetails) {
    EXPECT_NE(MenuState(2, ID_VIEW_DETAILS) & MF_GRAYED, 0u);
    Command(ID_VIEW_DETAILS);
}

// --- Themes, layout, language ----------------------------------------------------------------------------------------

TEST_F(ProfilerFrameTest, AThemeChangesTheGridAndKeepsItsTexts) {
    EXPECT_NE(MenuState(2, ID_VIEW_THEME_FIRST + 11) & MF_CHECKED, 0u);
    Command(ID_VIEW_THEME_FIRST + 10);
    EXPECT_EQ(Grid().GetPaintManager()->GetTheme(), xtpReportThemeOffice2013);
    EXPECT_STREQ(Grid().GetPaintManager()->GetNoItemText(), L"Open a CSV file (Ctrl+O) or drop one here.");
    EXPECT_EQ(MenuState(2, ID_VIEW_THEME_FIRST + 11) & MF_CHECKED, 0u);
    EXPECT_NE(MenuState(2, ID_VIEW_THEME_FIRST + 10) & MF_CHECKED, 0u);
    EXPECT_EQ(Status(), L"Theme: Office 2013");
}

TEST_F(ProfilerFrameTest, TheLayoutIsKept) {
    Grid().GetColumns()->Find(CString(L"Missing"))->SetVisible(FALSE);
    Grid().GetColumns()->Find(CString(L"Plot"))->SetWidth(300);
    Restart();
    EXPECT_FALSE(Grid().GetColumns()->Find(CString(L"Missing"))->IsVisible());
    EXPECT_TRUE(Grid().GetColumns()->Find(CString(L"Count"))->IsVisible());
    EXPECT_EQ(Grid().GetColumns()->Find(CString(L"Plot"))->GetWidth(), 300);
}

TEST_F(ProfilerFrameTest, TheNameColumnCannotBeHiddenByTheUser) {
    EXPECT_FALSE(Grid().GetColumns()->Find(CString(L"Name"))->IsAllowRemove());
}

TEST_F(ProfilerFrameTest, ThePlaceOfTheWindowIsKept) {
    Frame().MoveWindow(30, 20, 900, 500);
    Restart();
    CRect place;
    Frame().GetWindowRect(&place);
    EXPECT_EQ(place, CRect(30, 20, 930, 520));
}

TEST_F(ProfilerFrameTest, APlaceOutOfSightIsNotRestored) {
    Frame().MoveWindow(30, 20, 900, 500);
    Close();
    LPBYTE data = nullptr;
    UINT size = 0;
    ASSERT_TRUE(ProfilerTestApp::Get().GetProfileBinary(L"Window", L"Placement", &data, &size));
    auto* placement = reinterpret_cast<WINDOWPLACEMENT*>(data);
    ::OffsetRect(&placement->rcNormalPosition, 20000, 0);
    ProfilerTestApp::Get().WriteProfileBinary(L"Window", L"Placement", data, size);
    delete[] data;
    CreateFrame();
    CRect place;
    Frame().GetWindowRect(&place);
    EXPECT_NE(::MonitorFromRect(&place, MONITOR_DEFAULTTONULL), nullptr);
}

/// Texts are German while this lives.
class German {
public:
    German() {
        wchar_t program[MAX_PATH] = L"";
        ::GetModuleFileName(nullptr, program, MAX_PATH);
        const std::filesystem::path folder = std::filesystem::path(program).parent_path() / L"locale";
        EXPECT_TRUE(SetLanguage(L"de", folder.c_str()));
    }
    ~German() { SetLanguage(nullptr, nullptr); }
};

/// What is wrong with the mnemonics of the menu and its popups, a line for each item.
std::wstring MnemonicFaults(CMenu& menu) {
    std::wstring faults;
    std::wstring taken;
    for (int i = 0; i < menu.GetMenuItemCount(); ++i) {
        if (menu.GetMenuState(i, MF_BYPOSITION) & MF_SEPARATOR)
            continue;
        CString text;
        menu.GetMenuString(i, text, MF_BYPOSITION);
        const int mark = text.Find(L'&');
        const wchar_t key = mark < 0 ? L'\0' : static_cast<wchar_t>(::towupper(text[mark + 1]));
        if (key == L'\0' || taken.find(key) != std::wstring::npos)
            faults += std::wstring(text) + L'\n';
        taken += key;
        if (CMenu* popup = menu.GetSubMenu(i))
            faults += MnemonicFaults(*popup);
    }
    return faults;
}

TEST_F(ProfilerFrameTest, EveryMenuItemHasAMnemonicOfItsOwn) {
    EXPECT_EQ(MnemonicFaults(*Frame().GetMenu()), L"");
    const German german;
    Restart();
    EXPECT_EQ(MnemonicFaults(*Frame().GetMenu()), L"");
}

TEST_F(ProfilerFrameTest, TextsAreInTheLanguageOfTheCatalogue) {
    const German german;
    Restart();
    Open(Write(L"odd.csv", "a,b\n1,2\n3,4\nx\n"));
    EXPECT_STREQ(Grid().GetColumns()->Find(CString(L"Name"))->GetCaption(), L"Spalte");
    EXPECT_EQ(Cell(0, TypeItem), L"Zahl");
    EXPECT_THAT(Status(), testing::StartsWith(L"odd.csv, Zeile 4: 1 Feld"));
    Open(L"Z:\\no\\such.csv");
    EXPECT_THAT(ProfilerTestApp::Get().m_boxes, ElementsAre(testing::HasSubstr(L"wurde nicht gefunden")));
    CString menu;
    Frame().GetMenu()->GetMenuString(0, menu, MF_BYPOSITION);
    EXPECT_STREQ(menu, L"&Datei");
}

} // namespace
