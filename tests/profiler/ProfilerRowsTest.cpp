// Which rows the main window shows, and in which order: filter, groups, sorting.
#include "ProfilerTestApp.h"

#include "resource.h"

#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;

/// Penguins: the numbers Beak Length (mm), Beak Depth (mm), Flipper Length (mm) and Body Mass (g), and three columns of
/// texts.
class ProfilerRowsTest : public ProfilerFrameTest {
protected:
    void SetUp() override {
        ProfilerFrameTest::SetUp();
        OpenShipped(L"penguins.csv");
    }

    /// What the rows show in their first column, group rows their caption.
    std::vector<std::wstring> Names() {
        std::vector<std::wstring> names;
        for (int i = 0; i < Rows(); ++i) {
            const CXTPReportRow* const row = Grid().GetRows()->GetAt(i);
            const auto* const group = dynamic_cast<const CXTPReportGroupRow*>(row);
            names.push_back(group != nullptr ? group->GetCaption().GetString() : Cell(i, 0));
        }
        return names;
    }

    CWnd& FilterText() {
        CWnd* const text = CWnd::FromHandle(::FindWindowEx(Bar().m_hWnd, nullptr, L"EDIT", nullptr));
        return *text;
    }
    std::wstring FilterCount() {
        HWND text = nullptr;
        for (HWND next = nullptr; (next = ::FindWindowEx(Bar().m_hWnd, next, L"STATIC", nullptr)) != nullptr;)
            text = next;
        CString count;
        CWnd::FromHandle(text)->GetWindowText(count);
        return count.GetString();
    }
    CWnd& Bar() {
        for (HWND child = ::GetTopWindow(Frame().m_hWnd); child != nullptr; child = ::GetWindow(child, GW_HWNDNEXT)) {
            if (auto* const bar = dynamic_cast<CControlBar*>(CWnd::FromHandlePermanent(child));
                bar != nullptr && bar != Frame().GetMessageBar())
                return *bar;
        }
        throw std::runtime_error("there is no filter bar");
    }
    /// Whether a window took the key before it reached the text.
    bool PressInFilter(UINT key) {
        MSG message{FilterText().m_hWnd, WM_KEYDOWN, key, 1, 0, {}};
        return CWnd::WalkPreTranslateTree(Frame().m_hWnd, &message) != FALSE;
    }
    void Sort(int item) { Grid().GetReportHeader()->Sort(Grid().GetColumns()->Find(item), FALSE); }
};

// --- Filter ---------------------------------------------------------------------------------------------------------

TEST_F(ProfilerRowsTest, TheFilterIsHiddenUntilItIsAskedFor) {
    EXPECT_FALSE(Bar().IsWindowVisible());
    CRect before;
    Grid().GetWindowRect(&before);
    Command(ID_VIEW_FILTER);
    EXPECT_TRUE(Bar().IsWindowVisible());
    EXPECT_EQ(CWnd::GetFocus(), &FilterText());
    EXPECT_TRUE(MenuState(2, ID_VIEW_FILTER) & MF_CHECKED);
    CRect bar, grid;
    Bar().GetWindowRect(&bar);
    Grid().GetWindowRect(&grid);
    EXPECT_EQ(bar.top, before.top);
    EXPECT_EQ(grid.top, bar.bottom);
    EXPECT_EQ(grid.bottom, before.bottom);
    Command(ID_VIEW_FILTER);
    EXPECT_FALSE(Bar().IsWindowVisible());
    EXPECT_EQ(CWnd::GetFocus(), &Grid());
    EXPECT_FALSE(MenuState(2, ID_VIEW_FILTER) & MF_CHECKED);
}

TEST_F(ProfilerRowsTest, TheFilterFollowsTheResolutionUnlessNoMonitorHasIt) {
    Command(ID_VIEW_FILTER);
    CRect bar, place;
    Frame().GetWindowRect(&place);
    const auto goTo = [&](int dpi) {
        Frame().SendMessage(WM_DPICHANGED, MAKEWPARAM(dpi, dpi), reinterpret_cast<LPARAM>(&place));
        Bar().GetWindowRect(&bar);
        return bar.Height();
    };
    const int height = goTo(96);
    const int larger = goTo(144);
    EXPECT_GT(larger, height * 5 / 4);
    for (const int noMonitor : {0, 9601, 47577, 65535})
        EXPECT_EQ(goTo(noMonitor), larger) << noMonitor;
    EXPECT_EQ(goTo(96), height);
}

TEST_F(ProfilerRowsTest, OnlyColumnsWithSuchANameAreShown) {
    Command(ID_VIEW_FILTER);
    EXPECT_EQ(FilterCount(), L"7 of 7 columns");
    FilterText().SetWindowText(L"LENGTH");
    EXPECT_THAT(Names(), ElementsAre(L"Beak Length (mm)", L"Flipper Length (mm)"));
    EXPECT_EQ(FilterCount(), L"2 of 7 columns");
    FilterText().SetWindowText(L"mm beak");
    EXPECT_THAT(Names(), ElementsAre(L"Beak Length (mm)", L"Beak Depth (mm)"));
}

TEST_F(ProfilerRowsTest, TheFilterLooksAtNamesAlone) {
    Command(ID_VIEW_FILTER);
    FilterText().SetWindowText(L"number"); // the type of four columns
    EXPECT_EQ(Rows(), 0);
    EXPECT_STREQ(Grid().GetPaintManager()->GetNoItemText(), L"No column has such a name.");
    EXPECT_EQ(FilterCount(), L"0 of 7 columns");
}

TEST_F(ProfilerRowsTest, EscapeEmptiesTheFilterAndThenClosesIt) {
    Command(ID_VIEW_FILTER);
    FilterText().SetWindowText(L"mass");
    EXPECT_TRUE(PressInFilter(VK_ESCAPE));
    EXPECT_EQ(Rows(), 7);
    EXPECT_TRUE(Bar().IsWindowVisible());
    EXPECT_TRUE(PressInFilter(VK_ESCAPE));
    EXPECT_FALSE(Bar().IsWindowVisible());
}

TEST_F(ProfilerRowsTest, ClosingTheFilterShowsAllColumns) {
    Command(ID_VIEW_FILTER);
    FilterText().SetWindowText(L"mass");
    Command(ID_VIEW_FILTER);
    EXPECT_EQ(Rows(), 7);
}

TEST_F(ProfilerRowsTest, TheFilterOpensAgainAfterItsWindowWasAskedToClose) {
    Command(ID_VIEW_FILTER);
    FilterText().SetWindowText(L"mass");
    Bar().SendMessage(WM_CLOSE);
    EXPECT_FALSE(Bar().IsWindowVisible());
    EXPECT_EQ(Rows(), 7);
    Command(ID_VIEW_FILTER);
    EXPECT_TRUE(Bar().IsWindowVisible());
}

TEST_F(ProfilerRowsTest, TabEnterAndDownGoIntoTheGrid) {
    for (const UINT key : {VK_TAB, VK_RETURN}) {
        FilterText().SetFocus();
        EXPECT_TRUE(PressInFilter(key));
        EXPECT_EQ(CWnd::GetFocus(), &Grid());
    }
    FilterText().SetFocus();
    FilterText().SendMessage(WM_KEYDOWN, VK_DOWN, 1);
    EXPECT_EQ(CWnd::GetFocus(), &Grid());
}

TEST_F(ProfilerRowsTest, AnotherFileIsFilteredAsWell) {
    Command(ID_VIEW_FILTER);
    FilterText().SetWindowText(L"temp");
    OpenShipped(L"seattle-weather.csv");
    EXPECT_THAT(Names(), ElementsAre(L"temp_max", L"temp_min"));
    EXPECT_EQ(FilterCount(), L"2 of 6 columns");
}

// --- Groups ---------------------------------------------------------------------------------------------------------

TEST_F(ProfilerRowsTest, ColumnsAreGroupedByTheirType) {
    Command(ID_VIEW_GROUP_BY_TYPE);
    EXPECT_TRUE(MenuState(2, ID_VIEW_GROUP_BY_TYPE) & MF_CHECKED);
    EXPECT_THAT(Names(),
                ElementsAre(L"Type: Number (4)", L"Beak Length (mm)", L"Beak Depth (mm)", L"Flipper Length (mm)",
                            L"Body Mass (g)", L"Type: Text (3)", L"Species", L"Island", L"Sex"));
    Command(ID_VIEW_GROUP_BY_TYPE);
    EXPECT_FALSE(MenuState(2, ID_VIEW_GROUP_BY_TYPE) & MF_CHECKED);
    EXPECT_EQ(Rows(), 7);
}

TEST_F(ProfilerRowsTest, GroupsAreKept) {
    Command(ID_VIEW_GROUP_BY_TYPE);
    Restart();
    OpenShipped(L"penguins.csv");
    EXPECT_EQ(Names().front(), L"Type: Number (4)");
}

TEST_F(ProfilerRowsTest, FilteredGroupsHaveTheirOwnCount) {
    Command(ID_VIEW_GROUP_BY_TYPE);
    Command(ID_VIEW_FILTER);
    FilterText().SetWindowText(L"length");
    EXPECT_THAT(Names(), ElementsAre(L"Type: Number (2)", L"Beak Length (mm)", L"Flipper Length (mm)"));
    Grid().GetRows()->GetAt(0)->SetExpanded(FALSE);
    FilterText().SetWindowText(L"len");
    EXPECT_EQ(FilterCount(), L"2 of 7 columns") << "in a collapsed group as well";
}

TEST_F(ProfilerRowsTest, TheGroupBoxIsShownAboveTheHeadersAndKept) {
    EXPECT_FALSE(Grid().IsGroupByVisible());
    Command(ID_VIEW_GROUP_BOX);
    EXPECT_TRUE(Grid().IsGroupByVisible());
    EXPECT_TRUE(MenuState(2, ID_VIEW_GROUP_BOX) & MF_CHECKED);
    EXPECT_EQ(Grid().GetGroupByRect().bottom, Grid().GetHeaderRect().top);
    Restart();
    EXPECT_TRUE(Grid().IsGroupByVisible());
    Command(ID_VIEW_GROUP_BOX);
    EXPECT_FALSE(Grid().IsGroupByVisible());
}

TEST_F(ProfilerRowsTest, OnlyWhatManyColumnsShareGroups) {
    for (int item = 0; item <= RequiredItem; ++item) {
        const bool isShared = item == TypeItem || item == CountItem || item == MissingItem;
        EXPECT_EQ(Grid().GetColumns()->Find(item)->IsGroupable() != FALSE, isShared) << item;
    }
}

TEST_F(ProfilerRowsTest, NamesStayInSight) {
    Frame().SetWindowPos(nullptr, 0, 0, 700, 400, SWP_NOMOVE | SWP_NOZORDER);
    const CRect name = Grid().GetColumns()->Find(NameItem)->GetRect(),
                type = Grid().GetColumns()->Find(TypeItem)->GetRect();
    Grid().SetLeftOffset(100);
    EXPECT_EQ(Grid().GetColumns()->Find(NameItem)->GetRect(), name);
    EXPECT_EQ(Grid().GetColumns()->Find(TypeItem)->GetRect(), type - CPoint(100, 0));
}

TEST_F(ProfilerRowsTest, AGroupsRowHasNoDetails) {
    Command(ID_VIEW_GROUP_BY_TYPE);
    Grid().SetFocusedRow(Grid().GetRows()->GetAt(0));
    EXPECT_TRUE(MenuState(2, ID_VIEW_DETAILS) & MF_GRAYED);
    Command(ID_VIEW_DETAILS); // opens nothing that would wait for a key
    Grid().SetFocusedRow(Grid().GetRows()->GetAt(1));
    EXPECT_FALSE(MenuState(2, ID_VIEW_DETAILS) & MF_GRAYED);
}

// --- Sorting --------------------------------------------------------------------------------------------------------

/// 10 numbers: one standard deviation to either side is much of the scale of `even`, little of that of `peak`, of which
/// nearly all are the same. The medians stand in the middle, at the left end, and at three quarters.
class SortedPlotsTest : public ProfilerRowsTest {
protected:
    void SetUp() override {
        ProfilerFrameTest::SetUp();
        Open(Write(L"plots.csv", "text,even,peak,right\n"
                                 "a,0,0,0\nb,1,0,7\nb,2,0,7\nc,3,0,7\nc,4,0,7.5\n"
                                 "c,6,0,7.5\nd,7,0,8\nd,8,0,8\nd,9,0,8\nd,10,10,10\n"));
    }
};

TEST_F(SortedPlotsTest, DistributionsSortByHowMuchOfTheScaleTheBarTakes) {
    Sort(PlotItem);
    EXPECT_THAT(Names(), ElementsAre(L"right", L"peak", L"even", L"text"));
    Sort(PlotItem);
    EXPECT_THAT(Names(), ElementsAre(L"text", L"even", L"peak", L"right"));
}

TEST_F(SortedPlotsTest, SlidersSortByThePlaceOfTheTarget) {
    for (const int item : {TargetItem, ScaleItem}) {
        Sort(item);
        EXPECT_THAT(Names(), ElementsAre(L"peak", L"even", L"right", L"text"));
    }
}

TEST_F(SortedPlotsTest, HistogramsSortByTheFullestColumn) {
    Sort(HistogramItem);
    EXPECT_EQ(Names().back(), L"peak"); // 9 of 10 in one
    EXPECT_EQ(Names()[2], L"right");
}

} // namespace
