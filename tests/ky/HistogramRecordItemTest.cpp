// The histogram cell: values, tool tip, and its picture pixel by pixel.
#include "PlotPictures.h"

#include <common/Translation.h>

#include <plotcells/ColorRamp.h>

#include <clocale>
#include <cmath>
#include <functional>
#include <limits>
#include <memory>

namespace {

constexpr double M = -99.0; // no value
constexpr double Infinity = std::numeric_limits<double>::infinity();
constexpr double NaN = std::numeric_limits<double>::quiet_NaN();
constexpr COLORREF Full = 0x00A00000;  // RGB(0, 0, 160)
constexpr COLORREF Empty = 0x00FFEBDC; // RGB(220, 235, 255)

/// A histogram cell with its members and its drawing opened.
class ProbeHistogram : public KyHistogramRecordItem {
public:
    /// The same without a vector of the caller's.
    void Set(double target, double lower, double upper, std::vector<double> bins, double min, double max) {
        SetError(target, lower, upper, bins, min, max);
    }

    using KyHistogramRecordItem::m_bins;
    using KyHistogramRecordItem::m_draggingCenter;
    using KyHistogramRecordItem::m_draggingLower;
    using KyHistogramRecordItem::m_draggingUpper;
    using KyHistogramRecordItem::m_dragPos;
    using KyHistogramRecordItem::m_emptyColor;
    using KyHistogramRecordItem::m_fullColor;
    using KyHistogramRecordItem::m_histMax;
    using KyHistogramRecordItem::m_histMin;
    using KyHistogramRecordItem::m_lower;
    using KyHistogramRecordItem::m_target;
    using KyHistogramRecordItem::m_upper;
    using KyHistogramRecordItem::OnDrawCaption;
};

/// The 200 colours between the standard ones, from the least full to the fullest.
std::vector<COLORREF> Ramp() {
    std::vector<std::uint32_t> colors(200);
    colorramp::Gradient(Empty, Full, colors);
    return {colors.begin(), colors.end()};
}

/// A cell 402 pixels wide and 22 high draws into x 1…400 and y 1…20. Without a margin, the lower value stands at x = 1
/// and the upper one at 401; on a scale of 0…100 a value v stands at x = 1 + 4 v.
class HistogramTest : public ::testing::Test {
protected:
    HistogramTest() { histogram.SetMargin(0.0); }

    /// Bins on the scale from 0 to 100 whose red marks are at the cell's edges, without a target.
    void SetBins(std::vector<double> bins, double min, double max) {
        histogram.Set(M, 0, 100, std::move(bins), min, max);
    }
    static PixelImage Blank() { return PixelImage(402, 22, White); }
    /// The marks at the edges, each of which loses one of its pixels there. They cover the bins.
    static PixelImage WithEnds(PixelImage image) { return image.Fill(1, 1, 2, 21, Red).Fill(400, 1, 401, 21, Red); }

    PixelImage Draw() { return PictureOf(histogram, host.grid, 402, 22); }
    void ExpectPicture(const PixelImage& expected) { EXPECT_EQ(PixelImage::Difference(Draw(), expected), ""); }
    /// Bins on the empty picture as the rule for them says, painted one after the other.
    static PixelImage OneByOne(const std::vector<double>& bins, double minFraction, double maxFraction) {
        PixelImage image = Blank();
        const auto ramp = Ramp();
        double largest = 0;
        for (const double count : bins)
            largest = std::max(largest, count);
        const double width = (maxFraction - minFraction) / static_cast<double>(bins.size());
        for (std::size_t i = 0; i < bins.size(); ++i) {
            const auto edge = [&](std::size_t bin) {
                const double place = (static_cast<double>(bin) * width + minFraction) * 400.0 + 1.0;
                return static_cast<int>(std::clamp(place, 1.0, 401.0));
            };
            const int color = std::min(static_cast<int>(bins[i] * 200.0 / largest), 199);
            image.Fill(edge(i), 1, edge(i + 1), 21, bins[i] == 0.0 ? White : ramp[static_cast<std::size_t>(color)]);
        }
        return image;
    }

    PlotGridHost host;
    ProbeHistogram histogram;
    const CRect cell{0, 0, 402, 22};
};

} // namespace

// --- Class and values ------------------------------------------------------------------------------------------------

TEST(HistogramRecordItem, IsCreatedByItsRunTimeClass) {
    std::unique_ptr<CObject> object(RUNTIME_CLASS(KyHistogramRecordItem)->CreateObject());
    ASSERT_TRUE(object);
    EXPECT_NE(dynamic_cast<KyHistogramRecordItem*>(object.get()), nullptr);
    EXPECT_TRUE(object->IsKindOf(RUNTIME_CLASS(CXTPReportRecordItemText)));
    EXPECT_STREQ(object->GetRuntimeClass()->m_lpszClassName, "KyHistogramRecordItem");
}

TEST(HistogramRecordItem, StartsWithoutBinsAndWithTheStandardColours) {
    const ProbeHistogram histogram;
    EXPECT_TRUE(histogram.m_bins.empty());
    EXPECT_EQ(histogram.m_histMin, -99.0);
    EXPECT_EQ(histogram.m_histMax, -99.0);
    EXPECT_EQ(histogram.m_fullColor, 0x00A00000u);
    EXPECT_EQ(histogram.m_emptyColor, 0x00FFEBDCu);
    EXPECT_EQ(histogram.GetMin(), -99.0);
    EXPECT_EQ(histogram.GetMax(), -99.0);
}

TEST(HistogramRecordItem, SetErrorStoresEveryValueAndACopyOfTheBins) {
    ProbeHistogram histogram;
    std::vector<double> bins = {1, 2, 3};
    histogram.SetError(5.5, 1.5, 9.5, bins, 0.5, 10.5);
    bins.clear();
    EXPECT_EQ(histogram.m_target, 5.5);
    EXPECT_EQ(histogram.m_lower, 1.5);
    EXPECT_EQ(histogram.m_upper, 9.5);
    EXPECT_EQ(histogram.m_histMin, 0.5);
    EXPECT_EQ(histogram.m_histMax, 10.5);
    EXPECT_EQ(histogram.m_bins, (std::vector<double>{1, 2, 3}));
}

TEST(HistogramRecordItem, TheScaleIsSpannedByTheValuesOrMirroredOrThatOfTheBins) {
    const struct {
        double target, lower, upper, min, max;
    } cases[] = {
        {M, 2, 8, 2, 8},  {5, 2, 8, 2, 8},   {5, M, 8, 2, 8},   {5, 2, M, 2, 8},  {M, M, 8, -1, 8},
        {M, 2, M, 2, 11}, {5, M, M, -1, 11}, {M, M, M, -1, 11}, {9, M, 8, 10, 8}, {-99.0001, 2, M, 2, -200.0002},
    };
    for (const auto& [target, lower, upper, min, max] : cases) {
        ProbeHistogram histogram;
        histogram.Set(target, lower, upper, {1}, -1, 11);
        EXPECT_DOUBLE_EQ(histogram.GetMin(), min) << target << ", " << lower << ", " << upper;
        EXPECT_DOUBLE_EQ(histogram.GetMax(), max) << target << ", " << lower << ", " << upper;
    }
}

TEST(HistogramRecordItem, ItsFirstHyperlinkIsEverywhere) {
    ProbeHistogram histogram;
    EXPECT_EQ(histogram.HitTestHyperlink(CPoint(5, 5)), -1);
    histogram.AddHyperlink(new CXTPReportHyperlink(0, 0));
    EXPECT_EQ(histogram.HitTestHyperlink(CPoint(-5000, 5)), 0);
}

// --- Tool tip --------------------------------------------------------------------------------------------------------

TEST(HistogramRecordItem, TheTipTellsValueAndCount) {
    ProbeHistogram histogram;
    histogram.Set(M, 0, 10, {4, 5.5, 1234567}, 0, 10);
    EXPECT_EQ(histogram.GetInfoTip(), CString()); // the pointer was not here yet
    histogram.m_dragPos = 0.5;
    EXPECT_EQ(histogram.GetInfoTip(), CString(L"Value: 5, count: 5.5."));
    histogram.m_dragPos = 0.15 + 0.7 * 0.12345678;
    EXPECT_EQ(histogram.GetInfoTip(), CString(L"Value: 1.23457, count: 4."));
    histogram.m_dragPos = 1.0;
    EXPECT_EQ(histogram.GetInfoTip(), CString(L"Value: 12.1429, count: 1.23457e+06."));
    histogram.m_dragPos = 0.0;
    EXPECT_EQ(histogram.GetInfoTip(), CString(L"Value: -2.14286, count: 4."));
    for (const double outside : {1.0001, -0.0001, -99.0, NaN, Infinity}) {
        histogram.m_dragPos = outside;
        EXPECT_EQ(histogram.GetInfoTip(), CString()) << outside;
    }
}

TEST(HistogramRecordItem, TheBinOfTheTipIsThatAtThePointersFractionOfTheCell) {
    ProbeHistogram histogram;
    histogram.SetMargin(0.0);
    histogram.Set(M, 0, 100, {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10}, 40, 50); // drawn from 0.4 to 0.5 alone
    for (const auto& [fraction, text] :
         {std::pair{0.099, L"Value: 9.9, count: 0."}, std::pair{0.1001, L"Value: 10.01, count: 1."},
          std::pair{0.45, L"Value: 45, count: 4."}, std::pair{0.999, L"Value: 99.9, count: 9."},
          std::pair{1.0, L"Value: 100, count: 10."}}) {
        histogram.m_dragPos = fraction;
        EXPECT_EQ(histogram.GetInfoTip(), CString(text));
    }
}

TEST(HistogramRecordItem, WithoutBinsTheTipEndsWithoutAFullStop) {
    ProbeHistogram histogram;
    histogram.Set(M, 0, 10, {}, 0, 10);
    histogram.m_dragPos = 0.5;
    EXPECT_EQ(histogram.GetInfoTip(), CString(L"Value: 5"));
}

TEST(HistogramRecordItem, TheTipHasADecimalPointWhereverTheProgramRuns) {
    ProbeHistogram histogram;
    histogram.Set(M, 0, 10, {0.5}, 0, 10);
    histogram.m_dragPos = 0.5 + 0.7 * 0.05;
    const std::string former = std::setlocale(LC_ALL, nullptr);
    for (const char* name : {"German", "de-DE", "de_DE.UTF-8"}) {
        if (std::setlocale(LC_ALL, name) != nullptr)
            break;
    }
    const bool comma = *std::localeconv()->decimal_point == ',';
    EXPECT_EQ(histogram.GetInfoTip(), CString(L"Value: 5.5, count: 0.5.")) << (comma ? "decimal comma" : "no locale");
    std::setlocale(LC_ALL, former.c_str());
}

// --- Picture: without bins, without a scale --------------------------------------------------------------------------

TEST_F(HistogramTest, WithoutBinsThereIsOnlyTheBackground) {
    histogram.SetBackgroundColor(RGB(1, 2, 3));
    SetBins({}, 0, 100); // not even the marks
    ExpectPicture(PixelImage(402, 22, RGB(1, 2, 3)));
    EXPECT_EQ(histogram.GetItemRect(), CRect(1, 1, 401, 21));
}

TEST_F(HistogramTest, AScaleWithoutExtentIsFullBetweenTheMargins) {
    histogram.Set(5, 5, 5, {1, 2}, 0, 10);
    PixelImage whole = Blank();
    ExpectPicture(whole.Fill(1, 1, 401, 21, Full)); // no marks
    histogram.SetMargin(0.15);
    PixelImage inside = Blank();
    ExpectPicture(inside.Fill(61, 1, 341, 21, Full));
    histogram.Set(M, M, M, {1, 2}, 7, 7); // the scale is that of the bins
    ExpectPicture(inside);
    histogram.Set(M, M, M, {0}, M, M);
    ExpectPicture(inside);
    histogram.SetMargin(-3.0);
    ExpectPicture(whole); // cut at the edges
}

// --- Picture: bins ---------------------------------------------------------------------------------------------------

TEST_F(HistogramTest, BinsFillTheSpanFromTheLowerToTheUpperValue) {
    ProbeHistogram standard;
    standard.Set(M, 2, 8, {1, 1}, 2, 8); // the default margin: 0.15 · 400 = 60 pixels
    PixelImage expected = Blank();
    expected.Fill(61, 1, 341, 21, Full).Fill(60, 1, 62, 21, Red).Fill(340, 1, 342, 21, Red);
    EXPECT_EQ(PixelImage::Difference(PictureOf(standard, host.grid, 402, 22), expected), "");
}

TEST_F(HistogramTest, CountsAreBackgroundHalfWayAndFull) {
    SetBins({0, 5, 10}, 10, 70); // 41 to 281, 80 pixels each
    PixelImage expected = Blank();
    ExpectPicture(WithEnds(expected.Fill(121, 1, 201, 21, Ramp()[100]).Fill(201, 1, 281, 21, Full)));
    EXPECT_EQ(Ramp()[0], Empty);
    EXPECT_EQ(Ramp()[199], Full);
}

TEST_F(HistogramTest, BinsOfAnyNumberArePaintedByTheirRule) {
    for (const std::size_t count : {2u, 3u, 10u, 200u, 399u, 400u, 401u, 5000u}) {
        std::vector<double> bins(count);
        for (std::size_t i = 0; i < count; ++i)
            bins[i] = static_cast<double>(i * 7919 % 101); // some of them 0
        for (const auto& [min, max] : {std::pair{0.0, 100.0}, std::pair{12.0, 77.0}, std::pair{-40.0, 30.0},
                                       std::pair{60.0, 180.0}, std::pair{-300.0, 500.0}, std::pair{49.0, 51.0}}) {
            SetBins(bins, min, max);
            EXPECT_EQ(PixelImage::Difference(Draw(), WithEnds(OneByOne(bins, min / 100.0, max / 100.0))), "")
                << count << " bins from " << min << " to " << max;
        }
    }
}

TEST_F(HistogramTest, BinsWithoutCountsHaveTheBackground) {
    SetBins(std::vector<double>(200, 0.0), 0, 100);
    ExpectPicture(WithEnds(Blank()));
    SetBins(std::vector<double>(5000, 0.0), 0, 100);
    ExpectPicture(WithEnds(Blank()));
    histogram.SetBackgroundColor(Green);
    PixelImage green(402, 22, Green);
    ExpectPicture(WithEnds(green));
}

TEST_F(HistogramTest, ASingleBinHasTheFullColourWhateverItsCount) {
    PixelImage expected = Blank();
    expected.Fill(81, 1, 281, 21, Full);
    for (const double count : {3.0, 0.0, -1.0, NaN}) {
        SetBins({count}, 20, 70);
        ExpectPicture(WithEnds(expected));
    }
}

TEST_F(HistogramTest, ANarrowSingleBinIsThreePixelsWideAroundItsMiddle) {
    for (const auto& [min, max] : {std::pair{50.0, 50.0}, std::pair{49.75, 50.25}, std::pair{49.51, 50.49}}) {
        SetBins({1}, min, max);
        PixelImage expected = Blank();
        ExpectPicture(WithEnds(expected.Fill(200, 1, 203, 21, Full)));
    }
    SetBins({1}, 49.5, 50.5); // 4 pixels
    PixelImage expected = Blank();
    ExpectPicture(WithEnds(expected.Fill(199, 1, 203, 21, Full)));
}

TEST_F(HistogramTest, BinsWhollyBesideTheScaleShowArrows) {
    for (const std::vector<double>& bins : {std::vector<double>{1}, std::vector<double>{1, 2, 3}}) {
        SetBins(bins, -70, -20);
        const PixelImage below = Draw();
        EXPECT_GT(CountInk(below, 2, 60), 0);
        EXPECT_EQ(below.Count(White, 60, 400), (400 - 60) * 22);
        SetBins(bins, 120, 170);
        const PixelImage above = Draw();
        EXPECT_GT(CountInk(above, 342, 400), 0);
        EXPECT_EQ(above.Count(White, 2, 342), (342 - 2) * 22);
    }
}

TEST_F(HistogramTest, BinsThatReachTheEdgeShowNoArrows) {
    SetBins({1, 2}, -50, 0); // up to the left edge exactly
    ExpectPicture(WithEnds(Blank()));
    SetBins({1, 2}, 100, 150);
    ExpectPicture(WithEnds(Blank()));
}

TEST_F(HistogramTest, ArrowsLeaveTheTextColourBlack) {
    SetBins({1, 2}, 120, 170);
    Surface surface(402, 22, White);
    surface.Dc().SetTextColor(RGB(9, 9, 9));
    XTP_REPORTRECORDITEM_DRAWARGS args;
    args.pDC = &surface.Dc();
    args.pControl = &host.grid;
    args.rcItem = cell;
    histogram.OnDrawCaption(&args, nullptr);
    EXPECT_EQ(surface.Dc().GetTextColor(), Black);
}

TEST_F(HistogramTest, WithoutAPlaceThereAreNoBinsButMarks) {
    histogram.Set(50, 0, 100, {1, 2}, M, 100);
    PixelImage expected = Blank();
    ExpectPicture(WithEnds(expected.Fill(200, 1, 202, 21, Gold)));
    histogram.Set(50, 0, 100, {1, 2}, 0, M);
    ExpectPicture(WithEnds(expected));
}

TEST_F(HistogramTest, BinsTurnedAroundAreNotSeen) {
    SetBins({1, 2, 3}, 80, 20);
    ExpectPicture(WithEnds(Blank()));
    SetBins(std::vector<double>(5000, 1.0), 80, 20);
    ExpectPicture(WithEnds(Blank()));
}

TEST_F(HistogramTest, ColoursChangeTheBinsAndNotTheMarks) {
    histogram.SetColors(RGB(0, 100, 0), White);
    histogram.SetTargetColor(Blue);
    histogram.Set(50, 0, 100, {1, 1}, 0, 100);
    PixelImage expected = Blank();
    ExpectPicture(WithEnds(expected.Fill(1, 1, 401, 21, RGB(0, 100, 0)).Fill(200, 1, 202, 21, Gold)));
    histogram.Set(50, 0, 100, {0.5, 200}, 0, 100);
    EXPECT_EQ(Draw().At(50, 10), White); // the least full colour
}

// --- Picture: marks --------------------------------------------------------------------------------------------------

TEST_F(HistogramTest, LaterMarksCoverEarlierOnes) {
    histogram.SetMargin(0.25); // the scale takes the middle 200 pixels: 101…301
    histogram.Set(0.5, 0, 100, {0, 0}, 0, 100);
    PixelImage expected = Blank();
    expected.Fill(100, 1, 102, 21, Red).Fill(101, 1, 103, 21, Gold).Fill(300, 1, 302, 21, Red);
    ExpectPicture(expected);
    histogram.Set(99.5, 0, 100, {0, 0}, 0, 100);
    PixelImage upper = Blank();
    upper.Fill(100, 1, 102, 21, Red).Fill(299, 1, 301, 21, Gold).Fill(300, 1, 302, 21, Red);
    ExpectPicture(upper);
}

TEST_F(HistogramTest, MissingMarksAreLeftOut) {
    histogram.SetMargin(0.25);
    histogram.Set(50, M, 100, {0, 0}, 0, 100); // the scale is mirrored: 0…100
    PixelImage expected = Blank();
    ExpectPicture(expected.Fill(200, 1, 202, 21, Gold).Fill(300, 1, 302, 21, Red));
}

TEST_F(HistogramTest, ADraggedMarkStandsUnderThePointerAndTheScaleStays) {
    const struct {
        bool ProbeHistogram::*flag;
        int lower, target, upper;
    } cases[] = {{&ProbeHistogram::m_draggingLower, 161, 201, 301},
                 {&ProbeHistogram::m_draggingCenter, 101, 161, 301},
                 {&ProbeHistogram::m_draggingUpper, 101, 201, 161}};
    histogram.SetMargin(0.25);
    histogram.Set(50, 0, 100, {1, 1}, 0, 100);
    for (const auto& [flag, lower, target, upper] : cases) {
        histogram.*flag = true;
        histogram.m_dragPos = 0.4; // x = 161
        PixelImage expected = Blank();
        expected.Fill(101, 1, 301, 21, Full).Fill(lower - 1, 1, lower + 1, 21, Red);
        expected.Fill(target - 1, 1, target + 1, 21, Gold).Fill(upper - 1, 1, upper + 1, 21, Red);
        ExpectPicture(expected);
        histogram.*flag = false;
    }
}

// --- Picture: surroundings -------------------------------------------------------------------------------------------

TEST(HistogramInRow, ASelectedRowHasTheHighlightWhereNothingIsCounted) {
    PlotGridHost host;
    auto* const histogram = host.AddRow(new ProbeHistogram);
    histogram->SetMargin(0.0);
    histogram->Set(M, 0, 100, {0, 5}, 0, 100);
    host.Show();
    Surface surface(42, 20, Gold);
    XTP_REPORTRECORDITEM_DRAWARGS args;
    args.pDC = &surface.Dc();
    args.pControl = &host.grid;
    args.pRow = host.grid.GetRows()->GetAt(0);
    args.rcItem.SetRect(0, 0, 42, 20);
    const auto expectGround = [&](COLORREF color) {
        histogram->OnDrawCaption(&args, nullptr);
        EXPECT_EQ(surface.Dc().GetPixel(10, 10), color);
        EXPECT_EQ(surface.Dc().GetPixel(30, 10), Full);
    };
    expectGround(White);
    args.pRow->SetSelected(TRUE);
    host.grid.GetPaintManager()->m_clrHighlight.SetCustomValue(RGB(11, 22, 33));
    expectGround(RGB(11, 22, 33));
    surface.Dc().m_bPrinting = TRUE; // on paper there is no highlight
    expectGround(White);

    args.pControl = nullptr;
    surface.Dc().FillSolidRect(0, 0, 42, 20, Gold);
    histogram->OnDrawCaption(&args, nullptr);
    EXPECT_EQ(surface.Dc().GetPixel(30, 10), Gold);
}

TEST_F(HistogramTest, OnlyTheClippedPartIsDrawn) {
    SetBins({1, 2, 3, 4, 5, 6, 7, 8}, -20, 130);
    const PixelImage whole = Draw();
    Surface surface(402, 22, White);
    surface.Dc().IntersectClipRect(120, 5, 250, 12);
    XTP_REPORTRECORDITEM_DRAWARGS args;
    args.pDC = &surface.Dc();
    args.pControl = &host.grid;
    args.rcItem = cell;
    histogram.OnDrawCaption(&args, nullptr);
    PixelImage expected = Blank();
    for (int y = 5; y < 12; ++y)
        for (int x = 120; x < 250; ++x)
            expected.Set(x, y, whole.At(x, y));
    surface.Dc().SelectClipRgn(nullptr);
    EXPECT_EQ(PixelImage::Difference(surface.Image(), expected), "");
}

TEST(HistogramRobustness, NothingIsEverDrawnOutsideTheCell) {
    constexpr double huge = std::numeric_limits<double>::max();
    const std::array<std::array<double, 5>, 11> values = {{
        // target, lower, upper, min, max
        {5, 0, 10, -20, 30},
        {5, 5, 5, 5, 5},
        {5, 4, 6, 5, 5},
        {NaN, NaN, NaN, NaN, NaN},
        {0.5, 0, 1, NaN, 1},
        {Infinity, -Infinity, Infinity, -Infinity, Infinity},
        {0, 0, 1, -Infinity, Infinity},
        {0, -huge, huge, -huge, huge},
        {0, 0, 1e-300, -huge, huge},
        {5, 10, 0, 3, 7},
        {M, M, M, 0, 1},
    }};
    std::vector<double> many(5000, 1.0);
    many[7] = NaN;
    many[8] = Infinity;
    many[9] = -4;
    const std::array<std::vector<double>, 5> bins = {
        {{1}, {NaN, 1, Infinity, -Infinity, -3}, {0, 0}, {NaN, NaN}, many}};
    PlotGridHost host;
    for (std::size_t i = 0; i < values.size(); ++i) {
        for (const double margin : {0.0, 0.15, -3.0, NaN, Infinity}) {
            for (const CRect& cell : CellsOfEverySize()) {
                for (const auto& counts : bins) {
                    const auto& v = values[i];
                    ProbeHistogram histogram;
                    histogram.SetMargin(margin);
                    histogram.Set(v[0], v[1], v[2], counts, v[3], v[4]);
                    EXPECT_TRUE(StaysInside(histogram, host.grid, cell))
                        << "values " << i << ", margin " << margin << ", bins " << counts.size();
                }
            }
        }
    }
}

// --- In the grid -----------------------------------------------------------------------------------------------------

namespace {

/// A row with a histogram of 0…100 and marks at 20, 50 and 80 of it, driven by the mouse's messages. Without a margin
/// the scale runs from 20 to 80.
class HistogramInGridTest : public ::testing::Test {
protected:
    HistogramInGridTest() {
        histogram->SetMargin(0.1);
        histogram->Set(50, 20, 80, {1, 2, 3, 4}, 0, 100);
        host.Show();
    }

    /// The point of the client area where the value stands on the scale that the cell has now.
    CPoint At(double value) {
        CRect rect = host.CellRect(0);
        rect.InflateRect(-1, -1);
        const double fraction = (value - histogram->GetMin()) / (histogram->GetMax() - histogram->GetMin()) * 0.8 + 0.1;
        return CPoint(rect.left + static_cast<int>(rect.Width() * fraction + 0.5), rect.CenterPoint().y);
    }
    void Drag(CPoint from, CPoint to) {
        Send(WM_LBUTTONDOWN, from, MK_LBUTTON);
        Send(WM_MOUSEMOVE, to, MK_LBUTTON);
        Send(WM_LBUTTONUP, to);
    }
    void Send(UINT message, CPoint point, WPARAM keys = 0) {
        host.grid.SendMessage(message, keys, MAKELPARAM(point.x, point.y));
    }

    PlotGridHost host;
    ProbeHistogram* histogram = host.AddRow(new ProbeHistogram);
    Reports reports{*histogram};
};

} // namespace

TEST_F(HistogramInGridTest, TheMouseDragsTheLowerValueAndTheScaleFollowsAtTheRelease) {
    const CPoint target = At(35);
    Drag(At(20), target);
    ASSERT_EQ(reports.all.size(), 1u);
    EXPECT_NEAR(reports.all[0][0], 35.0f, 0.1f);
    EXPECT_EQ(reports.all[0][1], -99.0f);
    EXPECT_EQ(reports.all[0][2], -99.0f);
    EXPECT_NEAR(histogram->m_lower, 35.0, 0.1);
    EXPECT_EQ(histogram->GetMin(), histogram->m_lower);
    EXPECT_LT(At(histogram->m_lower).x, target.x); // it stands at the margin again
}

TEST_F(HistogramInGridTest, TheMouseDragsTheUpperValue) {
    Drag(At(80), At(65));
    ASSERT_EQ(reports.all.size(), 1u);
    EXPECT_NEAR(reports.all[0][2], 65.0f, 0.1f);
    EXPECT_NEAR(histogram->GetMax(), 65.0, 0.1);
    EXPECT_EQ(histogram->m_lower, 20.0);
    EXPECT_EQ(histogram->m_target, 50.0);
}

TEST_F(HistogramInGridTest, TheMouseDragsTheTarget) {
    Drag(At(50), At(60));
    ASSERT_EQ(reports.all.size(), 1u);
    EXPECT_NEAR(reports.all[0][1], 60.0f, 0.1f);
    EXPECT_NEAR(histogram->m_target, 60.0, 0.1);
    EXPECT_EQ(histogram->GetMin(), 20.0);
}

TEST_F(HistogramInGridTest, AnEndStopsAtTheTarget) {
    Drag(At(20), At(75));
    EXPECT_EQ(histogram->m_lower, 50.0);
    EXPECT_EQ(reports.all[0][0], 50.0f);
}

TEST_F(HistogramInGridTest, TheTipFollowsTheMouse) {
    Send(WM_MOUSEMOVE, At(50));
    CRect rect = host.CellRect(0);
    rect.InflateRect(-1, -1);
    const double fraction = static_cast<double>(At(50).x - rect.left) / rect.Width();
    const double value = (fraction - 0.1) / 0.8 * 60.0 + 20.0;
    CString expected;
    expected.Format(L"Value: %.6g, count: %g.", value, 1.0 + std::floor(3.0 * fraction));
    EXPECT_EQ(histogram->GetInfoTip(), expected);
}
