// Tests of drawing, pixel by pixel.
#include "DibCanvas.h"

namespace {

constexpr COLORREF white = RGB(255, 255, 255);
constexpr COLORREF red = RGB(255, 0, 0);
constexpr COLORREF blue = RGB(0, 0, 255);
constexpr COLORREF black = RGB(0, 0, 0);

} // namespace

TEST(Drawing, FillSolidRectFillsExactlyTheRectangleAndSetsTheBackgroundColour) {
    DibCanvas canvas(20, 10);
    canvas.Dc().FillSolidRect(CRect(2, 3, 12, 7), red);
    EXPECT_EQ(canvas.BoxOf(red), CRect(2, 3, 12, 7));
    EXPECT_EQ(canvas.Count(red), 40);
    EXPECT_EQ(canvas.Dc().GetBkColor(), red);
    canvas.Dc().FillSolidRect(0, 0, 3, 2, blue);
    EXPECT_EQ(canvas.BoxOf(blue), CRect(0, 0, 3, 2));
    EXPECT_EQ(canvas.Count(blue), 6);
}

TEST(Drawing, FillSolidRectOfNoAreaFillsNothing) {
    DibCanvas canvas(8, 8);
    canvas.Dc().FillSolidRect(2, 2, 0, 4, red);
    EXPECT_EQ(canvas.Count(white), 64);
}

TEST(Drawing, Draw3dRectGivesTheOtherCornersToTheRightAndBottomEdges) {
    DibCanvas canvas(10, 8);
    canvas.Dc().Draw3dRect(CRect(1, 1, 9, 7), red, blue);
    EXPECT_EQ(canvas.At(1, 1), red);
    EXPECT_EQ(canvas.At(7, 1), red);
    EXPECT_EQ(canvas.At(8, 1), blue);
    EXPECT_EQ(canvas.At(1, 5), red);
    EXPECT_EQ(canvas.At(1, 6), blue);
    EXPECT_EQ(canvas.At(8, 6), blue);
    EXPECT_EQ(canvas.At(2, 2), white);
    // 7 + 5 - 1 pixels at the top left, 6 + 8 - 1 at the bottom right.
    EXPECT_EQ(canvas.Count(red), 11);
    EXPECT_EQ(canvas.Count(blue), 13);
}

TEST(Drawing, FillAndFrameUseTheBrush) {
    DibCanvas canvas(10, 10);
    CBrush brush(red);
    canvas.Dc().FillRect(CRect(0, 0, 4, 4), &brush);
    EXPECT_EQ(canvas.Count(red), 16);
    CBrush frame(blue);
    canvas.Dc().FrameRect(CRect(5, 5, 10, 10), &frame);
    EXPECT_EQ(canvas.Count(blue), 16);
    EXPECT_EQ(canvas.At(7, 7), white);
}

TEST(Drawing, LinesLeaveOutTheirEnd) {
    DibCanvas canvas(10, 4);
    CPen pen(PS_SOLID, 1, red);
    const SelectGuard guard(canvas.Dc(), pen);
    EXPECT_EQ(canvas.Dc().MoveTo(1, 2), CPoint(0, 0));
    EXPECT_TRUE(canvas.Dc().LineTo(5, 2));
    EXPECT_EQ(canvas.BoxOf(red), CRect(1, 2, 5, 3));
    EXPECT_EQ(canvas.Dc().GetCurrentPosition(), CPoint(5, 2));
}

TEST(Drawing, RectanglesHaveABorderOfThePenAndAnInsideOfTheBrush) {
    DibCanvas canvas(8, 8);
    CPen pen(PS_SOLID, 1, red);
    CBrush brush(blue);
    const SelectGuard penGuard(canvas.Dc(), pen);
    const SelectGuard brushGuard(canvas.Dc(), brush);
    canvas.Dc().Rectangle(CRect(1, 1, 7, 7));
    EXPECT_EQ(canvas.Count(red), 20);
    EXPECT_EQ(canvas.Count(blue), 16);
}

TEST(Drawing, PolygonsAreClosedAndFilled) {
    DibCanvas canvas(10, 10);
    CPen pen(PS_SOLID, 1, red);
    CBrush brush(blue);
    const SelectGuard penGuard(canvas.Dc(), pen);
    const SelectGuard brushGuard(canvas.Dc(), brush);
    const POINT corners[] = {{1, 1}, {8, 1}, {8, 8}, {1, 8}};
    EXPECT_TRUE(canvas.Dc().Polygon(corners, 4));
    EXPECT_EQ(canvas.At(1, 4), red);
    EXPECT_EQ(canvas.At(4, 4), blue);
    const POINT open[] = {{0, 9}, {9, 9}};
    EXPECT_TRUE(canvas.Dc().Polyline(open, 2));
    EXPECT_EQ(canvas.At(0, 9), red);
}

TEST(Drawing, BlitsCopyPixels) {
    DibCanvas source(4, 4, blue);
    DibCanvas target(10, 10);
    EXPECT_TRUE(target.Dc().BitBlt(3, 3, 4, 4, &source.Dc(), 0, 0, SRCCOPY));
    EXPECT_EQ(target.BoxOf(blue), CRect(3, 3, 7, 7));
    EXPECT_TRUE(target.Dc().StretchBlt(0, 0, 10, 2, &source.Dc(), 0, 0, 4, 4, SRCCOPY));
    EXPECT_EQ(target.Count(blue), 36);
    EXPECT_TRUE(target.Dc().PatBlt(0, 0, 10, 10, WHITENESS));
    EXPECT_EQ(target.Count(white), 100);
}

TEST(Drawing, AlphaBlendMixesWithTheConstantAlpha) {
    DibCanvas source(4, 4, black);
    DibCanvas target(4, 4);
    EXPECT_TRUE(target.Dc().AlphaBlend(0, 0, 4, 4, &source.Dc(), 0, 0, 4, 4, BLENDFUNCTION{AC_SRC_OVER, 0, 51, 0}));
    // 255 * (255 - 51) / 255 = 204
    EXPECT_EQ(target.At(1, 1), static_cast<COLORREF>(RGB(204, 204, 204)));
}

TEST(Drawing, GradientsRunFromOneColourToTheOther) {
    DibCanvas canvas(256, 2);
    TRIVERTEX vertices[] = {{0, 0, 0, 0, 0, 0}, {256, 2, 0xFF00, 0, 0, 0}};
    GRADIENT_RECT rect{0, 1};
    EXPECT_TRUE(canvas.Dc().GradientFill(vertices, 2, &rect, 1, GRADIENT_FILL_RECT_H));
    EXPECT_EQ(GetRValue(canvas.At(0, 0)), 0);
    EXPECT_NEAR(GetRValue(canvas.At(128, 1)), 127, 1);
    EXPECT_GE(GetRValue(canvas.At(255, 0)), 253);
}

TEST(Drawing, PixelsAreSetAndRead) {
    DibCanvas canvas(4, 4);
    EXPECT_EQ(canvas.Dc().SetPixel(CPoint(1, 2), red), red);
    EXPECT_TRUE(canvas.Dc().SetPixelV(2, 2, blue));
    EXPECT_EQ(canvas.Dc().GetPixel(1, 2), red);
    EXPECT_EQ(canvas.At(2, 2), blue);
}

TEST(Drawing, TextKeepsToItsRectangle) {
    DibCanvas canvas(100, 40);
    CDC& dc = canvas.Dc();
    dc.SetBkMode(TRANSPARENT);
    CRect rect(30, 10, 70, 30);
    EXPECT_GT(dc.DrawText(CString(L"MMMMMMMMMMMM"), rect, DT_SINGLELINE | DT_LEFT | DT_VCENTER), 0);
    EXPECT_LT(canvas.Count(white), 4000);
    for (int x = 0; x < 100; ++x)
        for (int y = 0; y < 40; ++y)
            EXPECT_TRUE(rect.PtInRect(CPoint(x, y)) || canvas.At(x, y) == white) << x << ',' << y;
}

TEST(Drawing, MeasuringTextDrawsNothing) {
    DibCanvas canvas(100, 40);
    CDC& dc = canvas.Dc();
    CRect rect(0, 0, 10, 10);
    const CString text(L"Measure");
    dc.DrawText(text, rect, DT_CALCRECT | DT_SINGLELINE);
    EXPECT_EQ(rect.Size(), dc.GetTextExtent(text));
    EXPECT_EQ(canvas.Count(white), 4000);
    TEXTMETRIC metrics{};
    EXPECT_TRUE(dc.GetTextMetrics(&metrics));
    EXPECT_EQ(dc.GetTextExtent(L"x", 1).cy, metrics.tmHeight);
}

TEST(Drawing, TextIsClippedAndFilledByExtTextOut) {
    DibCanvas canvas(60, 30);
    CDC& dc = canvas.Dc();
    dc.SetBkColor(red);
    EXPECT_TRUE(dc.ExtTextOut(0, 0, ETO_OPAQUE | ETO_CLIPPED, CRect(5, 5, 15, 15), CString(), nullptr));
    EXPECT_EQ(canvas.BoxOf(red), CRect(5, 5, 15, 15));
    dc.SetBkMode(TRANSPARENT);
    EXPECT_TRUE(dc.TextOut(30, 5, CString(L"T")));
    EXPECT_LT(canvas.Count(white), 1800 - 100);
}

TEST(Drawing, TheFaceOfTheFontIsTold) {
    DibCanvas canvas(4, 4);
    CFont font;
    font.CreatePointFont(90, L"Tahoma");
    const SelectGuard guard(canvas.Dc(), font);
    CString face;
    EXPECT_GT(canvas.Dc().GetTextFace(face), 0);
    EXPECT_EQ(face, L"Tahoma");
}
