// The header of grids on dialogs, pixel by pixel.
#include "PlotPictures.h"

#include <reportgrid/KyDialogReportControlTheme.h>

namespace {

/// Columns of 60, 50, 40 pixels under the theme with three plain colours.
class DialogThemeTest : public ProfileTest {
protected:
    static constexpr COLORREF Light = RGB(1, 2, 3), Dark = RGB(4, 5, 6), Divider = RGB(7, 8, 9);

    DialogThemeTest() {
        for (const int width : {60, 50, 40})
            grid.AddColumn(new CXTPReportColumn(grid.GetColumns()->GetCount(), _T(""), width));
        theme = new KyDialogReportControlTheme;
        theme->m_clrHeaderDividerLight = Light;
        theme->m_clrHeaderLine = Dark;
        theme->m_clrHeaderDivider = Divider;
        grid.SetPaintManager(theme);
    }
    CXTPReportColumn& Column(int index) { return *grid.GetColumns()->GetAt(index); }
    PixelImage Drawn(int column, const CRect& rect, CXTPReportHeader* header) {
        Surface surface(60, 30, White);
        int hot = 1, pressed = 1;
        theme->DrawColumnBackground(&surface.Dc(), &Column(column), rect, hot, pressed, header);
        return surface.Image();
    }
    PixelImage Drawn(int column, const CRect& rect) { return Drawn(column, rect, grid.GetReportHeader()); }
    /// A frame of the two colours, as the column has it without dividers.
    static PixelImage Frame(const CRect& rc) {
        PixelImage image(60, 30, White);
        image.Fill(rc.right - 1, rc.top, rc.right, rc.bottom, Dark);
        image.Fill(rc.left, rc.bottom - 1, rc.right, rc.bottom, Dark);
        image.Fill(rc.left, rc.top, rc.right - 1, rc.top + 1, Light);
        image.Fill(rc.left, rc.top, rc.left + 1, rc.bottom - 1, Light);
        return image;
    }

    CXTPReportControl grid;
    KyDialogReportControlTheme* theme;
};

const CRect Place(10, 5, 40, 25);

TEST_F(DialogThemeTest, AColumnHasAFrameAndADividerAtItsRightEdge) {
    const PixelImage drawn = Drawn(0, Place);
    PixelImage expected = Frame(Place);
    expected.Fill(39, 6, 40, 24, Divider);
    expected.Set(39, 5, Light);
    EXPECT_EQ(PixelImage::Difference(drawn, expected), "");
}

TEST_F(DialogThemeTest, TheColumnBeforeHasItsDividerAtTheLeftEdge) {
    const PixelImage drawn = Drawn(1, Place);
    PixelImage expected = Frame(Place);
    expected.Fill(39, 6, 40, 24, Divider);
    expected.Set(39, 5, Light);
    expected.Fill(10, 6, 11, 24, Divider);
    EXPECT_EQ(PixelImage::Difference(drawn, expected), "");
}

TEST_F(DialogThemeTest, AHiddenDividerIsNotDrawnOnEitherSide) {
    Column(1).HideDivider(TRUE);
    PixelImage expected = Frame(Place);
    expected.Fill(10, 6, 11, 24, Divider); // that of the first column
    EXPECT_EQ(PixelImage::Difference(Drawn(1, Place), expected), "");
    expected = Frame(Place);
    expected.Fill(39, 6, 40, 24, Divider);
    expected.Set(39, 5, Light);
    EXPECT_EQ(PixelImage::Difference(Drawn(2, Place), expected), "");
}

TEST_F(DialogThemeTest, TheColumnBeforeIsTheNearestVisibleOne) {
    Column(1).HideDivider(TRUE);
    Column(1).SetVisible(FALSE);
    EXPECT_EQ(Drawn(2, Place).At(10, 15), Divider) << "of the first column";
    Column(0).SetVisible(FALSE);
    EXPECT_EQ(Drawn(2, Place).At(10, 15), Light) << "there is none";
}

TEST_F(DialogThemeTest, WithoutAHeaderThereIsNoColumnBefore) { EXPECT_EQ(Drawn(1, Place, nullptr).At(10, 15), Light); }

TEST_F(DialogThemeTest, TheColoursAreTheThemesUntilTheHostChoosesOthers) {
    theme->m_clrHeaderDividerLight.SetDefaultValue();
    theme->m_clrHeaderLine.SetDefaultValue();
    theme->m_clrHeaderDivider.SetDefaultValue();
    const PixelImage drawn = Drawn(0, Place);
    EXPECT_EQ(drawn.At(20, 5), theme->m_clrHeaderDividerLight.GetStandardColor());
    EXPECT_EQ(drawn.At(20, 24), theme->m_clrHeaderLine.GetStandardColor());
    EXPECT_EQ(drawn.At(39, 15), theme->m_clrHeaderDivider.GetStandardColor());
}

TEST_F(DialogThemeTest, WithoutALightColourTheFrameIsDark) {
    theme->m_clrHeaderDividerLight.SetDefaultValue();
    theme->m_clrHeaderDividerLight.SetStandardValue(CXTPPaintManagerColor::Unset);
    EXPECT_EQ(Drawn(0, Place).At(20, 5), Dark);
}

TEST_F(DialogThemeTest, TheGridDrawsItsHeaderWithIt) {
    CWnd frame;
    frame.CreateEx(0, AfxRegisterWndClass(0), _T("host"), WS_POPUP | WS_VISIBLE, CRect(20, 30, 320, 230), nullptr, 0);
    grid.Create(WS_CHILD | WS_VISIBLE, CRect(0, 0, 300, 200), &frame, 100);
    Surface surface(300, 200, White);
    grid.SendMessage(WM_PRINTCLIENT, reinterpret_cast<WPARAM>(surface.Dc().m_hDC), PRF_CLIENT);
    const PixelImage picture = surface.Image();
    EXPECT_EQ(picture.At(59, 5), Divider);
    EXPECT_EQ(picture.At(60, 5), Divider) << "at the left edge of the second";
    EXPECT_EQ(picture.At(30, 0), Light);
    EXPECT_EQ(picture.At(30, theme->GetHeaderHeight() - 1), Dark);
    grid.DestroyWindow();
    frame.DestroyWindow();
}

} // namespace
