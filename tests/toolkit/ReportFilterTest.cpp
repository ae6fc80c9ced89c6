// The filter of a report control, and the edit control in which the user types it.
#include "OutlineGrid.h"

#include "../support/QueuedKeys.h"

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class FilterTest : public OutlineTest {
protected:
    FilterTest() {
        m_first = Add(nullptr, _T("Blue Whale"), _T("sea"), _T("30"));
        m_second = Add(nullptr, _T("blackbird"), _T("air"), _T("0.1"));
        m_third = Add(nullptr, _T("Shark"), _T("sea"), _T("2"));
        m_grid.Populate();
        Settle();
    }
    void Filter(LPCTSTR text) {
        m_grid.SetFilterText(text);
        m_grid.Populate();
    }
    CXTPReportRecord *m_first, *m_second, *m_third;
};

TEST_F(FilterTest, RecordsThatContainTheTextAreShown) {
    EXPECT_EQ(m_grid.GetFilterText(), _T(""));
    m_grid.SetFilterText(_T("a"));
    EXPECT_EQ(m_grid.GetFilterText(), _T("a"));
    EXPECT_EQ(m_grid.GetRows()->GetCount(), 3) << "from the next Populate on";
    Filter(_T("ark"));
    EXPECT_THAT(Shown(), ElementsAre(L"Shark"));
    Filter(_T(""));
    EXPECT_EQ(m_grid.GetRows()->GetCount(), 3);
    Filter(_T("nothing like it"));
    EXPECT_THAT(Shown(), IsEmpty());
}

TEST_F(FilterTest, TheCaseOfLettersDoesNotCountInAnyScript) {
    Filter(_T("BL"));
    EXPECT_THAT(Shown(), ElementsAre(L"Blue Whale", L"blackbird"));
    Add(nullptr, L"\u00C4pfel \u0416\u0443\u043A \u03C3\u03BF\u03C6\u03CC\u03C2");
    for (const LPCTSTR text : {L"\u00E4P", L"\u0436\u0423", L"\u03A3\u039F\u03A6\u038C\u03A3"}) {
        Filter(text);
        EXPECT_EQ(m_grid.GetRows()->GetCount(), 1) << std::wstring(text).size();
    }
}

TEST_F(FilterTest, EveryWordHasToOccurInSomeColumn) {
    Filter(_T("  sea   wh "));
    EXPECT_THAT(Shown(), ElementsAre(L"Blue Whale"));
    Filter(_T("sea bird"));
    EXPECT_THAT(Shown(), IsEmpty());
    Filter(_T("whale sea 30"));
    EXPECT_THAT(Shown(), ElementsAre(L"Blue Whale"));
    Filter(_T("whalesea"));
    EXPECT_THAT(Shown(), IsEmpty()) << "no word reaches over two cells";
    Filter(_T(" \t "));
    EXPECT_EQ(m_grid.GetRows()->GetCount(), 3);
}

TEST_F(FilterTest, OnlyVisibleColumnsThatAreFiltrableCount) {
    EXPECT_TRUE(m_columns[1]->IsFiltrable());
    m_columns[1]->SetFiltrable(FALSE);
    Filter(_T("sea"));
    EXPECT_THAT(Shown(), IsEmpty());
    m_columns[1]->SetFiltrable(TRUE);
    m_grid.Populate();
    EXPECT_EQ(m_grid.GetRows()->GetCount(), 2);
    m_columns[1]->SetVisible(FALSE);
    m_grid.Populate();
    EXPECT_THAT(Shown(), IsEmpty());
}

TEST_F(FilterTest, ARecordMayBeFoundByMoreThanItShows) {
    class Described : public CXTPReportRecord {
    public:
        CString GetFilterText(const CXTPReportColumns& rColumns) override {
            return CXTPReportRecord::GetFilterText(rColumns) + _T("mammal");
        }
    };
    auto* record = m_grid.AddRecord(new Described);
    for (int i = 0; i < 3; ++i)
        record->AddItem(new ProbeItem(_T("bear")));
    Filter(_T("MAMMAL"));
    EXPECT_THAT(Shown(), ElementsAre(L"bear"));
}

TEST_F(FilterTest, InvisibleRecordsStayInvisible) {
    m_third->SetVisible(FALSE);
    Filter(_T("sea"));
    EXPECT_THAT(Shown(), ElementsAre(L"Blue Whale"));
}

TEST_F(FilterTest, ARecordIsShownForOneBelowIt) {
    CXTPReportRecord* const child = Add(m_third, _T("fin"));
    Add(m_third, _T("tooth"));
    Add(child, _T("bone"));
    for (CXTPReportRecord* const record : {m_third, child})
        record->SetExpanded(TRUE);
    Filter(_T("bone"));
    EXPECT_THAT(Shown(), ElementsAre(L"Shark", L".fin", L"..bone"));
    Filter(_T("shark"));
    EXPECT_THAT(Shown(), ElementsAre(L"Shark")) << "what is below has to contain the word itself";
    EXPECT_FALSE(Row(0)->HasChildren());
    Filter(_T(""));
    EXPECT_EQ(m_grid.GetRows()->GetCount(), 6);
}

TEST_F(FilterTest, WhatIsFoundBelowACollapsedRecordIsShownAsLongAsTheFilterStays) {
    CXTPReportRecord* const child = Add(m_third, _T("fin"));
    Add(child, _T("bone"));
    Add(m_first, _T("tail bone"));
    m_first->SetExpanded(TRUE);
    Filter(_T("bone"));
    EXPECT_THAT(Shown(), ElementsAre(L"Blue Whale", L".tail bone", L"Shark", L".fin", L"..bone"));
    Row(2)->SetExpanded(FALSE);
    m_grid.Populate();
    EXPECT_THAT(Shown(), ElementsAre(L"Blue Whale", L".tail bone", L"Shark")) << "collapsed in what was found";
    m_grid.CollapseAll();
    EXPECT_THAT(Shown(), ElementsAre(L"Blue Whale", L"Shark"));
    Filter(_T("bon"));
    EXPECT_THAT(Shown(), ElementsAre(L"Blue Whale", L".tail bone", L"Shark", L".fin", L"..bone")) << "another filter";
    Filter(_T(" "));
    EXPECT_THAT(Shown(), ElementsAre(L"Blue Whale", L".tail bone", L"blackbird", L"Shark")) << "as it was before";
    EXPECT_TRUE(m_first->IsExpanded());
    EXPECT_FALSE(m_third->IsExpanded());
}

TEST_F(FilterTest, WhatIsFoundInACollapsedGroupIsShownAsLongAsTheFilterStays) {
    m_grid.GetColumns()->GetGroupsOrder()->Add(m_columns[1]);
    m_grid.Populate();
    m_grid.CollapseAll();
    Filter(_T("whale"));
    EXPECT_THAT(Shown(), ElementsAre(L"[B: sea (1)]", L".Blue Whale"));
    Filter(_T(""));
    EXPECT_THAT(Shown(), ElementsAre(L"[B: air (1)]", L"[B: sea (2)]"));
}

TEST_F(FilterTest, GroupsCountWhatIsShown) {
    m_grid.GetColumns()->GetGroupsOrder()->Add(m_columns[1]);
    m_grid.Populate();
    Row(0)->SetExpanded(FALSE);
    Filter(_T("whale"));
    EXPECT_THAT(Shown(), ElementsAre(L"[B: sea (1)]", L".Blue Whale"));
    for (const LPCTSTR text : {_T("wha"), _T("wh"), _T("w"), _T("")})
        Filter(text);
    EXPECT_THAT(Shown(), ElementsAre(L"[B: air (1)]", L"[B: sea (2)]", L".Blue Whale", L".Shark"))
        << "a group that was hidden for a time is collapsed as it was";
}

TEST_F(FilterTest, SelectionAndFocusStayWithTheirRecords) {
    Focus(2);
    m_grid.GetSelectedRows()->Add(Row(1));
    Filter(_T("sea"));
    EXPECT_EQ(Focused(), 1);
    EXPECT_THAT(Selected(), ElementsAre(1));
    Filter(_T(""));
    EXPECT_EQ(Focused(), 2);
    EXPECT_THAT(Selected(), ElementsAre(2));
    Filter(_T("bird"));
    EXPECT_EQ(Focused(), -1);
}

TEST_F(FilterTest, VirtualModeIsNotFiltered) {
    auto* record = new CXTPReportRecord;
    record->AddItem(new ProbeItem(_T("v")));
    m_grid.SetVirtualMode(record, 20);
    Filter(_T("zzz"));
    EXPECT_EQ(m_grid.GetRows()->GetCount(), 20);
    m_grid.SetVirtualMode(nullptr, 0);
}

// --- The edit control ------------------------------------------------------------------------------------------------

class FilterEditTest : public FilterTest {
protected:
    FilterEditTest() {
        m_edit.Create(WS_CHILD | WS_VISIBLE | ES_AUTOHSCROLL, CRect(310, 0, 420, 24), &m_owner, 44);
        // Letters without smoothed edges have one colour.
        m_font.CreateFont(-12, 0, 0, 0, FW_NORMAL, 0, 0, 0, DEFAULT_CHARSET, 0, 0, NONANTIALIASED_QUALITY, 0,
                          _T("Tahoma"));
        m_edit.SetFont(&m_font);
        m_edit.SetReportCtrl(&m_grid);
        m_edit.SetFocus();
    }
    ~FilterEditTest() override {
        if (m_edit.m_hWnd)
            m_edit.DestroyWindow();
    }
    CString Text() const {
        CString text;
        m_edit.GetWindowText(text);
        return text;
    }
    /// Pixels of the hint's colour on the screen.
    int GreyPixels() {
        m_edit.UpdateWindow();
        CRect rc;
        m_edit.GetClientRect(&rc);
        DibCanvas canvas(rc.Width(), rc.Height(), RGB(255, 0, 255));
        CClientDC dc(&m_edit);
        canvas.Dc().BitBlt(0, 0, rc.Width(), rc.Height(), &dc, 0, 0, SRCCOPY);
        return canvas.Count(::GetSysColor(COLOR_GRAYTEXT));
    }
    CFont m_font;
    CXTPReportFilterEditControl m_edit;
};

TEST_F(FilterEditTest, FiltersWhileTheUserTypes) {
    EXPECT_EQ(m_edit.GetReportCtrl(), &m_grid);
    TypeText(L"s");
    EXPECT_EQ(m_grid.GetRows()->GetCount(), 2);
    TypeText(L"h");
    EXPECT_THAT(Shown(), ElementsAre(L"Shark"));
    TypeKey(VK_BACK);
    m_edit.SetWindowText(_T("black"));
    EXPECT_THAT(Shown(), ElementsAre(L"blackbird"));
}

TEST_F(FilterEditTest, EscapeShowsAllRecordsAndIsTheDialogsAfterwards) {
    TypeText(L"sh");
    TypeKey(VK_ESCAPE);
    EXPECT_EQ(Text(), _T(""));
    EXPECT_EQ(m_grid.GetRows()->GetCount(), 3);
    MSG message = {};
    message.hwnd = m_edit.m_hWnd;
    message.message = WM_KEYDOWN;
    message.wParam = VK_ESCAPE;
    EXPECT_FALSE(m_edit.PreTranslateMessage(&message));
}

TEST_F(FilterEditTest, DownGoesIntoTheGrid) {
    TypeText(L"s");
    TypeKey(VK_DOWN);
    EXPECT_EQ(::GetFocus(), m_grid.m_hWnd);
    EXPECT_EQ(Focused(), 0);
    Focus(1);
    m_edit.SetFocus();
    TypeKey(VK_DOWN);
    EXPECT_EQ(Focused(), 1) << "where the focus was";
}

TEST_F(FilterEditTest, AGridWithVeryManyRecordsWaitsForAPause) {
    for (int i = 0; i < 20'000; ++i)
        m_grid.AddRecord(new CXTPReportRecord);
    m_grid.Populate();
    m_edit.SetWindowText(_T("shark"));
    EXPECT_EQ(m_grid.GetRows()->GetCount(), 20'003);
    Pump(400);
    EXPECT_THAT(Shown(), ElementsAre(L"Shark"));
    m_edit.SetWindowText(_T("whale"));
    TypeKey(VK_DOWN);
    EXPECT_THAT(Shown(), ElementsAre(L"Blue Whale")) << "nobody goes into what is about to change";
}

TEST_F(FilterEditTest, ShowsAHintOfTheGridOrOfTheHost) {
    EXPECT_EQ(m_edit.GetHint(), m_grid.GetText(xtpReportTextFilterCue));
    m_edit.SetHint(_T("Name"));
    EXPECT_EQ(m_edit.GetHint(), _T("Name"));
    EXPECT_GT(GreyPixels(), 10);
    m_edit.SetWindowText(_T("x"));
    EXPECT_EQ(GreyPixels(), 0);
    m_edit.SetWindowText(_T(""));
    EXPECT_GT(GreyPixels(), 10);
    m_edit.SetHint(_T(""));
    EXPECT_EQ(GreyPixels(), 0);
}

TEST_F(FilterEditTest, TakesOverTheFilterThatIsThere) {
    Filter(_T("sea"));
    m_edit.SetReportCtrl(&m_grid);
    EXPECT_EQ(Text(), _T("sea"));
    EXPECT_EQ(m_grid.GetRows()->GetCount(), 2);
}

TEST_F(FilterEditTest, ForgetsAGridThatIsDestroyed) {
    m_grid.DestroyWindow();
    EXPECT_EQ(m_edit.GetReportCtrl(), nullptr);
    m_edit.SetWindowText(_T("x"));
    TypeKey(VK_DOWN);
    m_edit.SetReportCtrl(nullptr);
    EXPECT_EQ(m_edit.GetHint(), _T(""));
}

} // namespace
