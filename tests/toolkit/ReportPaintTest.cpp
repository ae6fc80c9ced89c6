// The drawing of a report control: what it looks like, what a damage costs, and that scrolling leaves no trace.
#include "GridWindow.h"

namespace {

class PaintTest : public GridTest {
protected:
    PaintTest() {
        m_grid.SetTheme(xtpReportThemeWindows7);
        m_look = m_grid.GetPaintManager();
        m_grid.MoveWindow(0, 0, Width, HeaderHeight() + VisibleRows * RowHeight());
        Settle();
    }
    CXTPReportPaintManager* m_look;
};

/// A cell that shows where the mouse is.
class FollowingItem : public ProbeItem {
public:
    using ProbeItem::ProbeItem;
    void OnMouseMove(UINT nFlags, CPoint point, CXTPReportControl* pReportControl) override {
        ProbeItem::OnMouseMove(nFlags, point, pReportControl);
        pReportControl->RedrawControl();
    }
};

// --- Looks ----------------------------------------------------------------------------------------------------------

TEST_F(PaintTest, GridLinesAreTheLastPixelsOfACell) {
    AddRecords(2);
    const auto picture = Printed();
    const COLORREF line = m_look->m_clrGridLine;
    const int bottom = HeaderHeight() + RowHeight() - 1;
    for (const int x : {0, 50, 99, 100, 239, 270, Width - 1})
        EXPECT_EQ(picture->At(x, bottom), line) << x;
    for (const int x : {99, 179, 239})
        EXPECT_EQ(picture->At(x, HeaderHeight() + 2), line) << x;
    for (const int x : {98, 100, 178, 180, 240, Width - 1})
        EXPECT_EQ(picture->At(x, HeaderHeight() + 2), COLORREF(m_look->m_clrWindow)) << x;
    EXPECT_EQ(picture->At(50, HeaderHeight() + 2 * RowHeight()), COLORREF(m_look->m_clrWindow)) << "below the rows";
}

TEST_F(PaintTest, GridLinesCanBeLeftOutWithoutMovingACell) {
    AddRecords(1);
    const CRect before = m_grid.GetRows()->GetAt(0)->GetItemRect(Item(0, 0));
    m_look->SetGridStyle(TRUE, xtpReportGridNoLines);
    m_look->SetGridStyle(FALSE, xtpReportGridNoLines);
    EXPECT_EQ(m_grid.GetRows()->GetAt(0)->GetItemRect(Item(0, 0)), before);
    EXPECT_EQ(Printed()->Count(m_look->m_clrGridLine), 0);
}

TEST_F(PaintTest, DottedGridLinesLeaveEverySecondPixel) {
    AddRecords(1);
    m_look->SetGridStyle(FALSE, xtpReportGridSmallDots);
    const auto picture = Printed();
    const int bottom = HeaderHeight() + RowHeight() - 1;
    for (int x = 0; x < 90; x += 2) {
        EXPECT_EQ(picture->At(x, bottom), COLORREF(m_look->m_clrGridLine)) << x;
        EXPECT_EQ(picture->At(x + 1, bottom), COLORREF(m_look->m_clrWindow)) << x;
    }
}

TEST_F(PaintTest, SelectedRowsHaveTheHighlightUnderEveryCell) {
    AddRecords(3);
    m_grid.SetFocusedRow(m_grid.GetRows()->GetAt(0));
    m_grid.GetSelectedRows()->Add(m_grid.GetRows()->GetAt(1));
    ASSERT_TRUE(m_grid.HasFocus());
    const auto picture = Printed();
    const int y = HeaderHeight() + RowHeight() + 2;
    for (const int x : {2, 98, 102, 178, 182, 290})
        EXPECT_EQ(picture->At(x, y), COLORREF(m_look->m_clrHighlight)) << x;
    EXPECT_EQ(picture->At(2, y + RowHeight()), COLORREF(m_look->m_clrWindow));
}

TEST_F(PaintTest, TheSelectionIsPalerWithoutTheFocus) {
    AddRecords(2);
    m_grid.GetSelectedRows()->Add(m_grid.GetRows()->GetAt(1));
    Settle();
    m_owner.SetFocus();
    ASSERT_FALSE(m_grid.HasFocus());
    EXPECT_EQ(OnScreen()->At(2, HeaderHeight() + RowHeight() + 2), COLORREF(m_look->m_clrInactiveHighlight));
    m_grid.SetFocus();
    EXPECT_EQ(OnScreen()->At(2, HeaderHeight() + RowHeight() + 2), COLORREF(m_look->m_clrHighlight));
}

TEST_F(PaintTest, TheFocusedRowIsFramedInsideItsGridLine) {
    AddRecords(2);
    m_grid.SetFocusedRow(m_grid.GetRows()->GetAt(0), FALSE);
    const auto picture = Printed();
    const COLORREF frame = m_look->m_clrFocusFrame;
    EXPECT_EQ(picture->BoxOf(frame), CRect(0, HeaderHeight(), Width, HeaderHeight() + RowHeight() - 1));
}

TEST_F(PaintTest, TextIsCentredVerticallyAndPaddedAlike) {
    m_columns[1]->SetAlignment(DT_RIGHT);
    AddRecords(1);
    Item(0, 0)->SetValue(_T("H"));
    Item(0, 1)->SetValue(_T("H"));
    m_look->SetRowHeight(41);
    m_grid.RedrawControl();
    const auto picture = Printed();
    const auto textBox = [&](int left, int right) {
        CRect box(right, 1000, left, 0);
        for (int y = HeaderHeight(); y < HeaderHeight() + 40; ++y) {
            for (int x = left; x < right; ++x) {
                if (picture->At(x, y) == COLORREF(m_look->m_clrWindow))
                    continue;
                box = CRect(std::min<int>(box.left, x), std::min<int>(box.top, y), std::max<int>(box.right, x + 1),
                            std::max<int>(box.bottom, y + 1));
            }
        }
        return box;
    };
    const CRect left = textBox(0, 99), right = textBox(100, 179);
    ASSERT_FALSE(left.IsRectEmpty());
    ASSERT_FALSE(right.IsRectEmpty());
    EXPECT_EQ(left.top, right.top);
    EXPECT_NEAR(left.left, m_look->GetCellPadding(), 2) << "side bearing and smoothing";
    EXPECT_NEAR(179 - right.right, m_look->GetCellPadding(), 2);
    EXPECT_NEAR(left.top - HeaderHeight(), HeaderHeight() + 40 - left.bottom, 6);
}

TEST_F(PaintTest, TextThatDoesNotFitStaysInItsCell) {
    AddRecords(1);
    Item(0, 0)->SetValue(_T("MMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMM"));
    const auto picture = Printed();
    for (int y = HeaderHeight(); y < HeaderHeight() + RowHeight() - 1; ++y) {
        for (int x = 99 - m_look->GetCellPadding(); x < 99; ++x)
            ASSERT_EQ(picture->At(x, y), COLORREF(m_look->m_clrWindow)) << x << "," << y;
    }
}

TEST_F(PaintTest, AnItemsOwnColoursGiveWayToTheSelection) {
    AddRecords(2);
    Item(0, 0)->SetBackgroundColor(RGB(1, 2, 3));
    EXPECT_EQ(Printed()->BoxOf(RGB(1, 2, 3)), CRect(0, HeaderHeight(), 99, HeaderHeight() + RowHeight() - 1));
    m_grid.GetSelectedRows()->Add(m_grid.GetRows()->GetAt(0));
    EXPECT_EQ(Printed()->Count(RGB(1, 2, 3)), 0);
}

TEST_F(PaintTest, AGridWithoutRowsSaysSo) {
    EXPECT_GT(Printed()->Count(m_look->m_clrDisabledText), 0);
    m_look->SetNoItemText(_T(""));
    EXPECT_EQ(Printed()->Count(m_look->m_clrDisabledText), 0);
}

TEST_F(PaintTest, AHyperlinkIsUnderlinedAndKnowsItsPlace) {
    AddRecords(1);
    Item(0, 0)->SetValue(_T("see it"));
    Item(0, 0)->AddHyperlink(new CXTPReportHyperlink(4, 2));
    const auto picture = Printed();
    const CRect spot = Item(0, 0)->GetHyperlinkAt(0)->m_rcHyperSpot;
    const int before = m_look->GetTextWidth(_T("see "));
    EXPECT_EQ(spot.left, m_look->GetCellPadding() + before);
    EXPECT_EQ(spot.Width(), m_look->GetTextWidth(_T("see it")) - before);
    int underlined = 0;
    for (int y = spot.top; y < spot.bottom; ++y) {
        int inLine = 0;
        for (int x = spot.left; x < spot.right; ++x)
            inLine += picture->At(x, y) == COLORREF(m_look->m_clrHyperlink);
        underlined += inLine == spot.Width();
    }
    EXPECT_EQ(underlined, 1);
}

TEST_F(PaintTest, SortedColumnsHaveAnArrowBesideTheCaption) {
    m_look->SetColumnStyle(xtpReportColumnFlat);
    m_look->m_clrSortArrow = RGB(1, 2, 3);
    AddRecords(2);
    EXPECT_EQ(Printed()->Count(RGB(1, 2, 3)), 0);
    m_grid.GetColumns()->SetSortColumn(m_columns[0], TRUE);
    const auto up = Printed();
    EXPECT_EQ(up->Count(RGB(1, 2, 3)), 1 + 3 + 5 + 7);
    EXPECT_EQ(up->BoxOf(RGB(1, 2, 3)).right, 99 - m_look->GetCellPadding());
    m_columns[0]->SetSortIncreasing(FALSE);
    const auto down = Printed();
    EXPECT_EQ(down->Count(RGB(1, 2, 3)), 1 + 3 + 5 + 7);
    EXPECT_EQ(down->BoxOf(RGB(1, 2, 3)), up->BoxOf(RGB(1, 2, 3)));
    EXPECT_GT(Difference(*up, *down), 0);
    m_columns[0]->SetWidth(2 * m_look->GetCellPadding() + m_look->GetSortArrowSpace());
    EXPECT_EQ(Printed()->Count(RGB(1, 2, 3)), 0) << "no room for the arrow and a letter";
}

TEST_F(PaintTest, ExplorerColumnsHaveTheirArrowAboveTheCaption) {
    m_look->m_clrSortArrow = RGB(1, 2, 3);
    AddRecords(2);
    EXPECT_EQ(m_look->GetSortArrowSpace(), 0);
    m_grid.GetColumns()->SetSortColumn(m_columns[0], TRUE);
    const auto picture = Printed();
    EXPECT_EQ(picture->BoxOf(RGB(1, 2, 3)), CRect(46, 1, 53, 5)) << "in the middle of 100 pixels, at the top";
    EXPECT_EQ(picture->Count(RGB(1, 2, 3)), 1 + 3 + 5 + 7);
}

TEST_F(PaintTest, SortedColumnsAreTintedUnlessTheyAreHot) {
    AddRecords(2);
    const int y = HeaderHeight() - 5;
    const COLORREF idle = Printed()->At(20, y);
    m_grid.GetColumns()->SetSortColumn(m_columns[0], TRUE);
    const COLORREF sorted = Printed()->At(20, y);
    EXPECT_NE(sorted, idle);
    EXPECT_EQ(Printed()->At(120, y), idle) << "another column";
    Move(HeaderOf(0), 0);
    EXPECT_NE(Printed()->At(20, y), sorted);
    EXPECT_NE(Printed()->At(20, y), idle);
}

TEST_F(PaintTest, ShadedColumnsSinkWhenPressed) {
    m_look->SetColumnStyle(xtpReportColumnShaded);
    m_look->m_clrHeaderText = RGB(1, 2, 3);
    m_columns[1]->SetCaption(_T(""));
    m_columns[2]->SetCaption(_T(""));
    const CRect idle = Printed()->BoxOf(RGB(1, 2, 3));
    ASSERT_FALSE(idle.IsRectEmpty());
    Press(HeaderOf(0));
    CRect sunk(idle);
    sunk.OffsetRect(1, 1);
    EXPECT_EQ(Printed()->BoxOf(RGB(1, 2, 3)), sunk);
    Release(HeaderOf(1));
    EXPECT_EQ(Printed()->BoxOf(RGB(1, 2, 3)), idle);
}

TEST_F(PaintTest, AColumnMayHideItsDivider) {
    for (const XTPReportColumnStyle style : {xtpReportColumnShaded, xtpReportColumnFlat, xtpReportColumnExplorer,
                                             xtpReportColumnOffice2003, xtpReportColumnResource}) {
        SCOPED_TRACE(style);
        m_look->SetColumnStyle(style);
        m_look->m_clrHeaderDivider = RGB(1, 2, 3);
        m_columns[0]->HideDivider(FALSE);
        EXPECT_FALSE(m_columns[0]->IsDividerHidden());
        const auto shown = Printed();
        m_columns[0]->HideDivider(TRUE);
        EXPECT_TRUE(m_columns[0]->IsDividerHidden());
        const auto hidden = Printed();
        const int y = HeaderHeight() / 2;
        const bool isRaised = style == xtpReportColumnShaded; // a button keeps its edges
        for (const int x : {98, 99}) {
            if (shown->At(x, y) == RGB(1, 2, 3)) {
                EXPECT_EQ(hidden->At(x, y) == RGB(1, 2, 3), isRaised) << x;
            }
        }
        EXPECT_TRUE(shown->At(98, y) == RGB(1, 2, 3) || shown->At(99, y) == RGB(1, 2, 3));
        EXPECT_TRUE(hidden->At(178, y) == RGB(1, 2, 3) || hidden->At(179, y) == RGB(1, 2, 3)) << "of the next one";
    }
}

/// A look that draws the columns of a header in its own way.
class OwnHeaderLook : public CXTPReportThemeResource {
public:
    using CXTPReportThemeResource::DrawColumnBackground;
    void DrawColumnBackground(CDC* pDC, CXTPReportColumn* pColumn, CRect rcColumn, int& nHot, int& nPressed,
                              CXTPReportHeader* pHeader) override {
        header = pHeader;
        nHot = FALSE;
        nPressed = FALSE;
        CXTPReportThemeResource::DrawColumnBackground(pDC, pColumn, rcColumn, nHot, nPressed, pHeader);
        pDC->FillSolidRect(rcColumn.left, rcColumn.top, 3, 3, RGB(1, 2, 3));
    }
    CXTPReportHeader* header = nullptr;
};

TEST_F(PaintTest, ADerivedLookDrawsTheColumnsOfTheHeader) {
    auto* const look = new OwnHeaderLook;
    m_grid.SetPaintManager(look);
    EXPECT_EQ(look->GetTheme(), xtpReportThemeResource);
    const auto idle = Printed();
    EXPECT_EQ(look->header, m_header);
    for (const int x : {0, 100, 180})
        EXPECT_EQ(idle->At(x + 2, 2), RGB(1, 2, 3)) << x;
    Move(HeaderOf(0), 0);
    EXPECT_EQ(Difference(*idle, *Printed()), 0) << "it leaves the hot look out";
    m_grid.SetPaintManager(new CXTPReportThemeResource);
    EXPECT_NE(Printed()->At(50, 5), idle->At(50, 5)) << "which the base has";
}

// --- Alternate rows -------------------------------------------------------------------------------------------------

TEST_F(PaintTest, EverySecondRowMayHaveABackgroundOfItsOwn) {
    AddRecords(4);
    EXPECT_FALSE(m_look->IsAlternateRowBackground());
    EXPECT_EQ(Printed()->Count(m_look->m_clrAlternateRow), 0);
    m_look->UseAlternateRowBackground(TRUE);
    const auto picture = Printed();
    for (int row = 0; row < 4; ++row) {
        const COLORREF expected = row % 2 == 1 ? m_look->m_clrAlternateRow : m_look->m_clrWindow;
        for (const int x : {1, 101, Width - 1})
            EXPECT_EQ(picture->At(x, HeaderHeight() + row * RowHeight() + 1), expected) << row << " at " << x;
    }
    EXPECT_EQ(picture->At(1, HeaderHeight() + 5 * RowHeight() + 1), COLORREF(m_look->m_clrWindow)) << "below the rows";
}

TEST_F(PaintTest, AlternateRowsHideNeitherItemBackgroundsNorTheSelection) {
    AddRecords(4);
    m_look->UseAlternateRowBackground(TRUE);
    Item(1, 1)->SetBackgroundColor(RGB(255, 255, 255));
    m_grid.GetSelectedRows()->Add(m_grid.GetRows()->GetAt(3));
    const auto picture = Printed();
    const int second = HeaderHeight() + RowHeight() + 1;
    EXPECT_EQ(picture->At(101, second), RGB(255, 255, 255));
    EXPECT_EQ(picture->At(1, second), COLORREF(m_look->m_clrAlternateRow));
    EXPECT_EQ(picture->At(1, second + 2 * RowHeight()), COLORREF(m_look->m_clrHighlight));
}

TEST_F(PaintTest, AlternateRowsScrollWithTheirRecordsAndOutliveTheTheme) {
    AddRecords(100);
    m_look->UseAlternateRowBackground(TRUE);
    m_grid.RedrawControl();
    m_grid.UpdateWindow();
    m_grid.SetTopRow(3);
    EXPECT_EQ(OnScreen()->At(1, HeaderHeight() + 1), COLORREF(m_look->m_clrAlternateRow));
    EXPECT_EQ(Difference(*OnScreen(), *Printed()), 0);
    m_grid.SetTheme(xtpReportThemeResource);
    EXPECT_TRUE(m_grid.GetPaintManager()->IsAlternateRowBackground());
}

// --- High contrast --------------------------------------------------------------------------------------------------

/// A paint manager for a system whose high contrast the test switches.
class ContrastLook : public CXTPReportPaintManager {
public:
    using CXTPReportPaintManager::CXTPReportPaintManager;
    static inline BOOL isOn = FALSE;

protected:
    BOOL IsHighContrast() const override { return isOn; }
};

class ContrastTest : public PaintTest, public ::testing::WithParamInterface<std::tuple<int, int>> {
protected:
    ContrastTest() {
        const auto [theme, style] = GetParam();
        ContrastLook::isOn = FALSE;
        m_look = new ContrastLook(static_cast<XTPReportPaintTheme>(theme));
        m_grid.SetPaintManager(m_look);
        m_look->SetColumnStyle(static_cast<XTPReportColumnStyle>(style));
        AddRecords(3);
    }
    ~ContrastTest() override { ContrastLook::isOn = FALSE; }
};

TEST_P(ContrastTest, HighContrastReplacesEveryColourByOneOfTheSystem) {
    m_look->UseAlternateRowBackground(TRUE);
    m_grid.GetColumns()->SetSortColumn(m_columns[0], TRUE);
    const auto ordinary = Printed();
    ContrastLook::isOn = TRUE;
    EXPECT_EQ(Difference(*Printed(), *ordinary), 0) << "before the system says so";
    m_grid.SendMessage(WM_SETTINGCHANGE, SPI_SETHIGHCONTRAST);

    const CXTPReportPaintManager& look = *m_look;
    const auto system = [](int index) { return ::GetSysColor(index); };
    for (const CXTPPaintManagerColor& window : {look.m_clrWindow, look.m_clrAlternateRow, look.m_clrDisabledWindow})
        EXPECT_EQ(COLORREF(window), system(COLOR_WINDOW));
    EXPECT_EQ(COLORREF(look.m_clrWindowText), system(COLOR_WINDOWTEXT));
    EXPECT_EQ(COLORREF(look.m_clrPreviewText), system(COLOR_WINDOWTEXT));
    EXPECT_EQ(COLORREF(look.m_clrDisabledText), system(COLOR_GRAYTEXT));
    EXPECT_EQ(COLORREF(look.m_clrGridLine), system(COLOR_BTNSHADOW));
    EXPECT_EQ(COLORREF(look.m_clrHyperlink), system(COLOR_HOTLIGHT));
    for (const CXTPPaintManagerColor& back : {look.m_clrHighlight, look.m_clrInactiveHighlight, look.m_clrDropMark})
        EXPECT_EQ(COLORREF(back), system(COLOR_HIGHLIGHT));
    for (const CXTPPaintManagerColor& text : {look.m_clrHighlightText, look.m_clrInactiveHighlightText})
        EXPECT_EQ(COLORREF(text), system(COLOR_HIGHLIGHTTEXT));
    for (const CXTPPaintManagerColor& face :
         {look.m_clrHeader, look.m_clrHeaderLight, look.m_clrHeaderSorted, look.m_clrHeaderSortedLight,
          look.m_clrHeaderHot, look.m_clrHeaderHotLight, look.m_clrHeaderPressed, look.m_clrHeaderPressedLight})
        EXPECT_EQ(COLORREF(face), system(COLOR_BTNFACE));
    for (const CXTPPaintManagerColor& text : {look.m_clrHeaderText, look.m_clrSortArrow})
        EXPECT_EQ(COLORREF(text), system(COLOR_BTNTEXT));
    for (const CXTPPaintManagerColor& line : {look.m_clrHeaderDivider, look.m_clrHeaderLine})
        EXPECT_EQ(COLORREF(line), system(COLOR_WINDOWFRAME));
    EXPECT_EQ(COLORREF(look.m_clrHeaderFrame), system(COLOR_HIGHLIGHT));
    EXPECT_EQ(COLORREF(look.m_clrFocusFrame), CXTPPaintManagerColor::Unset) << "the system's dotted rectangle";
    EXPECT_GT(Difference(*Printed(), *ordinary), 0);

    ContrastLook::isOn = FALSE;
    m_grid.SendMessage(WM_SYSCOLORCHANGE);
    EXPECT_EQ(Difference(*Printed(), *ordinary), 0);
}

TEST_P(ContrastTest, TheSelectionOfADisabledGridCanBeReadInHighContrast) {
    m_grid.GetSelectedRows()->Add(m_grid.GetRows()->GetAt(1));
    m_grid.EnableWindow(FALSE);
    XTP_REPORTRECORDITEM_METRICS metrics;
    m_look->FillRowMetrics(m_grid.GetRows()->GetAt(1), &metrics);
    EXPECT_EQ(metrics.clrForeground, COLORREF(m_look->m_clrDisabledText));
    ContrastLook::isOn = TRUE;
    m_grid.SendMessage(WM_SETTINGCHANGE, SPI_SETHIGHCONTRAST);
    m_look->FillRowMetrics(m_grid.GetRows()->GetAt(1), &metrics);
    EXPECT_EQ(metrics.clrForeground, ::GetSysColor(COLOR_HIGHLIGHTTEXT));
    m_look->FillRowMetrics(m_grid.GetRows()->GetAt(0), &metrics);
    EXPECT_EQ(metrics.clrForeground, ::GetSysColor(COLOR_GRAYTEXT));
}

TEST_P(ContrastTest, HighContrastIsTheSameInEveryTheme) {
    ContrastLook::isOn = TRUE;
    m_grid.SendMessage(WM_SETTINGCHANGE, SPI_SETHIGHCONTRAST);
    Move(HeaderOf(1), 0);
    const COLORREF frame = ::GetSysColor(COLOR_HIGHLIGHT);
    EXPECT_EQ(Printed()->BoxOf(frame), CRect(100, 0, 179, HeaderHeight() - 1)) << "around the hot column";
}

INSTANTIATE_TEST_SUITE_P(Looks, ContrastTest,
                         ::testing::Combine(::testing::Values(0, 1, 4, 8, 9), ::testing::Range(0, 5)));

TEST_F(PaintTest, EveryThemeAndEveryColumnStyleLooksDifferent) {
    AddRecords(3);
    m_grid.SetFocusedRow(m_grid.GetRows()->GetAt(1));
    std::vector<std::unique_ptr<DibCanvas>> pictures;
    for (const int theme : {0, 1, 4, 8, 9}) {
        m_grid.SetTheme(static_cast<XTPReportPaintTheme>(theme));
        pictures.push_back(Printed());
    }
    m_grid.SetTheme(xtpReportThemeOfficeXP);
    for (const int style : {0, 2, 3, 4}) {
        m_grid.GetPaintManager()->SetColumnStyle(static_cast<XTPReportColumnStyle>(style));
        pictures.push_back(Printed());
    }
    for (std::size_t a = 0; a < pictures.size(); ++a) {
        for (std::size_t b = a + 1; b < pictures.size(); ++b)
            EXPECT_GT(Difference(*pictures[a], *pictures[b]), 0) << a << " and " << b;
    }
}

TEST_F(PaintTest, ThemesWithoutALookOfTheirOwnLookLikeTheDefault) {
    AddRecords(3);
    m_grid.SetTheme(xtpReportThemeDefault);
    const auto expected = Printed();
    for (const int theme : {-1, 2, 3, 5, 6, 7, 10, 1000}) {
        m_grid.SetTheme(static_cast<XTPReportPaintTheme>(theme));
        EXPECT_EQ(Difference(*Printed(), *expected), 0) << theme;
        EXPECT_EQ(m_grid.GetPaintManager()->GetTheme(), static_cast<XTPReportPaintTheme>(theme));
    }
}

TEST_F(PaintTest, AThemeSetWithoutARedrawShowsWithTheNextPainting) {
    AddRecords(3);
    m_grid.SetTheme(xtpReportThemeOffice2013, FALSE);
    EXPECT_TRUE(m_grid.GetUpdateRect(nullptr));
    m_grid.GetPaintManager()->m_clrGridLine = RGB(9, 8, 7);
    EXPECT_GT(OnScreen()->Count(RGB(9, 8, 7)), 0);
    m_grid.SetTheme(xtpReportThemeWindows7, TRUE);
    EXPECT_FALSE(m_grid.GetUpdateRect(nullptr));
}

TEST_F(PaintTest, AHostsColourOutlivesTheColumnStyle) {
    AddRecords(1);
    m_look->m_clrGridLine = RGB(250, 0, 0);
    m_look->m_clrHeaderText = RGB(0, 250, 0);
    m_look->SetColumnStyle(xtpReportColumnFlat);
    m_look->RefreshMetrics();
    EXPECT_EQ(COLORREF(m_look->m_clrGridLine), RGB(250, 0, 0));
    EXPECT_EQ(COLORREF(m_look->m_clrHeaderText), RGB(0, 250, 0));
    EXPECT_GT(Printed()->Count(RGB(250, 0, 0)), 0);
}

TEST_F(PaintTest, ADisabledGridIsGrey) {
    AddRecords(1);
    m_look->m_clrDisabledText = RGB(7, 8, 9);
    EXPECT_EQ(Printed()->Count(RGB(7, 8, 9)), 0);
    m_look->m_clrDisabledWindow = RGB(200, 201, 202);
    m_look->m_clrWindow = RGB(9, 10, 11);
    m_grid.EnableWindow(FALSE);
    const auto picture = OnScreen();
    EXPECT_GT(picture->Count(RGB(7, 8, 9)), 0);
    EXPECT_EQ(picture->At(1, HeaderHeight() + 1), RGB(200, 201, 202));
    EXPECT_EQ(picture->At(1, HeaderHeight() + 3 * RowHeight()), RGB(200, 201, 202)) << "below the rows";
    EXPECT_EQ(picture->Count(RGB(9, 10, 11)), 0);
}

TEST_F(PaintTest, WhatIsPrintedIsWhatIsOnTheScreen) {
    AddRecords(30);
    m_grid.SetFocusedRow(m_grid.GetRows()->GetAt(2));
    EXPECT_EQ(Difference(*OnScreen(), *Printed()), 0);
    m_columns[0]->SetWidth(200);
    EXPECT_EQ(Difference(*OnScreen(), *Printed()), 0);
}

TEST_F(PaintTest, DrawingChangesNothingOutsideTheDamage) {
    AddRecords(5);
    DibCanvas canvas(Width, 200, RGB(255, 0, 255));
    const CRect dirty(20, HeaderHeight() + 3, 140, HeaderHeight() + 50);
    m_grid.DoDraw(&canvas.Dc(), dirty);
    EXPECT_EQ(canvas.Count(RGB(255, 0, 255)), Width * 200 - dirty.Width() * dirty.Height());
    EXPECT_EQ(canvas.At(19, dirty.top), RGB(255, 0, 255));
    EXPECT_NE(canvas.At(20, dirty.top), RGB(255, 0, 255));
}

// --- Economy --------------------------------------------------------------------------------------------------------

TEST_F(PaintTest, OnlyVisibleCellsAreDrawn) {
    AddRecords(1000);
    m_grid.RedrawControl();
    m_grid.RedrawControl();
    m_grid.UpdateWindow();
    EXPECT_EQ(CellsDrawn(), VisibleRows * 3);
    EXPECT_EQ(Item(0, 0)->drawn, 1) << "requests coalesce";
}

TEST_F(PaintTest, VeryManyRequestsCoalesceAndTheLastIsKept) {
    AddRecords(20);
    for (int i = 0; i < 1000; ++i)
        m_grid.RedrawControl();
    m_grid.UpdateWindow();
    EXPECT_EQ(CellsDrawn(), VisibleRows * 3);
    Pump(100);
    EXPECT_EQ(CellsDrawn(), VisibleRows * 3) << "nothing is owed after the painting";
    m_grid.RedrawControl();
    EXPECT_TRUE(m_grid.GetUpdateRect(nullptr));
    Settle();

    for (int i = 0; i < 1000; ++i)
        m_grid.RedrawControl();
    m_grid.ValidateRect(nullptr);
    m_grid.RedrawControl();
    Pump(100);
    EXPECT_EQ(CellsDrawn(), VisibleRows * 3) << "a request after the window was declared valid";
}

TEST_F(PaintTest, ACellThatIsDraggedDrawsItsRowAtOnceAndTheRestSoonAfter) {
    auto* record = new CXTPReportRecord;
    for (const wchar_t* text : {L"a", L"b", L"c"})
        record->AddItem(new FollowingItem(text));
    m_grid.AddRecord(record);
    AddRecords(4);
    Press(Cell(0));
    Settle();
    Move(Cell(0) + CSize(3, 0));
    m_grid.UpdateWindow();
    EXPECT_EQ(Item(0, 0)->drawn, 1);
    EXPECT_EQ(CellsDrawn(), 3);
    Pump(200);
    EXPECT_GE(Item(4, 2)->drawn, 1);
    Release(Cell(0));

    Settle();
    Move(Cell(0) + CSize(6, 0), 0);
    m_grid.UpdateWindow();
    EXPECT_EQ(CellsDrawn(), 5 * 3) << "without a drag";
}

TEST_F(PaintTest, RedrawingARowDrawsThatRow) {
    AddRecords(20);
    m_grid.RedrawRow(m_grid.GetRows()->GetAt(4));
    m_grid.UpdateWindow();
    EXPECT_EQ(CellsDrawn(), 3);
    EXPECT_EQ(Item(4, 1)->drawn, 1);
    m_grid.RedrawRow(m_grid.GetRows()->GetAt(15));
    EXPECT_FALSE(m_grid.GetUpdateRect(nullptr)) << "a row that is not seen";
}

TEST_F(PaintTest, VeryManyRequestsForRowsCoalesceAndTheLastIsKept) {
    AddRecords(20);
    for (int i = 0; i < 1000; ++i)
        m_grid.RedrawRow(m_grid.GetRows()->GetAt(i < 990 ? i % 2 : 4));
    m_grid.UpdateWindow();
    EXPECT_EQ(Item(0, 0)->drawn, 1);
    EXPECT_EQ(Item(4, 0)->drawn, 1);
    Settle();

    for (int i = 0; i < 1000; ++i)
        m_grid.RedrawRow(m_grid.GetRows()->GetAt(0));
    m_grid.ValidateRect(nullptr);
    m_grid.RedrawRow(m_grid.GetRows()->GetAt(3));
    Pump(100);
    EXPECT_EQ(Item(3, 0)->drawn, 1) << "a request after the window was declared valid";
    Settle();

    for (int i = 0; i < 1000; ++i)
        m_grid.RedrawRow(m_grid.GetRows()->GetAt(15));
    EXPECT_FALSE(m_grid.GetUpdateRect(nullptr)) << "a row that is not seen";
}

TEST_F(PaintTest, OnlyDamagedCellsAreDrawn) {
    AddRecords(20);
    const CRect damage(110, HeaderHeight() + RowHeight() + 2, 120, HeaderHeight() + 2 * RowHeight() + 2);
    m_grid.InvalidateRect(&damage, FALSE);
    m_grid.UpdateWindow();
    EXPECT_EQ(CellsDrawn(), 2);
    EXPECT_EQ(Item(1, 1)->drawn, 1);
    EXPECT_EQ(Item(2, 1)->drawn, 1);
}

TEST_F(PaintTest, DamagesFarApartAreDrawnApart) {
    AddRecords(20);
    m_grid.RedrawRow(m_grid.GetRows()->GetAt(0));
    m_grid.RedrawRow(m_grid.GetRows()->GetAt(9));
    m_grid.UpdateWindow();
    EXPECT_EQ(CellsDrawn(), 2 * 3);
}

TEST_F(PaintTest, DamagesFarApartAreDrawnInAMirroredWindowToo) {
    AddRecords(20);
    m_grid.ModifyStyleEx(0, WS_EX_LAYOUTRTL, SWP_FRAMECHANGED);
    m_grid.UpdateWindow();
    Settle();
    m_grid.RedrawRow(m_grid.GetRows()->GetAt(0));
    m_grid.RedrawRow(m_grid.GetRows()->GetAt(9));
    m_grid.UpdateWindow();
    for (const int row : {0, 9})
        for (int column = 0; column < 3; ++column)
            EXPECT_EQ(Item(row, column)->drawn, 1) << row << ", " << column;
}

TEST_F(PaintTest, MovingTheSelectionDrawsTwoRows) {
    AddRecords(20);
    Click(Cell(2));
    Settle();
    Click(Cell(7));
    m_grid.UpdateWindow();
    EXPECT_EQ(CellsDrawn(), 2 * 3);
}

TEST_F(PaintTest, HoveringAHeaderDrawsNoRow) {
    AddRecords(20);
    Move(HeaderOf(0), 0);
    Move(HeaderOf(1), 0);
    m_grid.UpdateWindow();
    EXPECT_EQ(CellsDrawn(), 0);
    EXPECT_EQ(m_header->GetHotColumn(), m_columns[1]);
}

// --- Scrolling moves pixels -----------------------------------------------------------------------------------------

TEST_F(PaintTest, ScrollingDrawsOnlyTheRowsThatComeIntoView) {
    AddRecords(100);
    m_grid.SetTopRow(3);
    m_grid.UpdateWindow();
    EXPECT_EQ(CellsDrawn(), 3 * 3);
    EXPECT_EQ(Item(12, 0)->drawn, 1);
    EXPECT_EQ(Item(9, 0)->drawn, 0);
    EXPECT_EQ(Difference(*OnScreen(), *Printed()), 0);
}

TEST_F(PaintTest, ScrollingUpDrawsOnlyTheRowsThatComeIntoView) {
    AddRecords(100);
    m_grid.SetTopRow(50);
    Settle();
    m_grid.SetTopRow(48);
    m_grid.UpdateWindow();
    EXPECT_EQ(CellsDrawn(), 2 * 3);
    EXPECT_EQ(Difference(*OnScreen(), *Printed()), 0);
}

TEST_F(PaintTest, StepsWithoutAPaintingBetweenLeaveNoTrace) {
    AddRecords(100);
    for (const int top : {2, 5, 4, 9, 3, 12})
        m_grid.SetTopRow(top);
    EXPECT_EQ(Difference(*OnScreen(), *Printed()), 0);
}

TEST_F(PaintTest, DamageFromBeforeMovesWithTheRows) {
    AddRecords(100);
    Item(6, 0)->SetValue(_T("changed"));
    m_grid.RedrawRow(m_grid.GetRows()->GetAt(6));
    m_grid.SetTopRow(4);
    EXPECT_EQ(Difference(*OnScreen(), *Printed()), 0);
}

TEST_F(PaintTest, SelectionAndFocusScrollAlong) {
    AddRecords(100);
    m_look->SetGridStyle(TRUE, xtpReportGridSmallDots);
    m_look->SetGridStyle(FALSE, xtpReportGridDashes);
    m_grid.RedrawControl();
    Click(Cell(4));
    for (int i = 0; i < 3; ++i)
        m_grid.SendMessage(WM_VSCROLL, SB_LINEDOWN);
    EXPECT_EQ(Difference(*OnScreen(), *Printed()), 0);
}

TEST_F(PaintTest, ACutOffRowIsCompletedByScrolling) {
    AddRecords(100);
    m_grid.MoveWindow(0, 0, Width, HeaderHeight() + 5 * RowHeight() + RowHeight() / 2);
    Settle();
    m_grid.SetTopRow(1);
    m_grid.UpdateWindow();
    EXPECT_EQ(Difference(*OnScreen(), *Printed()), 0);
}

TEST_F(PaintTest, ScrollingByMoreThanAPageDrawsThePage) {
    AddRecords(100);
    m_grid.SetTopRow(60);
    m_grid.UpdateWindow();
    EXPECT_EQ(CellsDrawn(), VisibleRows * 3);
    EXPECT_EQ(Difference(*OnScreen(), *Printed()), 0);
}

TEST_F(PaintTest, ACellThatWasMovedDrawsBeforeTheMouseMeetsIt) {
    AddRecords(100);
    m_grid.SetTopRow(2);
    m_grid.UpdateWindow();
    const CRect now = m_grid.GetRows()->GetAt(6)->GetItemRect(Item(6, 0));
    ASSERT_NE(Item(6, 0)->drawnAt, now) << "its pixels were moved";
    Move(Cell(6), 0);
    EXPECT_EQ(Item(6, 0)->drawnAt, now);
    Press(Cell(8));
    EXPECT_EQ(Item(8, 0)->drawnAt, m_grid.GetRows()->GetAt(8)->GetItemRect(Item(8, 0)));
    Release(Cell(8));
}

TEST_F(PaintTest, WhileTheMouseIsCapturedScrolledCellsDrawAtOnce) {
    AddRecords(100);
    Item(5, 0)->takesPress = true;
    Press(Cell(5));
    m_grid.SetCapture();
    m_grid.SetTopRow(2);
    EXPECT_EQ(Item(5, 0)->drawnAt, m_grid.GetRows()->GetAt(5)->GetItemRect(Item(5, 0)));
    ::ReleaseCapture();
}

TEST_F(PaintTest, ScrollingSidewaysDrawsTheCellsAtTheirNewPlace) {
    AddRecords(5);
    m_columns[0]->SetWidth(250);
    Settle();
    m_grid.SetLeftOffset(60);
    m_grid.UpdateWindow();
    EXPECT_EQ(Item(0, 0)->drawnAt.left, -60);
    EXPECT_EQ(Difference(*OnScreen(), *Printed()), 0);
}

} // namespace
