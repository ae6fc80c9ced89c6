// Preview texts below the cells of rows: how high they make the rows, and that everything that asks for the place of a
// row knows it.
#include "GridWindow.h"

#include "../../framework/windows/WindowDpi.h"

namespace {

class PreviewTest : public GridTest {
protected:
    /// A line that has room in the grid's width.
    static constexpr LPCTSTR OneLine = _T("one line"), TwoLines = _T("first\nsecond");
    static constexpr LPCTSTR FiveLines = _T("1\n2\n3\n4\n5");

    /// Records with these previews, null for none; shown in preview mode.
    void AddPreviews(std::initializer_list<LPCTSTR> previews) {
        m_grid.EnablePreviewMode(TRUE);
        const int first = m_grid.GetRecords()->GetCount();
        AddRecords(static_cast<int>(previews.size()));
        int index = first;
        for (const LPCTSTR preview : previews)
            if (CXTPReportRecord* const record = m_grid.GetRecords()->GetAt(index++); preview)
                record->SetPreviewItem(new CXTPReportRecordItemPreview(preview));
        m_grid.Populate();
        Settle();
    }
    /// Every third record with no, one and two lines.
    void AddMixed(int count) {
        m_grid.EnablePreviewMode(TRUE);
        AddRecords(count);
        for (int i = 0; i < count; ++i)
            if (i % 3 != 0)
                m_grid.GetRecords()->GetAt(i)->SetPreviewItem(
                    new CXTPReportRecordItemPreview(i % 3 == 1 ? OneLine : TwoLines));
        m_grid.Populate();
        Settle();
    }
    CXTPReportPaintManager& Look() { return *m_grid.GetPaintManager(); }
    CXTPReportRow* Row(int index) { return m_grid.GetRows()->GetAt(index); }
    int Height(int index) { return Row(index)->GetRect().Height(); }
    int HeightWith(int lines) { return RowHeight() + Look().GetPreviewHeight(lines); }
    CPoint InPreview(int index) { return Row(index)->GetPreviewRect().CenterPoint(); }
    CPoint InCell(int index, int column = 0) {
        return CPoint(m_columns[column]->GetRect().CenterPoint().x, Row(index)->GetCellsRect().CenterPoint().y);
    }
    /// Pixels of that colour within the rectangle.
    static int Count(const DibCanvas& picture, const CRect& rc, COLORREF color) {
        int count = 0;
        for (int y = rc.top; y < rc.bottom; ++y)
            for (int x = rc.left; x < rc.right; ++x)
                count += picture.At(x, y) == color;
        return count;
    }
};

// --- Heights ---------------------------------------------------------------------------------------------------------

TEST_F(PreviewTest, ARowIsAsHighAsItsPreviewNeeds) {
    AddPreviews({nullptr, OneLine, TwoLines, _T(" \n "), nullptr});
    const int tops[] = {0, RowHeight(), RowHeight() + HeightWith(1), RowHeight() + HeightWith(1) + HeightWith(2)};
    for (int i = 0; i < 4; ++i)
        EXPECT_EQ(Row(i)->GetRect().top, HeaderHeight() + tops[i]) << i;
    EXPECT_EQ(Height(1), HeightWith(1));
    EXPECT_EQ(Height(2), HeightWith(2));
    EXPECT_EQ(Height(3), RowHeight()) << "white space alone is no preview";
    TEXTMETRIC metrics = {};
    CClientDC dc(&m_grid);
    dc.SelectObject(Look().GetTextFont());
    dc.GetTextMetrics(&metrics);
    EXPECT_EQ(HeightWith(2) - HeightWith(1), metrics.tmHeight) << "a line more";
}

TEST_F(PreviewTest, WithoutPreviewModeRowsHaveOneHeight) {
    AddPreviews({OneLine, nullptr});
    EXPECT_TRUE(m_grid.IsPreviewMode());
    m_grid.EnablePreviewMode(FALSE);
    EXPECT_EQ(Height(0), RowHeight());
    EXPECT_TRUE(Row(0)->GetPreviewRect().IsRectEmpty());
    m_grid.EnablePreviewMode(TRUE);
    EXPECT_EQ(Height(0), HeightWith(1)) << "at once";
}

TEST_F(PreviewTest, AtMostThreeLinesAreShownUnlessTheLookSaysOtherwise) {
    AddPreviews({FiveLines});
    EXPECT_EQ(Look().GetMaxPreviewLines(), 3);
    EXPECT_EQ(Height(0), HeightWith(3));
    Look().SetMaxPreviewLines(4);
    m_grid.AdjustLayout();
    EXPECT_EQ(Height(0), HeightWith(4));
    m_grid.SetTheme(xtpReportThemeWindows7);
    EXPECT_EQ(Look().GetMaxPreviewLines(), 4) << "a theme keeps it";
    EXPECT_EQ(Height(0), HeightWith(4));
    Look().SetMaxPreviewLines(0);
    EXPECT_EQ(Look().GetMaxPreviewLines(), 1);
    Look().SetMaxPreviewLines(1000);
    EXPECT_EQ(Look().GetMaxPreviewLines(), int{CXTPReportPaintManager::MostPreviewLines});
    m_grid.AdjustLayout();
    EXPECT_EQ(Height(0), HeightWith(5));
}

TEST_F(PreviewTest, ANarrowerViewWrapsIntoMoreLines) {
    const CString text = _T("word word word word");
    AddPreviews({text});
    EXPECT_EQ(Height(0), HeightWith(1));
    const auto narrowTo = [this](int previewWidth) {
        CRect rc;
        m_grid.GetClientRect(&rc);
        m_grid.SetWindowPos(nullptr, 0, 0, rc.Width() + previewWidth - m_grid.GetPreviewWidth(), rc.Height(),
                            SWP_NOMOVE | SWP_NOZORDER);
        EXPECT_EQ(m_grid.GetPreviewWidth(), previewWidth);
    };
    narrowTo(Look().GetTextWidth(text));
    EXPECT_EQ(Height(0), HeightWith(1));
    narrowTo(Look().GetTextWidth(text) - 1);
    EXPECT_EQ(Height(0), HeightWith(2));
    narrowTo(Look().GetTextWidth(_T("word word")) - 1);
    EXPECT_EQ(Height(0), HeightWith(3));
    narrowTo(Look().GetTextWidth(text) + 50);
    EXPECT_EQ(Height(0), HeightWith(1));
}

TEST_F(PreviewTest, TheScrollBarTakesNoRoomFromPreviews) {
    AddMixed(5);
    const int width = m_grid.GetPreviewWidth();
    EXPECT_FALSE(m_grid.GetStyle() & WS_VSCROLL);
    AddMixed(20);
    EXPECT_TRUE(m_grid.GetStyle() & WS_VSCROLL);
    EXPECT_EQ(m_grid.GetPreviewWidth(), width);
    CRect rcClient;
    m_grid.GetClientRect(&rcClient);
    EXPECT_EQ(Row(1)->GetPreviewRect().right, rcClient.right - Look().GetCellPadding());
}

TEST_F(PreviewTest, AnotherTextShowsInTheRoomThatThereIsUntilTheRowsAreMadeAnew) {
    AddPreviews({OneLine});
    m_grid.GetRecords()->GetAt(0)->GetItemPreview()->SetPreviewText(FiveLines);
    m_grid.AdjustLayout();
    EXPECT_EQ(Height(0), HeightWith(1));
    m_grid.Populate();
    EXPECT_EQ(Height(0), HeightWith(3));
    m_grid.GetRecords()->GetAt(0)->SetPreviewItem(nullptr);
    m_grid.Populate();
    EXPECT_EQ(Height(0), RowHeight());
}

TEST_F(PreviewTest, AnotherFontOrResolutionMeasuresAnew) {
    AddPreviews({_T("word word word word"), TwoLines});
    const int former = Height(1);
    m_grid.SendMessage(WM_DPICHANGED, MAKEWPARAM(288, 288));
    EXPECT_EQ(Height(1), HeightWith(2));
    EXPECT_GT(Height(1), 2 * former);
    EXPECT_GT(Height(0), HeightWith(1)) << "the view is as wide as it was";
    m_grid.SendMessage(WM_DPICHANGED, MAKEWPARAM(96, 96));
    EXPECT_EQ(Height(0), HeightWith(1));
    LOGFONT font = {};
    Look().GetTextFont()->GetLogFont(&font);
    font.lfHeight *= 2;
    Look().SetTextFont(font);
    m_grid.AdjustLayout();
    EXPECT_EQ(Height(1), HeightWith(2));
}

TEST_F(PreviewTest, RowsFollowTheirRecordsWhenOneIsRemovedAndWhenTheyAreSorted) {
    AddPreviews({OneLine, nullptr, TwoLines, nullptr});
    m_grid.GetRecords()->RemoveAt(0);
    EXPECT_EQ(Height(0), RowHeight());
    EXPECT_EQ(Height(1), HeightWith(2));
    EXPECT_EQ(Row(2)->GetRect().top, HeaderHeight() + RowHeight() + HeightWith(2));
    m_grid.GetColumns()->SetSortColumn(m_columns[0], FALSE);
    m_grid.Populate();
    EXPECT_EQ(Height(0), RowHeight());
    EXPECT_EQ(Height(1), HeightWith(2));
    m_grid.ResetContent();
    AddRecords(2);
    EXPECT_EQ(Height(0), RowHeight());
}

TEST_F(PreviewTest, TheRowsOfVirtualModeHaveNone) {
    m_grid.EnablePreviewMode(TRUE);
    auto* const record = new CXTPReportRecord;
    record->SetPreviewItem(new CXTPReportRecordItemPreview(OneLine));
    m_grid.SetVirtualMode(record, 1000000);
    m_grid.Populate();
    EXPECT_EQ(Height(999999), RowHeight());
    EXPECT_TRUE(Row(0)->GetPreviewRect().IsRectEmpty());
}

TEST_F(PreviewTest, RowsThatComeAndGoByExpandingBringTheirPreviews) {
    AddPreviews({OneLine, nullptr, TwoLines});
    m_columns[0]->SetTreeColumn(TRUE);
    CXTPReportRecord* const parent = m_grid.GetRecords()->GetAt(1);
    for (const LPCTSTR preview : {OneLine, FiveLines}) {
        auto* const child = new CXTPReportRecord;
        child->AddItem(new ProbeItem(_T("child")));
        child->SetPreviewItem(new CXTPReportRecordItemPreview(preview));
        parent->GetChilds()->Add(child);
    }
    m_grid.Populate();
    ASSERT_EQ(m_grid.GetRows()->GetCount(), 3);
    const auto heights = [this] {
        std::vector<int> all;
        for (int i = 0; i < m_grid.GetRows()->GetCount(); ++i)
            all.push_back(Height(i));
        return all;
    };
    Row(1)->SetExpanded(TRUE);
    EXPECT_EQ(heights(), (std::vector<int>{HeightWith(1), HeightWith(0), HeightWith(1), HeightWith(3), HeightWith(2)}));
    EXPECT_LE(Row(1)->GetExpandButtonRect().bottom, Row(1)->GetCellsRect().bottom);
    parent->GetChilds()->RemoveAt(0);
    EXPECT_EQ(heights(), (std::vector<int>{HeightWith(1), HeightWith(0), HeightWith(3), HeightWith(2)}));
    Row(1)->SetExpanded(FALSE);
    EXPECT_EQ(heights(), (std::vector<int>{HeightWith(1), HeightWith(0), HeightWith(2)}));
    m_grid.ExpandAll();
    EXPECT_EQ(heights(), (std::vector<int>{HeightWith(1), HeightWith(0), HeightWith(3), HeightWith(2)}));
}

// --- Cells and previews ----------------------------------------------------------------------------------------------

TEST_F(PreviewTest, CellsDoNotReachIntoThePreview) {
    AddPreviews({TwoLines, nullptr});
    const CRect rcRow = Row(0)->GetRect();
    EXPECT_EQ(Row(0)->GetCellsRect(), CRect(0, rcRow.top, rcRow.right, rcRow.top + RowHeight()));
    EXPECT_EQ(Row(0)->GetItemRect(Item(0, 1)), CRect(100, rcRow.top, 179, rcRow.top + RowHeight() - 1));
    EXPECT_EQ(Row(0)->GetPreviewRect(), CRect(Look().GetPreviewIndent(), rcRow.top + RowHeight() - 1,
                                              Look().GetPreviewIndent() + m_grid.GetPreviewWidth(), rcRow.bottom - 1));
    m_grid.RedrawControl();
    m_grid.UpdateWindow();
    EXPECT_EQ(Item(0, 1)->drawnAt, Row(0)->GetItemRect(Item(0, 1)));
    EXPECT_EQ(Row(1)->GetCellsRect(), Row(1)->GetRect());
}

TEST_F(PreviewTest, APressOnThePreviewIsOneOnTheRow) {
    AddPreviews({nullptr, TwoLines, nullptr});
    EXPECT_EQ(m_grid.HitTest(InPreview(1)), Row(1));
    EXPECT_EQ(Row(1)->HitTest(InPreview(1)), nullptr);
    Click(InPreview(1));
    EXPECT_EQ(Selected(), std::vector<int>{1});
    ASSERT_EQ(m_owner.Count(NM_CLICK), 1);
    EXPECT_EQ(m_owner.notifications.back().rowIndex, 1);
    EXPECT_EQ(m_owner.notifications.back().item, nullptr);
    Click(InCell(2));
    EXPECT_EQ(Selected(), std::vector<int>{2});
}

TEST_F(PreviewTest, DraggingOverPreviewsSelectsTheirRows) {
    AddMixed(6);
    Press(InCell(0));
    Move(InPreview(2));
    Move(InCell(4));
    EXPECT_EQ(Selected(), (std::vector<int>{0, 1, 2, 3, 4}));
    Move(InPreview(1));
    Release(InPreview(1));
    EXPECT_EQ(Selected(), (std::vector<int>{0, 1}));
}

TEST_F(PreviewTest, AnEditorStandsInItsCell) {
    AddPreviews({nullptr, TwoLines});
    m_grid.AllowEdit(TRUE);
    XTP_REPORTRECORDITEM_ARGS args;
    args.pRow = Row(1);
    args.pColumn = m_columns[1];
    m_grid.EditItem(&args);
    CRect rcEdit;
    ASSERT_NE(m_grid.GetActiveItem(), nullptr);
    m_grid.GetInplaceEdit()->GetWindowRect(&rcEdit);
    m_grid.ScreenToClient(&rcEdit);
    const CRect rcItem = Row(1)->GetItemRect(Item(1, 1));
    EXPECT_TRUE(rcEdit.top >= rcItem.top && rcEdit.bottom <= rcItem.bottom) << rcEdit.top << " " << rcEdit.bottom;
}

// --- Scrolling -------------------------------------------------------------------------------------------------------

TEST_F(PreviewTest, ScrollingMovesThePixelsOfRowsOfEveryHeight) {
    AddMixed(60);
    OnScreen();
    for (const int top : {1, 2, 5, 4, 3, 30, 29, 0, 1}) {
        m_grid.SetTopRow(top);
        EXPECT_EQ(m_grid.GetTopRowIndex(), top);
        EXPECT_EQ(Row(top)->GetRect().top, HeaderHeight());
        EXPECT_EQ(Difference(*OnScreen(), *Printed()), 0) << top;
    }
    Settle();
    m_grid.SetTopRow(2);
    m_grid.UpdateWindow();
    EXPECT_LE(CellsDrawn(), 3 * 4) << "only what came into view";
}

TEST_F(PreviewTest, ARowIsShownWholeWithItsPreview) {
    AddMixed(60);
    m_grid.EnsureVisible(Row(20));
    const CRect rcReport = m_grid.GetReportRectangle();
    EXPECT_LE(Row(20)->GetRect().bottom, rcReport.bottom);
    EXPECT_GT(Row(20)->GetRect().bottom + Height(m_grid.GetTopRowIndex() - 1), rcReport.bottom) << "no farther";
    Key(VK_END);
    EXPECT_LE(Row(59)->GetRect().bottom, rcReport.bottom);
    EXPECT_EQ(m_grid.GetFocusedRow(), Row(59));
    const int last = m_grid.GetTopRowIndex();
    m_grid.SetTopRow(59);
    EXPECT_EQ(m_grid.GetTopRowIndex(), last) << "the end of what can be scrolled to";
}

TEST_F(PreviewTest, PageKeysGoAPageOfPixels) {
    AddMixed(60);
    Key(VK_HOME);
    Key(VK_NEXT);
    const int first = m_grid.GetFocusedRow()->GetIndex();
    const CRect rcReport = m_grid.GetReportRectangle();
    EXPECT_LE(Row(first)->GetRect().bottom, rcReport.bottom);
    EXPECT_GT(Row(first + 1)->GetRect().bottom, rcReport.bottom) << "the last whole row";
    EXPECT_EQ(m_grid.GetFullyVisibleRowCount(), first + 1);
    Key(VK_NEXT);
    const int second = m_grid.GetFocusedRow()->GetIndex();
    EXPECT_LE(Row(second)->GetRect().bottom, rcReport.bottom);
    EXPECT_LE(Row(second)->GetRect().bottom - Row(first)->GetRect().top, rcReport.Height()) << "the former one stays";
    m_grid.SendMessage(WM_VSCROLL, SB_PAGEUP, 0);
    m_grid.SendMessage(WM_VSCROLL, SB_PAGEUP, 0);
    EXPECT_EQ(m_grid.GetTopRowIndex(), 0);
}

TEST_F(PreviewTest, ThePageAboveEndsWhereThisOneBegan) {
    AddMixed(60);
    m_grid.SetTopRow(30);
    m_grid.SendMessage(WM_VSCROLL, SB_PAGEUP, 0);
    const CRect rcReport = m_grid.GetReportRectangle();
    EXPECT_LE(Row(29)->GetRect().bottom, rcReport.bottom);
    EXPECT_GT(Row(29)->GetRect().bottom + Height(m_grid.GetTopRowIndex() - 1), rcReport.bottom);
    m_grid.SendMessage(WM_VSCROLL, SB_PAGEDOWN, 0);
    EXPECT_EQ(m_grid.GetTopRowIndex(), 30);
}

TEST_F(PreviewTest, TheScrollBarCountsRowsAndItsThumbKeepsItsSize) {
    AddMixed(60);
    const auto page = [this] {
        SCROLLINFO info = {};
        m_grid.GetScrollInfo(SB_VERT, &info);
        EXPECT_EQ(info.nMax, 59);
        return info.nPage;
    };
    const UINT atTop = page();
    m_grid.SetTopRow(1);
    EXPECT_EQ(page(), atTop);
    m_grid.SetTopRow(60);
    EXPECT_EQ(page(), atTop);
    EXPECT_EQ(static_cast<int>(atTop), 60 - m_grid.GetTopRowIndex());
}

// --- Drawing ---------------------------------------------------------------------------------------------------------

TEST_F(PreviewTest, ThePreviewStandsOnTheRowBetweenItsCellsAndTheLineBelow) {
    AddPreviews({TwoLines, nullptr});
    const auto picture = Printed();
    const CRect rcRow = Row(0)->GetRect(), rcPreview = Row(0)->GetPreviewRect();
    const COLORREF line = Look().m_clrGridLine, text = Look().m_clrPreviewText;
    EXPECT_EQ(Count(*picture, CRect(0, rcPreview.top, Width, rcRow.bottom - 1), line), 0)
        << "no line between cells and preview, none between columns";
    EXPECT_EQ(Count(*picture, CRect(0, rcRow.bottom - 1, Width, rcRow.bottom), line), Width);
    EXPECT_EQ(Count(*picture, CRect(99, rcRow.top, 100, rcRow.top + RowHeight() - 1), line), RowHeight() - 1);
    EXPECT_GT(Count(*picture, rcPreview, text), 0);
    EXPECT_EQ(Count(*picture, CRect(0, rcPreview.top, rcPreview.left, rcPreview.bottom), Look().m_clrWindow),
              rcPreview.left * rcPreview.Height())
        << "indented";
    EXPECT_EQ(Count(*picture, CRect(0, rcPreview.bottom - 2, Width, rcPreview.bottom), Look().m_clrWindow), 2 * Width)
        << "some space below";
}

TEST_F(PreviewTest, ASelectedRowIsSelectedOverItsPreview) {
    AddPreviews({TwoLines, nullptr});
    m_grid.SetFocusedRow(Row(1));
    m_grid.GetSelectedRows()->Select(Row(0));
    const auto picture = Printed();
    const CRect rcPreview = Row(0)->GetPreviewRect();
    for (const CRect& rcBare : {CRect(0, rcPreview.top, rcPreview.left, rcPreview.bottom),
                                CRect(rcPreview.right, rcPreview.top, Width, rcPreview.bottom)})
        EXPECT_EQ(Count(*picture, rcBare, Look().m_clrHighlight), rcBare.Width() * rcBare.Height());
    EXPECT_GT(Count(*picture, rcPreview, Look().m_clrHighlightText), 0);
    EXPECT_EQ(Count(*picture, rcPreview, Look().m_clrPreviewText), 0);
}

TEST_F(PreviewTest, ADisabledGridHasDisabledPreviews) {
    AddPreviews({TwoLines});
    m_grid.EnableWindow(FALSE);
    const auto picture = Printed();
    EXPECT_GT(Count(*picture, Row(0)->GetPreviewRect(), Look().m_clrDisabledText), 0);
    EXPECT_EQ(Count(*picture, Row(0)->GetPreviewRect(), Look().m_clrPreviewText), 0);
}

TEST_F(PreviewTest, TheLastLineEndsWithAnEllipsisWhereThereIsMore) {
    CString rest;
    for (int i = 0; i < 40; ++i)
        rest += _T(" more");
    AddPreviews({_T("first\nsecond\nthird") + rest});
    const CRect rcPreview = Row(0)->GetPreviewRect();
    const auto picture = Printed();
    DibCanvas expected(Width, rcPreview.bottom, Look().m_clrWindow);
    CRect rcLine(rcPreview);
    const int height = Look().GetPreviewHeight(2) - Look().GetPreviewHeight(1);
    rcLine.top += 2 * height;
    rcLine.bottom = rcLine.top + height;
    expected.Dc().SelectObject(Look().GetTextFont());
    expected.Dc().SetTextColor(Look().m_clrPreviewText);
    expected.Dc().SetBkMode(TRANSPARENT);
    const CString third = _T("third") + rest;
    expected.Dc().DrawText(third, &rcLine, DT_SINGLELINE | DT_END_ELLIPSIS | DT_NOPREFIX);
    int different = 0, drawn = 0;
    for (int y = rcLine.top; y < rcLine.bottom; ++y)
        for (int x = rcLine.left; x < rcLine.right; ++x) {
            different += picture->At(x, y) != expected.At(x, y);
            drawn += picture->At(x, y) == COLORREF(Look().m_clrPreviewText);
        }
    EXPECT_EQ(different, 0);
    EXPECT_GT(drawn, 0);
}

TEST_F(PreviewTest, APreviewMayHaveColoursOfItsOwn) {
    AddPreviews({OneLine});
    m_grid.GetRecords()->GetAt(0)->GetItemPreview()->SetTextColor(RGB(200, 0, 100));
    m_grid.GetRecords()->GetAt(0)->GetItemPreview()->SetBackgroundColor(RGB(255, 250, 200));
    const auto picture = Printed();
    EXPECT_GT(Count(*picture, Row(0)->GetPreviewRect(), RGB(200, 0, 100)), 0);
    EXPECT_GT(Count(*picture, Row(0)->GetPreviewRect(), RGB(255, 250, 200)), 0);
}

TEST_F(PreviewTest, AMirroredGridShowsItsPreviewsFromTheRight) {
    AddPreviews({OneLine});
    const auto before = OnScreen();
    const CRect rcPreview = Row(0)->GetPreviewRect();
    EXPECT_GT(
        Count(*before, CRect(rcPreview.left, rcPreview.top, Width / 2, rcPreview.bottom), Look().m_clrPreviewText), 0);
    m_grid.ModifyStyleEx(0, WS_EX_LAYOUTRTL, SWP_FRAMECHANGED);
    m_grid.RedrawControl();
    m_grid.UpdateWindow();
    CWindowDC screen(nullptr);
    CRect rcWindow;
    m_grid.GetWindowRect(&rcWindow);
    DibCanvas mirrored(Width, rcPreview.bottom, RGB(255, 0, 255));
    mirrored.Dc().BitBlt(0, 0, Width, rcPreview.bottom, &screen, rcWindow.left, rcWindow.top, SRCCOPY);
    EXPECT_EQ(Count(mirrored, CRect(0, rcPreview.top, Width / 2, rcPreview.bottom), Look().m_clrPreviewText), 0);
    EXPECT_GT(Count(mirrored, CRect(Width / 2, rcPreview.top, Width - rcPreview.left, rcPreview.bottom),
                    Look().m_clrPreviewText),
              0);
}

} // namespace
