// Columns that fill the view.
#include "GridWindow.h"

#include "../support/LayoutBytes.h"

#include <numeric>

namespace {

using ::testing::ElementsAre;

/// The columns have 100, 80 and 60 pixels as their shares, in a view of 300.
class AutoSizeTest : public GridTest {
protected:
    AutoSizeTest() { m_header->SetAutoColumnSizing(TRUE); }

    std::vector<int> Widths() const {
        std::vector<int> widths;
        for (const CXTPReportColumn* column : m_columns)
            widths.push_back(column->GetWidth());
        return widths;
    }
    int TotalWidth() const {
        const std::vector<int> widths = Widths();
        return std::accumulate(widths.begin(), widths.end(), 0);
    }
    void SetViewWidth(int width) { m_grid.SetWindowPos(nullptr, 0, 0, width, 200, SWP_NOMOVE | SWP_NOZORDER); }
    bool HasBar() const { return (m_grid.GetStyle() & WS_HSCROLL) != 0; }
    void DragDivider(int column, int by) {
        const CPoint from = DividerOf(column) - CSize(1, 0);
        Press(from);
        Move(from + CSize(by, 0));
    }
};

TEST_F(AutoSizeTest, ColumnsDivideTheViewInProportion) {
    EXPECT_THAT(Widths(), ElementsAre(125, 100, 75));
    EXPECT_EQ(m_columns[2]->GetRect().right, Width);
    SetViewWidth(600);
    EXPECT_THAT(Widths(), ElementsAre(250, 200, 150));
    SetViewWidth(120);
    EXPECT_THAT(Widths(), ElementsAre(50, 40, 30));
    for (int width = 301; width > 60; width -= 7) {
        SetViewWidth(width);
        EXPECT_EQ(m_columns[2]->GetRect().right, width);
    }
    SetViewWidth(Width);
    EXPECT_THAT(Widths(), ElementsAre(125, 100, 75)) << "going and coming back changes nothing";
    EXPECT_FALSE(HasBar());
}

TEST_F(AutoSizeTest, IsOffAtFirstAndGivesTheWidthsBack) {
    EXPECT_FALSE(CXTPReportHeader(&m_grid, m_grid.GetColumns()).IsAutoColumnSizing());
    EXPECT_TRUE(m_header->IsAutoColumnSizing());
    m_header->SetAutoColumnSizing(FALSE);
    EXPECT_THAT(Widths(), ElementsAre(100, 80, 60));
    EXPECT_EQ(m_columns[1]->GetRect().left, 100);
}

TEST_F(AutoSizeTest, AHeaderWithoutItGivesTheWidthsBackToo) {
    m_grid.SetReportHeader(new CXTPReportHeader(&m_grid, m_grid.GetColumns()));
    EXPECT_THAT(Widths(), ElementsAre(100, 80, 60));
}

TEST_F(AutoSizeTest, ColumnsWithoutAutoSizeKeepTheirWidth) {
    m_columns[0]->SetAutoSize(FALSE);
    EXPECT_THAT(Widths(), ElementsAre(100, 114, 86));
    SetViewWidth(240);
    EXPECT_THAT(Widths(), ElementsAre(100, 80, 60));
    m_columns[0]->SetWidth(130);
    EXPECT_THAT(Widths(), ElementsAre(130, 62, 48));
    m_columns[0]->SetAutoSize(TRUE);
    EXPECT_EQ(TotalWidth(), 240);
}

TEST_F(AutoSizeTest, LimitsAreKeptAndABarComesOnlyWhenMinimaDoNotFit) {
    m_columns[0]->SetMaxWidth(110);
    EXPECT_THAT(Widths(), ElementsAre(110, 108, 82));
    m_columns[1]->SetMinWidth(80);
    m_columns[2]->SetMinWidth(50);
    SetViewWidth(150);
    EXPECT_THAT(Widths(), ElementsAre(20, 80, 50));
    EXPECT_FALSE(HasBar());
    SetViewWidth(139);
    EXPECT_THAT(Widths(), ElementsAre(10, 80, 50));
    EXPECT_TRUE(HasBar());
    m_grid.SetLeftOffset(100);
    EXPECT_EQ(m_grid.GetLeftOffset(), 1);
    SetViewWidth(140);
    EXPECT_FALSE(HasBar());
    EXPECT_EQ(m_grid.GetLeftOffset(), 0);
}

TEST_F(AutoSizeTest, TheRowsBarTakesItsRoomFromTheColumns) {
    AddRecords(100);
    CRect client;
    m_grid.GetClientRect(&client);
    EXPECT_LT(client.right, Width);
    EXPECT_EQ(m_columns[2]->GetRect().right, client.right);
    EXPECT_FALSE(HasBar());
    m_grid.ResetContent();
    EXPECT_THAT(Widths(), ElementsAre(125, 100, 75));
}

TEST_F(AutoSizeTest, HiddenColumnsLeaveTheirWidthToTheOthers) {
    m_columns[0]->SetVisible(FALSE);
    EXPECT_EQ(m_columns[1]->GetWidth() + m_columns[2]->GetWidth(), Width);
    EXPECT_EQ(m_columns[0]->GetWidth(), 100);
    m_columns[0]->SetVisible(TRUE);
    EXPECT_THAT(Widths(), ElementsAre(125, 100, 75));
}

TEST_F(AutoSizeTest, ASetWidthIsAShare) {
    m_columns[0]->SetWidth(460);
    EXPECT_THAT(Widths(), ElementsAre(230, 40, 30));
    m_columns[0]->SetWidth(100);
    EXPECT_THAT(Widths(), ElementsAre(125, 100, 75));
}

TEST_F(AutoSizeTest, ADividerMovesWidthBetweenItsNeighbours) {
    DragDivider(0, 20);
    EXPECT_THAT(Widths(), ElementsAre(145, 80, 75));
    Move(CPoint(DividerOf(0).x - 41, HeaderOf(0).y));
    EXPECT_THAT(Widths(), ElementsAre(105, 120, 75));
    Release(CPoint(DividerOf(0).x, HeaderOf(0).y));
    EXPECT_EQ(m_owner.Count(XTP_NM_REPORT_COLUMNWIDTHCHANGED), 1);
    EXPECT_EQ(m_owner.notifications.back().column, m_columns[0]);
    SetViewWidth(600);
    EXPECT_THAT(Widths(), ElementsAre(210, 240, 150)) << "what the user has chosen are the shares now";
    SetViewWidth(Width);
    EXPECT_THAT(Widths(), ElementsAre(105, 120, 75));
}

TEST_F(AutoSizeTest, ADividerStopsAtTheLimitsOfBoth) {
    m_columns[1]->SetMinWidth(90);
    DragDivider(0, 50);
    EXPECT_THAT(Widths(), ElementsAre(138, 90, 72));
    Key(VK_ESCAPE);
    m_columns[1]->SetMaxWidth(110);
    DragDivider(0, -50);
    EXPECT_THAT(Widths(), ElementsAre(118, 110, 72));
    Release(DividerOf(0));
}

TEST_F(AutoSizeTest, EscapeGivesAllWidthsBack) {
    DragDivider(0, 20);
    Key(VK_ESCAPE);
    EXPECT_THAT(Widths(), ElementsAre(125, 100, 75));
    SetViewWidth(240);
    EXPECT_THAT(Widths(), ElementsAre(100, 80, 60)) << "the shares as well";
    EXPECT_EQ(m_owner.Count(XTP_NM_REPORT_COLUMNWIDTHCHANGED), 0);
}

TEST_F(AutoSizeTest, ADividerThatIsPressedAndLetGoChangesNoWidth) {
    DragDivider(0, 0);
    m_header->OnCancelMode();
    EXPECT_THAT(Widths(), ElementsAre(125, 100, 75));
    EXPECT_EQ(m_columns[0]->GetRect().Width(), 125);
}

TEST_F(AutoSizeTest, TheLastDividerHasNobodyToTakeFrom) {
    EXPECT_EQ(m_header->HitTestDivider(CPoint(Width - 1, HeaderOf(2).y)), nullptr);
    EXPECT_EQ(m_header->HitTestDivider(DividerOf(1)), m_columns[1]);
    m_columns[2]->SetResizable(FALSE);
    EXPECT_EQ(m_header->HitTestDivider(DividerOf(1)), nullptr);
    EXPECT_EQ(m_header->HitTestDivider(DividerOf(0)), m_columns[0]);
    m_columns[2]->SetResizable(TRUE);
    m_columns[1]->SetResizable(FALSE);
    DragDivider(0, 20);
    EXPECT_THAT(Widths(), ElementsAre(145, 100, 55)) << "the next one that may be resized gives";
    Release(DividerOf(0));
}

TEST_F(AutoSizeTest, KeysAndBestFitMoveWidthTheSameWay) {
    m_header->ResizeColumn(m_columns[1], 8);
    EXPECT_THAT(Widths(), ElementsAre(125, 108, 67));
    EXPECT_EQ(m_owner.Count(XTP_NM_REPORT_COLUMNWIDTHCHANGED), 1);
    m_header->ResizeColumn(m_columns[2], 8);
    EXPECT_THAT(Widths(), ElementsAre(125, 108, 67)) << "nobody behind it";
    const int fit = m_columns[0]->GetBestFitWidth();
    m_header->BestFit(m_columns[0]);
    EXPECT_THAT(Widths(), ElementsAre(fit, 233 - fit, 67));
    m_header->BestFitAll();
    EXPECT_EQ(TotalWidth(), Width);
}

TEST_F(AutoSizeTest, GoingToAnotherMonitorAndBackChangesNothing) {
    m_grid.SendMessage(WM_DPICHANGED, MAKEWPARAM(96, 96));
    DragDivider(0, 21);
    Release(DividerOf(0));
    const std::vector<int> before = Widths();
    for (const int dpi : {144, 120, 97, 288}) {
        m_grid.SendMessage(WM_DPICHANGED, MAKEWPARAM(dpi, dpi));
        EXPECT_EQ(m_columns[2]->GetRect().right, Width) << "the window has not grown yet";
        SetViewWidth(::MulDiv(Width, dpi, 96));
        EXPECT_EQ(m_columns[2]->GetRect().right, ::MulDiv(Width, dpi, 96));
        SetViewWidth(Width);
        m_grid.SendMessage(WM_DPICHANGED, MAKEWPARAM(96, 96));
        EXPECT_EQ(Widths(), before) << dpi;
    }
}

TEST_F(AutoSizeTest, ASavedLayoutComesBack) {
    DragDivider(0, 20);
    Release(DividerOf(0));
    const std::vector<BYTE> layout = SaveLayout(m_grid);
    m_columns[0]->SetWidth(300);
    m_columns[1]->SetVisible(FALSE);
    EXPECT_EQ(LoadLayout(m_grid, layout), CArchiveException::none);
    EXPECT_THAT(Widths(), ElementsAre(145, 80, 75));
    EXPECT_EQ(SaveLayout(m_grid), layout);
    SetViewWidth(600);
    EXPECT_EQ(LoadLayout(m_grid, layout), CArchiveException::none);
    EXPECT_THAT(Widths(), ElementsAre(290, 160, 150)) << "in proportion";
}

TEST_F(AutoSizeTest, FrozenColumnsAndTheOthersFillTheView) {
    m_grid.SetFreezeColumnsCount(2);
    EXPECT_THAT(Widths(), ElementsAre(125, 100, 75));
    EXPECT_TRUE(m_columns[1]->IsFrozen());
    EXPECT_EQ(m_columns[2]->GetRect(), CRect(225, 0, 300, HeaderHeight()));
}

} // namespace
