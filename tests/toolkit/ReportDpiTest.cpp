// A report control on monitors of different resolutions: everything scales, and nothing changes by going and coming
// back.
#include "GridWindow.h"

#include "../../framework/windows/WindowDpi.h"
#include "../support/LayoutBytes.h"

namespace {

class DpiTest : public GridTest {
protected:
    DpiTest() : m_ownDpi(windowdpi::OfWindow(m_grid.m_hWnd)) { GoTo(96); }

    /// The window comes to a monitor of that resolution, as a parent passes it on.
    void GoTo(int dpi) { m_grid.SendMessage(WM_DPICHANGED, MAKEWPARAM(dpi, dpi)); }
    CXTPReportPaintManager& Look() { return *m_grid.GetPaintManager(); }
    std::vector<int> Widths() const {
        std::vector<int> widths;
        for (const CXTPReportColumn* column : m_columns)
            widths.push_back(column->GetWidth());
        return widths;
    }
    int FontHeight() {
        LOGFONT font = {};
        Look().GetTextFont()->GetLogFont(&font);
        return font.lfHeight;
    }

    const int m_ownDpi;
};

TEST_F(DpiTest, WidthsHeightsFontsAndPaddingsScale) {
    AddRecords(3);
    const int rowHeight = RowHeight(), headerHeight = HeaderHeight(), font = FontHeight();
    GoTo(144);
    EXPECT_EQ(Look().GetDpi(), 144);
    EXPECT_EQ(Widths(), (std::vector<int>{150, 120, 90}));
    EXPECT_EQ(m_columns[1]->GetRect(), CRect(150, 0, 270, HeaderHeight())) << "laid out";
    EXPECT_EQ(FontHeight(), font * 3 / 2);
    EXPECT_EQ(Look().GetCellPadding(), 8) << "5 pixels at 96";
    EXPECT_NEAR(RowHeight(), rowHeight * 1.5, 2) << "letters have whole pixels";
    EXPECT_NEAR(HeaderHeight(), headerHeight * 1.5, 2);
    EXPECT_EQ(m_grid.GetRows()->GetAt(1)->GetRect().top, HeaderHeight() + RowHeight());
    EXPECT_EQ(Look().ScaleForDpi(20), 30);
}

TEST_F(DpiTest, GoingAndComingBackChangesNothing) {
    AddRecords(100);
    for (int i = 0; i < 3; ++i)
        m_columns[i]->SetWidth(101 + 2 * i);
    m_grid.SetTopRow(90);
    m_grid.SetLeftOffset(7);
    m_grid.SetFocusedRow(m_grid.GetRows()->GetAt(93));
    CRect place;
    m_grid.GetWindowRect(&place);
    const auto before = Printed();
    const int top = m_grid.GetTopRowIndex();
    for (const int dpi : {144, 120, 288, 97, 192}) {
        // A frame passes the news on and takes its new size then, or the other way round.
        const bool newsFirst = dpi % 2 == 0;
        for (const int next : {dpi, 96}) {
            if (newsFirst)
                GoTo(next);
            m_grid.MoveWindow(0, 0, ::MulDiv(place.Width(), next, 96), ::MulDiv(place.Height(), next, 96));
            if (!newsFirst)
                GoTo(next);
        }
        EXPECT_EQ(Widths(), (std::vector<int>{101, 103, 105})) << dpi;
        EXPECT_EQ(m_grid.GetTopRowIndex(), top) << dpi;
        EXPECT_EQ(m_grid.GetLeftOffset(), 7) << dpi;
        EXPECT_EQ(Difference(*Printed(), *before), 0) << dpi;
    }
}

TEST_F(DpiTest, AWidthThatTheUserSetsIsKeptAtItsOwnResolution) {
    GoTo(144);
    Press(DividerOf(0));
    Move(CPoint(m_columns[0]->GetRect().right + 1, 5));
    Release(CPoint(m_columns[0]->GetRect().right, 5));
    EXPECT_EQ(m_columns[0]->GetWidth(), 151);
    GoTo(96);
    EXPECT_EQ(m_columns[0]->GetWidth(), 101) << "100.67";
    GoTo(144);
    EXPECT_EQ(m_columns[0]->GetWidth(), 151) << "and not 152, which 101 would become";
}

TEST_F(DpiTest, AResizeThatIsCancelledKeepsTheWidthOfTheOtherMonitor) {
    GoTo(144);
    m_columns[0]->SetWidth(151);
    GoTo(96);
    Press(DividerOf(0));
    Move(CPoint(200, 5));
    ASSERT_NE(m_columns[0]->GetWidth(), 101);
    Key(VK_ESCAPE);
    EXPECT_EQ(m_columns[0]->GetWidth(), 101);
    GoTo(144);
    EXPECT_EQ(m_columns[0]->GetWidth(), 151);
}

TEST_F(DpiTest, SettingTheSameWidthElsewhereLosesNothing) {
    GoTo(144);
    m_columns[0]->SetWidth(151);
    GoTo(96);
    m_columns[0]->SetWidth(101);
    GoTo(144);
    EXPECT_EQ(m_columns[0]->GetWidth(), 151);
}

TEST_F(DpiTest, LimitsScaleAndBindAtEveryResolution) {
    m_columns[0]->SetMinWidth(33);
    m_columns[0]->SetMaxWidth(200);
    GoTo(144);
    EXPECT_EQ(m_columns[0]->GetMinWidth(), 50);
    EXPECT_EQ(m_columns[0]->GetMaxWidth(), 300);
    m_columns[0]->SetWidth(1);
    EXPECT_EQ(m_columns[0]->GetWidth(), 50);
    GoTo(192);
    EXPECT_EQ(m_columns[0]->GetWidth(), 67);
    EXPECT_EQ(m_columns[0]->GetMinWidth(), 66);
    GoTo(96);
    EXPECT_EQ(m_columns[0]->GetWidth(), 33);
    EXPECT_EQ(m_columns[1]->GetMinWidth(), 10) << "the limits that a column begins with";
    EXPECT_EQ(m_columns[1]->GetMaxWidth(), 32000);
}

TEST_F(DpiTest, AColumnAddedLaterHasPixelsOfTheMonitorThatItIsAddedOn) {
    GoTo(144);
    auto* column = new CXTPReportColumn(0, _T("late"), 90);
    m_grid.AddColumn(column);
    EXPECT_EQ(column->GetWidth(), 90);
    GoTo(96);
    EXPECT_EQ(column->GetWidth(), 60);
}

TEST_F(DpiTest, WhatTheHostHasSetScalesToo) {
    AddRecords(1);
    Look().SetRowHeight(24);
    LOGFONT font = {};
    font.lfHeight = -15;
    ::lstrcpy(font.lfFaceName, _T("Tahoma"));
    Look().SetTextFont(font);
    GoTo(144);
    EXPECT_EQ(RowHeight(), 36);
    EXPECT_EQ(FontHeight(), -23) << "22.5";
    GoTo(96);
    EXPECT_EQ(RowHeight(), 24);
    EXPECT_EQ(FontHeight(), -15);
}

TEST_F(DpiTest, AThemeSetElsewhereHasTheMonitorsResolution) {
    Look().SetRowHeight(24);
    GoTo(144);
    m_grid.SetTheme(xtpReportThemeOffice2013);
    EXPECT_EQ(Look().GetDpi(), 144);
    EXPECT_EQ(RowHeight(), 36);
    EXPECT_EQ(Widths(), (std::vector<int>{150, 120, 90}));
    auto* own = new CXTPReportPaintManager;
    own->SetDpi(96);
    own->SetRowHeight(20);
    m_grid.SetPaintManager(own);
    EXPECT_EQ(own->GetDpi(), 144);
    EXPECT_EQ(RowHeight(), 30);
}

TEST_F(DpiTest, AGestureEndsWithoutEffectWhenTheMonitorChanges) {
    Press(DividerOf(0));
    Move(CPoint(200, 5));
    GoTo(144);
    EXPECT_EQ(m_grid.GetMouseMode(), xtpReportMouseNothing);
    EXPECT_EQ(m_columns[0]->GetWidth(), 150);
}

TEST_F(DpiTest, TheSystemsNewsToChildWindowsIsFollowed) {
    for (const UINT message : {0x02E2u, 0x02E3u}) { // before and after the parent
        GoTo(m_ownDpi * 2);
        m_grid.SendMessage(message);
        EXPECT_EQ(Look().GetDpi(), m_ownDpi) << "what the system says of the window";
    }
    GoTo(0);
    EXPECT_EQ(Look().GetDpi(), m_ownDpi) << "no resolution";
}

TEST_F(DpiTest, AWindowMadeOfAControlHasTheResolutionOfItsMonitor) {
    CXTPReportControl control;
    control.GetPaintManager()->SetDpi(m_ownDpi * 3);
    control.Create(WS_CHILD, CRect(0, 0, 10, 10), &m_owner, 7);
    EXPECT_EQ(control.GetPaintManager()->GetDpi(), m_ownDpi);
    control.DestroyWindow();
}

TEST_F(DpiTest, DividersAreAsEasyToTakeHoldOf) {
    GoTo(192);
    const int edge = m_columns[0]->GetRect().right;
    EXPECT_EQ(m_header->HitTestDivider(CPoint(edge + 8, 5)), m_columns[0]);
    EXPECT_EQ(m_header->HitTestDivider(CPoint(edge + 9, 5)), nullptr);
    GoTo(96);
    EXPECT_EQ(m_header->HitTestDivider(CPoint(m_columns[0]->GetRect().right + 5, 5)), nullptr);
}

TEST_F(DpiTest, ResolutionsOfNoMonitorAreIgnored) {
    for (const int dpi : {0, 9601, 0xFFFF}) {
        GoTo(dpi);
        EXPECT_EQ(Look().GetDpi(), 96) << dpi;
        Look().SetDpi(dpi);
        EXPECT_EQ(Look().GetDpi(), 96) << dpi;
    }
    Look().SetDpi(-96);
    EXPECT_EQ(Look().GetDpi(), 96);
    GoTo(9600);
    EXPECT_EQ(Look().GetDpi(), 9600) << "the finest that a saved layout may tell";
    EXPECT_EQ(LoadLayout(m_grid, SaveLayout(m_grid)), CArchiveException::none);
}

TEST_F(DpiTest, ALayoutSavedAtOneResolutionHasTheProportionsAtAnother) {
    GoTo(144);
    m_columns[0]->SetWidth(300);
    m_columns[1]->SetWidth(61);
    const std::vector<BYTE> layout = SaveLayout(m_grid);
    GoTo(96);
    m_columns[0]->SetWidth(50);
    m_columns[1]->SetWidth(50);
    ASSERT_EQ(LoadLayout(m_grid, layout), CArchiveException::none);
    EXPECT_EQ(Widths(), (std::vector<int>{200, 41, 60}));
}

} // namespace
