// Where a histogram cell draws its bins and in which colours.
#include "plotcells/HistogramGeometry.h"

#include <gtest/gtest.h>

#include <array>
#include <limits>
#include <numeric>
#include <random>
#include <vector>

using namespace histogramgeometry;
using plotspan::Extent;
using plotspan::PixelRow;
using plotspan::Span;

namespace {

constexpr double Infinity = std::numeric_limits<double>::infinity();
constexpr double NaN = std::numeric_limits<double>::quiet_NaN();
constexpr double Huge = std::numeric_limits<double>::max();
constexpr int Lowest = std::numeric_limits<int>::min();
constexpr int Highest = std::numeric_limits<int>::max();
constexpr std::uint32_t Background = 0xABCDEF;

/// A ramp in which every colour is its own index.
std::array<std::uint32_t, GradientColors> IndexRamp() {
    std::array<std::uint32_t, GradientColors> ramp{};
    std::iota(ramp.begin(), ramp.end(), 0u);
    return ramp;
}

PixelRow Painted(Extent cell, double min, double max, const std::vector<double>& counts) {
    PixelRow row(cell.Whole(), Background);
    PaintBins(row, BinPlaces(cell, min, max, counts.size()), counts, LargestCount(counts), IndexRamp(), Background);
    return row;
}

/// The same with every bin painted over the ones before, however many there are.
PixelRow PaintedOneByOne(Extent cell, double min, double max, const std::vector<double>& counts) {
    PixelRow row(cell.Whole(), Background);
    const double largest = LargestCount(counts);
    const double width = static_cast<double>(cell.right) - cell.left;
    const double binWidth = (max - min) / static_cast<double>(counts.size());
    for (std::size_t i = 0; i < counts.size(); ++i) {
        const int begin = Truncate((static_cast<double>(i) * binWidth + min) * width + cell.left);
        const int end = Truncate((static_cast<double>(i + 1) * binWidth + min) * width + cell.left);
        const std::uint32_t color =
            counts[i] == 0.0 ? Background : static_cast<std::uint32_t>(ColorOf(counts[i], largest));
        for (int x = std::max(begin, cell.left); x < std::min(end, cell.right); ++x)
            row.Set(x, color);
    }
    return row;
}

std::vector<double> SomeCounts(std::size_t bins, std::uint32_t seed) {
    std::mt19937 random(seed);
    std::vector<double> counts(bins);
    for (double& count : counts)
        count = random() % 4 == 0 ? 0.0 : static_cast<double>(random() % 1000);
    return counts;
}

TEST(HistogramGeometry, TheLargestCountLeavesOutWhatIsNoNumber) {
    EXPECT_EQ(LargestCount(std::vector<double>{}), 0.0);
    EXPECT_EQ(LargestCount(std::vector<double>{3, 7, 7, 1}), 7.0);
    EXPECT_EQ(LargestCount(std::vector<double>{NaN, -3, NaN, -7}), -3.0);
    EXPECT_EQ(LargestCount(std::vector<double>{NaN}), 0.0);
    EXPECT_EQ(LargestCount(std::vector<double>{1, Infinity}), Infinity);
}

TEST(HistogramGeometry, CountsGoThroughTwoHundredColours) {
    EXPECT_EQ(ColorOf(5, 10), 100);
    EXPECT_EQ(ColorOf(10, 10), 199); // and not 200
    EXPECT_EQ(ColorOf(1, 200), 1);
    EXPECT_EQ(ColorOf(0.999, 200), 0);
    EXPECT_EQ(ColorOf(9.999, 10), 199);
    EXPECT_EQ(ColorOf(9.949, 10), 198);
}

TEST(HistogramGeometry, CountsThatCannotBePlacedHaveTheNearestColour) {
    EXPECT_EQ(ColorOf(-1, 10), 0);
    EXPECT_EQ(ColorOf(NaN, 10), 0);
    EXPECT_EQ(ColorOf(Infinity, Infinity), 0);
    EXPECT_EQ(ColorOf(5, Infinity), 0);
    EXPECT_EQ(ColorOf(Huge, Huge), 199); // 200 times it is infinite
    EXPECT_EQ(ColorOf(5, 0), 199);
}

TEST(HistogramGeometry, AScaleWithoutExtentFillsWhatIsBetweenTheMargins) {
    EXPECT_EQ(WholeScale({10, 110}, 0.15), (Span{25, 95}));
    EXPECT_EQ(WholeScale({10, 110}, 0.159), (Span{25, 94}));
    EXPECT_EQ(WholeScale({10, 110}, 0.0), (Span{10, 110}));
    EXPECT_TRUE(WholeScale({10, 110}, 0.6).IsEmpty());
    EXPECT_TRUE(WholeScale({10, 110}, NaN).IsEmpty());
}

TEST(HistogramGeometry, ASingleBinSpansItsPlace) {
    EXPECT_EQ(SingleBin({10, 110}, 0.2, 0.7), (Span{30, 80}));
    EXPECT_EQ(SingleBin({10, 110}, 0.2, 0.24), (Span{30, 34}));
}

TEST(HistogramGeometry, ASingleBinNarrowerThanFourPixelsIsThreeWideAroundItsMiddle) {
    EXPECT_EQ(SingleBin({10, 110}, 0.5, 0.5), (Span{59, 62}));
    EXPECT_EQ(SingleBin({10, 110}, 0.49, 0.51), (Span{59, 62}));
    EXPECT_EQ(SingleBin({10, 110}, 0.5, 0.539), (Span{60, 63}));
    EXPECT_EQ(SingleBin({10, 110}, 0.6, 0.4), (Span{59, 62})); // turned around it is narrow as well
}

TEST(HistogramGeometry, BinsStandSideBySide) {
    const BinPlaces places({1, 401}, 0.25, 0.75, 8); // 101 to 301, 25 pixels each
    EXPECT_EQ(places.Edge(0), 101);
    EXPECT_EQ(places.Edge(1), 126);
    EXPECT_EQ(places.Edge(8), 301);
    EXPECT_EQ(places.BinAt(100), std::nullopt);
    EXPECT_EQ(places.BinAt(101), 0u);
    EXPECT_EQ(places.BinAt(125), 0u);
    EXPECT_EQ(places.BinAt(126), 1u);
    EXPECT_EQ(places.BinAt(300), 7u);
    EXPECT_EQ(places.BinAt(301), std::nullopt);
}

TEST(HistogramGeometry, MoreBinsThanPixelsShowTheOneThatEachPixelIsIn) {
    // Ten bins on four pixels: edges at 0, 0.4, 0.8, 1.2 …; a pixel is in the last bin that begins at it or before.
    const PixelRow row = Painted({0, 4}, 0.0, 1.0, {0, 1, 2, 3, 4, 5, 6, 7, 8, 10});
    EXPECT_EQ(row.Colors(), (std::vector<std::uint32_t>{40, 80, 140, 199}));
}

/// Every combination of cells, places and numbers of bins gives what painting bin after bin gives.
TEST(HistogramGeometry, EveryPixelHasTheColourOfTheBinThatIsPaintedThere) {
    const std::vector<std::pair<double, double>> places = {
        {0.15, 0.85}, {0.0, 1.0},       {-0.3, 0.4},           {0.7, 1.9},       {-5.0, -0.1},
        {1.2, 3.0},   {-1000, 1000},    {0.5, 0.501},          {0.333, 0.3331},  {0.85, 0.15},
        {0.5, 0.5},   {-1e9, 1e9},      {-1e300, 1e300},       {0.5, 1e300},     {-Huge, Huge},
        {NaN, 0.5},   {0.5, NaN},       {0.5, Infinity},       {-Infinity, 0.5}, {0.2, 1e17},
        {-1e17, 0.8}, {0.2, 0.2000001}, {-Infinity, Infinity}, {1e-320, 2e-320}};
    for (const Extent cell : {Extent{1, 401}, Extent{0, 57}, Extent{-200, 133}, Extent{-90, -20}, Extent{1000, 1003},
                              Extent{5, 5}, Extent{5, 2}}) {
        for (const auto& [min, max] : places) {
            for (const std::size_t bins : {2u, 10u, 200u, 397u, 1000u, 5000u}) {
                const auto counts = SomeCounts(bins, static_cast<std::uint32_t>(bins));
                ASSERT_EQ(Painted(cell, min, max, counts).Colors(), PaintedOneByOne(cell, min, max, counts).Colors())
                    << bins << " bins from " << min << " to " << max << " in " << cell.left << "…" << cell.right;
            }
        }
    }
}

TEST(HistogramGeometry, RandomPlacesGiveWhatPaintingBinAfterBinGives) {
    std::mt19937 random(5);
    std::uniform_real_distribution<double> place(-2.0, 3.0);
    for (int round = 0; round < 2000; ++round) {
        const int left = static_cast<int>(random() % 400) - 200;
        const Extent cell{left, left + 1 + static_cast<int>(random() % 90)};
        const auto counts = SomeCounts(2 + random() % 300, round);
        const double min = place(random);
        const double max = min + std::abs(place(random)) / (round % 3 == 0 ? 1000.0 : 1.0);
        ASSERT_EQ(Painted(cell, min, max, counts).Colors(), PaintedOneByOne(cell, min, max, counts).Colors())
            << "round " << round;
    }
}

TEST(HistogramGeometry, BinsTheWrongWayRoundAreNotSeen) {
    EXPECT_FALSE(BinPlaces({0, 100}, 0.8, 0.2, 10).CanBeSeen());
    EXPECT_FALSE(BinPlaces({0, 100}, 0.5, 0.5, 10).CanBeSeen());
    EXPECT_FALSE(BinPlaces({0, 100}, NaN, 0.5, 10).CanBeSeen());
    EXPECT_TRUE(BinPlaces({0, 100}, 0.2, 0.8, 10).CanBeSeen());
    EXPECT_EQ(BinPlaces({0, 100}, 0.2, 0.8, 0).BinAt(50), std::nullopt);
    EXPECT_EQ(BinPlaces({0, 100}, -Huge, Huge, 2).Edge(0), Lowest);
    EXPECT_EQ(BinPlaces({0, 100}, 0, Infinity, 2).Edge(2), Highest);
}

} // namespace
