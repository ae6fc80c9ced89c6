// The bar chart cell: values, tool tip, and its picture pixel by pixel.
#include "PlotPictures.h"

#include <common/Translation.h>

#include <array>
#include <functional>
#include <limits>
#include <memory>

namespace {

constexpr float M = -99.0f; // no value
/// The middle of the three colours between the standard dark and light bar colour.
constexpr COLORREF BarColor = RGB(89, 114, 207);

/// The 20 colours from the standard light to the standard dark bar colour: hue 214.2857 to 240, saturation 35/255 to 1,
/// value 1 to 160/255 in equal steps, each channel rounded down. Blue is the value: 250, 245, 240 …, from the third on
/// one less, because the steps added up fall short by a rounding error.
constexpr std::array<COLORREF, 20> Ramp = {
    RGB(220, 235, 255), RGB(204, 222, 250), RGB(189, 210, 244), RGB(174, 198, 239), RGB(160, 185, 234),
    RGB(146, 172, 229), RGB(132, 159, 224), RGB(119, 146, 219), RGB(107, 134, 214), RGB(95, 121, 209),
    RGB(83, 108, 204),  RGB(72, 95, 199),   RGB(61, 82, 194),   RGB(51, 70, 189),   RGB(42, 58, 184),
    RGB(32, 45, 179),   RGB(23, 34, 174),   RGB(15, 22, 169),   RGB(7, 11, 164),    RGB(0, 0, 160)};

/// A cell 402 pixels wide and 22 high draws into x 1…400 and y 1…20: w = 400, a hundredth is 4 pixels. Without a
/// margin and on the scale 0…100, the value v stands at x = 1 + 4 v.
class BarChartTest : public ::testing::Test {
protected:
    BarChartTest() { bar.SetMargin(0.0); }

    /// On the scale 0…100 whose end marks are at the edges; `OnScale` is the empty picture with them.
    void SetBar(float lower, float target, float upper) { bar.SetError(target, 0, 100, lower, upper, M, M, M, M); }

    static PixelImage OnScale() {
        PixelImage image(402, 22, White);
        // The mark at fraction 0 loses its left pixel, the one at 1 its right pixel, to the edges.
        return image.Fill(1, 1, 2, 21, Red).Fill(400, 1, 401, 21, Red);
    }

    /// What `OnScale` hides at the edges is drawn before the marks.
    static void DrawScaleEnds(PixelImage& image) { image.Fill(1, 1, 2, 21, Red).Fill(400, 1, 401, 21, Red); }

    PixelImage Draw() { return PictureOf(bar, host.grid, 402, 22); }

    void ExpectPicture(const PixelImage& expected) { EXPECT_EQ(PixelImage::Difference(Draw(), expected), ""); }

    /// Presses at the value and moves to another one, as the mouse would.
    void Drag(int from, int to) {
        const CRect cell(0, 0, 402, 22);
        bar.BeginDrag(CPoint(1 + 4 * from, 10), cell);
        Draw();
        bar.OnMouseMove(MK_LBUTTON, CPoint(1 + 4 * to, 10), &host.grid);
    }

    PlotGridHost host;
    ProbeBar bar;
};

/// The two halves of a gradient bar as the pieces' own arithmetic gives them for whole-numbered, even steps.
void FillGradient(PixelImage& image, int lower, int center, int upper) {
    const int leftStep = (center - lower) / 20;
    for (int i = 0; i < 20; ++i)
        image.Fill(lower + i * leftStep, 1, lower + (i + 1) * leftStep + 1, 21, Ramp[i]);
    const int rightStep = (upper - center) / 20;
    for (int i = 0; i < 20; ++i)
        image.Fill(center + i * rightStep, 1, center + (i + 1) * rightStep + 1, 21, Ramp[19 - i]);
}

} // namespace

// --- Class and values ------------------------------------------------------------------------------------------------

TEST(BarChartRecordItem, IsCreatedByItsRunTimeClass) {
    std::unique_ptr<CObject> object(RUNTIME_CLASS(KyBarChartRecordItem)->CreateObject());
    ASSERT_TRUE(object);
    EXPECT_NE(dynamic_cast<KyBarChartRecordItem*>(object.get()), nullptr);
    EXPECT_TRUE(object->IsKindOf(RUNTIME_CLASS(CXTPReportRecordItemText)));
    EXPECT_STREQ(object->GetRuntimeClass()->m_lpszClassName, "KyBarChartRecordItem");
}

TEST(BarChartRecordItem, StartsWithoutValuesAndWithTheStandardColours) {
    const ProbeBar bar;
    for (const float value :
         {bar.m_scaleMin, bar.m_scaleMax, bar.m_optimizerLow, bar.m_optimizerHigh, bar.m_errorLow, bar.m_errorHigh})
        EXPECT_EQ(value, -99.0f);
    EXPECT_EQ(bar.m_distribution, 0);
    EXPECT_FALSE(bar.m_distributionEnabled);
    EXPECT_EQ(bar.m_barColor, 0x00A00000u);
    EXPECT_EQ(bar.m_barLightColor, 0x00FFEBDCu);
    EXPECT_EQ(bar.m_optimizerFacLowColor, 0x0000FF00u);
    EXPECT_EQ(bar.m_optimizerFacHighColor, 0x0000FF00u);
    EXPECT_EQ(sizeof(bar.m_distribution), 4u);
    EXPECT_EQ(bar.GetMin(), -99.0);
    EXPECT_EQ(bar.GetMax(), -99.0);
}

TEST(BarChartRecordItem, SetErrorStoresEveryValueWidened) {
    ProbeBar bar;
    bar.SetError(0.1f, 0.2f, 0.3f, 0.4f, 0.5f, 0.6f, 0.7f, 0.8f, 0.9f);
    EXPECT_EQ(bar.m_target, static_cast<double>(0.1f));
    EXPECT_EQ(bar.m_scaleMin, 0.2f);
    EXPECT_EQ(bar.m_scaleMax, 0.3f);
    EXPECT_EQ(bar.m_lower, static_cast<double>(0.4f));
    EXPECT_EQ(bar.m_upper, static_cast<double>(0.5f));
    EXPECT_EQ(bar.m_errorLow, 0.6f);
    EXPECT_EQ(bar.m_errorHigh, 0.7f);
    EXPECT_EQ(bar.m_optimizerLow, 0.8f);
    EXPECT_EQ(bar.m_optimizerHigh, 0.9f);
    EXPECT_EQ(bar.GetMin(), static_cast<double>(0.2f));
    EXPECT_EQ(bar.GetMax(), static_cast<double>(0.3f));
}

TEST(BarChartRecordItem, RemoveErrorTakesAwayWhatItsNumberNames) {
    // Members in the order target, min, max, lower, upper, errorLow, errorHigh, optimizerLow, optimizerHigh.
    const struct {
        int what;
        std::array<bool, 9> removed;
    } cases[] = {
        {0, {}},
        {1, {true}},
        {2, {false, true}},
        {3, {false, false, true}},
        {4, {false, false, false, true, true}},
        {5, {true, true, true, true, true, true, true, false, false}}, // the optimizer marks stay
        {6, {}},
        {-1, {}},
    };
    for (const auto& [what, removed] : cases) {
        ProbeBar bar;
        bar.SetError(1, 2, 3, 4, 5, 6, 7, 8, 9);
        bar.RemoveError(what);
        const std::array<double, 9> values = {bar.m_target,    bar.m_scaleMin,     bar.m_scaleMax,
                                              bar.m_lower,     bar.m_upper,        bar.m_errorLow,
                                              bar.m_errorHigh, bar.m_optimizerLow, bar.m_optimizerHigh};
        for (std::size_t i = 0; i < values.size(); ++i)
            EXPECT_EQ(values[i], removed[i] ? -99.0 : 1.0 + static_cast<double>(i)) << what << ", value " << i;
    }
}

TEST(BarChartRecordItem, ColoursAndDistributionAreWhatWasSet) {
    ProbeBar bar;
    bar.SetColors(0x111111, 0x222222);
    EXPECT_EQ(bar.m_barColor, 0x111111u);
    EXPECT_EQ(bar.m_barLightColor, 0x222222u);
    bar.SetOptimizerFacLowColor(0x333333);
    bar.SetOptimizerFacHighColor(0x444444);
    EXPECT_EQ(bar.GetOptimizerFacLowColor(), 0x333333u);
    EXPECT_EQ(bar.GetOptimizerFacHighColor(), 0x444444u);
    bar.SetDistribution(KyBarChartRecordItem::DistributionTarget, true);
    EXPECT_EQ(bar.m_distribution, 2);
    EXPECT_TRUE(bar.m_distributionEnabled);
}

TEST(BarChartRecordItem, ItsFirstHyperlinkIsEverywhere) {
    ProbeBar bar;
    EXPECT_EQ(bar.HitTestHyperlink(CPoint(5, 5)), -1);
    bar.AddHyperlink(new CXTPReportHyperlink(0, 0));
    EXPECT_EQ(bar.HitTestHyperlink(CPoint(5, 5)), 0);
    EXPECT_EQ(bar.HitTestHyperlink(CPoint(-5000, 5)), 0);
}

// --- Tool tip --------------------------------------------------------------------------------------------------------

TEST(BarChartRecordItem, TheTipTellsTheValueUnderThePointer) {
    ProbeBar bar;
    bar.SetError(5, 0, 10, 3, 7, M, M, M, M);
    EXPECT_EQ(bar.GetInfoTip(), CString()); // the pointer was not here yet
    bar.m_dragPos = 0.5;
    EXPECT_EQ(bar.GetInfoTip(), CString(L"Value: 5."));
    bar.m_dragPos = 0.15 + 0.7 * 0.12345678;
    EXPECT_EQ(bar.GetInfoTip(), CString(L"Value: 1.23457."));
    bar.m_dragPos = 0.0;
    EXPECT_EQ(bar.GetInfoTip(), CString(L"Value: -2.14286."));
    bar.m_dragPos = 1.0;
    EXPECT_EQ(bar.GetInfoTip(), CString(L"Value: 12.1429."));
    bar.m_dragPos = 1.001;
    EXPECT_EQ(bar.GetInfoTip(), CString());
    bar.m_dragPos = -0.001;
    EXPECT_EQ(bar.GetInfoTip(), CString());
}

TEST(BarChartRecordItem, AScreenReaderIsToldTheValuesThatThereAre) {
    KyBarChartRecordItem item;
    EXPECT_EQ(item.GetAccessibleValue(nullptr), L"");
    item.SetTarget(5.5);
    EXPECT_EQ(item.GetAccessibleValue(nullptr), L"Target: 5.5.");
    item.SetError(5.5F, 0, 10, 2, 8, -99, -99, -99, -99);
    EXPECT_EQ(item.GetAccessibleValue(nullptr), L"Lower value: 2. Target: 5.5. Upper value: 8.");
}

TEST(BarChartRecordItem, TheTipWritesSmallValuesWithATwoDigitExponent) {
    ProbeBar bar;
    bar.SetMargin(0.0);
    bar.SetError(0, 0, 2, 0, 0, M, M, M, M);
    bar.m_dragPos = 0.000005;
    EXPECT_EQ(bar.GetInfoTip(), CString(L"Value: 1e-05."));
}

// --- Picture: bar ----------------------------------------------------------------------------------------------------

TEST_F(BarChartTest, WithTheDefaultMarginTheMarksStandAtTheirFractions) {
    // w = 398: red marks at 60.7 and 339.3, the bar from 144.28 to 255.72, the target at 200.
    ProbeBar standard;
    standard.SetError(5, 0, 10, 3, 7, M, M, M, M);
    const PixelImage image = PictureOf(standard, host.grid, 400, 22);
    PixelImage expected(400, 22, White);
    expected.Fill(144, 1, 255, 21, BarColor);
    expected.Fill(59, 1, 61, 21, Red).Fill(338, 1, 340, 21, Red).Fill(199, 1, 201, 21, Gold);
    EXPECT_EQ(PixelImage::Difference(image, expected), "");
    EXPECT_EQ(standard.GetItemRect(), CRect(1, 1, 399, 21));
}

TEST_F(BarChartTest, WithoutValuesOnlyTheBackgroundIsDrawn) {
    bar.SetBackgroundColor(RGB(1, 2, 3));
    ExpectPicture(PixelImage(402, 22, RGB(1, 2, 3)));
}

TEST_F(BarChartTest, APlainBarHasTheMiddleOfItsTwoColours) {
    SetBar(25, M, 75);
    bar.SetColors(RGB(0, 255, 0), White); // the middle of green and white is (127, 255, 127)
    PixelImage expected = OnScale();
    ExpectPicture(expected.Fill(101, 1, 301, 21, RGB(127, 255, 127)));
}

TEST_F(BarChartTest, ADistributionIsDrawnOnlyWhenItIsEnabled) {
    SetBar(25, M, 75);
    PixelImage expected = OnScale();
    expected.Fill(101, 1, 301, 21, BarColor);
    bar.SetDistribution(KyBarChartRecordItem::DistributionTarget, false);
    ExpectPicture(expected);
    bar.SetDistribution(KyBarChartRecordItem::DistributionNone, true);
    ExpectPicture(expected);
}

TEST_F(BarChartTest, ACentredGradientIsDarkestAtTheMiddleOfTheBar) {
    SetBar(20, 30, 80); // 81…321, the middle at 201; the target at 121 plays no part in the colours
    bar.SetDistribution(KyBarChartRecordItem::DistributionCentered, true);
    PixelImage expected = OnScale();
    FillGradient(expected, 81, 201, 321);
    ExpectPicture(expected.Fill(120, 1, 122, 21, Gold));
}

TEST_F(BarChartTest, ATargetGradientIsDarkestAtTheTarget) {
    SetBar(20, 30, 80); // 81…321, the target at 121
    bar.SetDistribution(KyBarChartRecordItem::DistributionTarget, true);
    PixelImage expected = OnScale();
    FillGradient(expected, 81, 121, 321);
    ExpectPicture(expected.Fill(120, 1, 122, 21, Gold));
}

TEST_F(BarChartTest, GreaterDistributionsAreTargetOnes) {
    SetBar(20, 30, 80);
    bar.SetDistribution(static_cast<KyBarChartRecordItem::EDistribution>(7), true);
    PixelImage expected = OnScale();
    FillGradient(expected, 81, 121, 321);
    ExpectPicture(expected.Fill(120, 1, 122, 21, Gold));
}

TEST_F(BarChartTest, ATargetGradientWithoutATargetIsCentred) {
    SetBar(20, M, 80);
    bar.SetDistribution(KyBarChartRecordItem::DistributionTarget, true);
    PixelImage expected = OnScale();
    FillGradient(expected, 81, 201, 321);
    ExpectPicture(expected);
}

TEST_F(BarChartTest, AGradientIsCutAtTheCellsEdges) {
    SetBar(-50, M, 150); // -199…601, the middle at 201: steps of 20
    bar.SetDistribution(KyBarChartRecordItem::DistributionCentered, true);
    PixelImage wide(1000, 22, White); // 250 pixels to the left
    for (int i = 0; i < 20; ++i)
        wide.Fill(250 - 199 + i * 20, 1, 250 - 199 + (i + 1) * 20 + 1, 21, Ramp[i]);
    for (int i = 0; i < 20; ++i)
        wide.Fill(250 + 201 + i * 20, 1, 250 + 201 + (i + 1) * 20 + 1, 21, Ramp[19 - i]);
    PixelImage expected(402, 22, White);
    for (int x = 1; x < 401; ++x)
        expected.Fill(x, 1, x + 1, 21, wide.At(250 + x, 10));
    // Truncation towards zero makes the pieces that begin left of pixel 0 one wider to the right, which the next
    // covers.
    DrawScaleEnds(expected);
    ExpectPicture(expected);
}

TEST_F(BarChartTest, ABarBeyondTheScaleEndsAtTheCellsEdges) {
    SetBar(-50, M, 50);
    PixelImage left(402, 22, White);
    left.Fill(1, 1, 201, 21, BarColor);
    DrawScaleEnds(left);
    ExpectPicture(left);

    SetBar(50, M, 150);
    PixelImage right(402, 22, White);
    right.Fill(201, 1, 401, 21, BarColor);
    DrawScaleEnds(right);
    ExpectPicture(right);
}

TEST_F(BarChartTest, ABarTurnedAroundIsNotDrawn) {
    SetBar(75, M, 25);
    ExpectPicture(OnScale());
}

TEST_F(BarChartTest, ABarWithoutOneEndIsNotDrawn) {
    SetBar(M, 50, 75);
    PixelImage expected = OnScale();
    expected.Fill(200, 1, 202, 21, Gold);
    ExpectPicture(expected);
    SetBar(25, 50, M);
    ExpectPicture(expected);
}

TEST_F(BarChartTest, ABarWhollyBelowTheScaleShowsArrowsAtTheLeft) {
    SetBar(-60, M, -10);
    const PixelImage image = Draw();
    EXPECT_GT(CountInk(image, 2, 60), 0);
    EXPECT_EQ(image.Count(White, 60, 400), (400 - 60) * 22);
}

TEST_F(BarChartTest, ABarWhollyAboveTheScaleShowsArrowsAtTheRight) {
    SetBar(110, M, 160);
    const PixelImage image = Draw();
    EXPECT_GT(CountInk(image, 342, 400), 0);
    EXPECT_EQ(image.Count(White, 2, 342), (342 - 2) * 22);
}

TEST_F(BarChartTest, ArrowsLeaveTheTextColourBlack) {
    SetBar(-60, M, -10);
    Surface surface(402, 22, White);
    surface.Dc().SetTextColor(RGB(9, 9, 9));
    XTP_REPORTRECORDITEM_DRAWARGS args;
    args.pDC = &surface.Dc();
    args.pControl = &host.grid;
    args.rcItem.SetRect(0, 0, 402, 22);
    bar.OnDrawCaption(&args, nullptr);
    EXPECT_EQ(surface.Dc().GetTextColor(), Black);
}

// --- Picture: whiskers and marks -------------------------------------------------------------------------------------

TEST_F(BarChartTest, WhiskersReachFromTheirEndsToTheTarget) {
    bar.SetError(50, 0, 100, M, M, 20, 90, M, M);
    PixelImage expected = OnScale();
    // The rectangle's middle is 11: the line is row 10.
    expected.Fill(80, 1, 82, 21, Black).Fill(81, 10, 201, 11, Black);
    expected.Fill(360, 1, 362, 21, Black).Fill(201, 10, 361, 11, Black);
    ExpectPicture(expected.Fill(200, 1, 202, 21, Gold));
}

TEST_F(BarChartTest, AWhiskerOnTheWrongSideOfTheTargetHasNoLine) {
    bar.SetError(50, 0, 100, M, M, 70, 30, M, M);
    PixelImage expected = OnScale();
    expected.Fill(280, 1, 282, 21, Black).Fill(120, 1, 122, 21, Black);
    ExpectPicture(expected.Fill(200, 1, 202, 21, Gold));
}

TEST_F(BarChartTest, AWhiskerWithoutATargetHasNoLine) {
    bar.SetError(M, 0, 100, M, M, 20, 90, M, M);
    PixelImage expected = OnScale();
    ExpectPicture(expected.Fill(80, 1, 82, 21, Black).Fill(360, 1, 362, 21, Black));
}

TEST_F(BarChartTest, OptimizerMarksAreDashedInTheirColours) {
    bar.SetError(M, 0, 100, M, M, M, M, 20, 90);
    bar.SetOptimizerFacHighColor(Blue);
    PixelImage expected = OnScale();
    for (const auto& [top, bottom] : {std::pair{1, 4}, std::pair{7, 10}, std::pair{13, 16}, std::pair{19, 21}})
        expected.Fill(80, top, 82, bottom, Green).Fill(360, top, 362, bottom, Blue);
    ExpectPicture(expected);
}

TEST_F(BarChartTest, EachScaleEndIsMarkedOnItsOwn) {
    bar.SetMargin(0.25); // a scale of 0…100 takes the middle 200 pixels: 101…301
    bar.SetError(50, 0, 100, M, M, M, M, M, M);
    PixelImage expected(402, 22, White);
    expected.Fill(100, 1, 102, 21, Red).Fill(300, 1, 302, 21, Red);
    ExpectPicture(expected.Fill(200, 1, 202, 21, Gold));
}

TEST_F(BarChartTest, TheTargetHasItsOwnColourAndCoversTheRest) {
    bar.SetTargetColor(RGB(1, 2, 200));
    bar.SetError(50, 0, 100, 40, 60, 50, 50, 50, 50);
    PixelImage expected = OnScale();
    ExpectPicture(expected.Fill(161, 1, 241, 21, BarColor).Fill(200, 1, 202, 21, RGB(1, 2, 200)));
}

// --- Picture: during a drag ------------------------------------------------------------------------------------------

TEST_F(BarChartTest, ADraggedLowerEndIsMirroredAndOnlyTheLowerValueChanges) {
    SetBar(25, 50, 75);
    Drag(25, 40);
    PixelImage expected = OnScale();
    // 0.4 in single precision is a little more than 0.4: 161.000002… and, mirrored, 240.99999…
    ExpectPicture(expected.Fill(161, 1, 240, 21, BarColor).Fill(200, 1, 202, 21, Gold));

    bar.EndDrag(CPoint(1 + 4 * 40, 10), CRect(0, 0, 402, 22), true);
    EXPECT_NEAR(bar.m_lower, 40.0, 1e-5);
    EXPECT_EQ(bar.m_upper, 75.0);
    EXPECT_EQ(bar.m_target, 50.0);
    PixelImage released = OnScale();
    ExpectPicture(released.Fill(161, 1, 301, 21, BarColor).Fill(200, 1, 202, 21, Gold));
}

TEST_F(BarChartTest, ADraggedUpperEndIsMirrored) {
    SetBar(25, 50, 75);
    Drag(75, 90); // 0.9 is 0.89999998… in single precision: 360.9999 and 41.00001
    PixelImage expected = OnScale();
    ExpectPicture(expected.Fill(41, 1, 360, 21, BarColor).Fill(200, 1, 202, 21, Gold));
}

TEST_F(BarChartTest, ATargetDistributionIsNotKeptSymmetric) {
    SetBar(25, 50, 75);
    bar.SetDistribution(KyBarChartRecordItem::DistributionTarget, false);
    Drag(25, 40);
    PixelImage expected = OnScale();
    ExpectPicture(expected.Fill(161, 1, 301, 21, BarColor).Fill(200, 1, 202, 21, Gold));
}

TEST_F(BarChartTest, ADraggedTargetTakesTheBarAlong) {
    SetBar(25, 50, 75);
    Drag(50, 60); // 0.6 is 0.60000002… in single precision
    PixelImage expected = OnScale();
    ExpectPicture(expected.Fill(141, 1, 341, 21, BarColor).Fill(240, 1, 242, 21, Gold));
}

TEST_F(BarChartTest, ADraggedTargetOfATargetDistributionLeavesTheBar) {
    SetBar(25, 50, 75);
    bar.SetDistribution(KyBarChartRecordItem::DistributionTarget, false);
    Drag(50, 60);
    PixelImage expected = OnScale();
    ExpectPicture(expected.Fill(101, 1, 301, 21, BarColor).Fill(240, 1, 242, 21, Gold));
}

// --- Picture: surroundings -------------------------------------------------------------------------------------------

namespace {

class BarChartInRowTest : public ::testing::Test {
protected:
    BarChartInRowTest() {
        bar = host.AddRow(new ProbeBar);
        host.Show();
        args.pDC = &surface.Dc();
        args.pControl = &host.grid;
        args.pRow = host.grid.GetRows()->GetAt(0);
        args.pItem = bar;
        args.rcItem.SetRect(0, 0, 40, 20);
    }

    COLORREF BackgroundDrawn() {
        bar->OnDrawCaption(&args, nullptr);
        return surface.Dc().GetPixel(20, 10);
    }

    PlotGridHost host;
    ProbeBar* bar = nullptr;
    Surface surface{40, 20, Gold};
    XTP_REPORTRECORDITEM_DRAWARGS args;
};

} // namespace

TEST_F(BarChartInRowTest, ASelectedRowHasTheHighlightBehindTheBar) {
    EXPECT_EQ(BackgroundDrawn(), White);
    args.pRow->SetSelected(TRUE);
    host.grid.GetPaintManager()->m_clrHighlight.SetCustomValue(RGB(11, 22, 33));
    EXPECT_EQ(BackgroundDrawn(), RGB(11, 22, 33));
    host.grid.GetPaintManager()->m_clrHighlight.SetDefaultValue();
    host.grid.GetPaintManager()->m_clrHighlight.SetStandardValue(RGB(44, 55, 66));
    EXPECT_EQ(BackgroundDrawn(), RGB(44, 55, 66));
}

TEST_F(BarChartInRowTest, OnPaperThereIsNoHighlight) {
    args.pRow->SetSelected(TRUE);
    host.grid.GetPaintManager()->m_clrHighlight.SetCustomValue(RGB(11, 22, 33));
    surface.Dc().m_bPrinting = TRUE;
    EXPECT_EQ(BackgroundDrawn(), White);
}

TEST_F(BarChartInRowTest, WithoutAControlNothingIsDrawn) {
    args.pControl = nullptr;
    args.rcItem.SetRect(0, 0, 30, 20);
    EXPECT_EQ(BackgroundDrawn(), Gold);
}

TEST(BarChartRobustness, NothingIsEverDrawnOutsideTheCell) {
    constexpr float infinity = std::numeric_limits<float>::infinity();
    constexpr float nan = std::numeric_limits<float>::quiet_NaN();
    constexpr float huge = std::numeric_limits<float>::max();
    const std::array<std::array<float, 9>, 9> values = {{
        // target, min, max, lower, upper, errorLow, errorHigh, optimizerLow, optimizerHigh
        {5, 0, 10, -20, 30, -5, 15, -1, 11},
        {5, 5, 5, 5, 5, 5, 5, 5, 5},
        {5, 5, 5, 4, 6, 3, 7, 2, 8},
        {nan, 0, 1, nan, nan, nan, nan, nan, nan},
        {0.5f, nan, nan, 0, 1, 0, 1, 0, 1},
        {infinity, 0, 1, -infinity, infinity, -infinity, infinity, -infinity, infinity},
        {0, -huge, huge, -huge, huge, -huge, huge, -1, 1},
        {0, 0, 1e-38f, -huge, huge, huge, -huge, huge, -huge},
        {5, 10, 0, 3, 7, 2, 8, 1, 9},
    }};
    PlotGridHost host;
    for (std::size_t i = 0; i < values.size(); ++i) {
        for (const auto distribution :
             {KyBarChartRecordItem::DistributionNone, KyBarChartRecordItem::DistributionCentered,
              KyBarChartRecordItem::DistributionTarget}) {
            for (const CRect& cell : CellsOfEverySize()) {
                const auto& v = values[i];
                ProbeBar bar;
                bar.SetError(v[0], v[1], v[2], v[3], v[4], v[5], v[6], v[7], v[8]);
                bar.SetDistribution(distribution, true);
                EXPECT_TRUE(StaysInside(bar, host.grid, cell)) << "values " << i << ", distribution " << distribution;
            }
        }
    }
}
