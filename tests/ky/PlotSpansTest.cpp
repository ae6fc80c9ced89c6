// Pixel extents and the truncation that makes them.
#include "plotcells/PlotSpans.h"

#include <gtest/gtest.h>

#include <limits>

using namespace plotspan;

namespace {

constexpr int Lowest = std::numeric_limits<int>::min();
constexpr int Highest = std::numeric_limits<int>::max();

TEST(Truncation, GoesTowardsZero) {
    EXPECT_EQ(Truncate(2.999), 2);
    EXPECT_EQ(Truncate(-2.999), -2);
    EXPECT_EQ(Truncate(-0.5), 0);
}

TEST(Truncation, HoldsWhatIntCannot) {
    EXPECT_EQ(Truncate(1e300), Highest);
    EXPECT_EQ(Truncate(-1e300), Lowest);
    EXPECT_EQ(Truncate(2147483647.5), Highest);
    EXPECT_EQ(Truncate(-2147483648.5), Lowest);
    EXPECT_EQ(Truncate(2147483646.5), Highest - 1);
    EXPECT_EQ(Truncate(std::numeric_limits<double>::infinity()), Highest);
    EXPECT_EQ(Truncate(-std::numeric_limits<double>::infinity()), Lowest);
    EXPECT_EQ(Truncate(std::numeric_limits<double>::quiet_NaN()), Lowest);
}

TEST(PlotSpans, ClippingKeepsWhatIsInside) {
    EXPECT_EQ(Clip({-5, 5}, 0, 10), (Span{0, 5}));
    EXPECT_EQ(Clip({5, 15}, 0, 10), (Span{5, 10}));
    EXPECT_EQ(Clip({2, 3}, 0, 10), (Span{2, 3}));
    EXPECT_TRUE(Clip({10, 12}, 0, 10).IsEmpty());
    EXPECT_TRUE(Clip({-2, 0}, 0, 10).IsEmpty());
}

TEST(PlotSpans, AMarkIsTwoPixelsWideAroundItsPlace) {
    EXPECT_EQ(MarkAt({0, 100}, 0.5), (Span{49, 51}));
    EXPECT_EQ(MarkAt({1, 399}, 0.15), (Span{59, 61})); // 1 + 398 * 0.15 = 60.7
    // Truncation goes towards zero: a mark at the left edge of the surface is one pixel narrower.
    EXPECT_EQ(MarkAt({0, 100}, 0.005), (Span{0, 1})); // -0.5 and 1.5
}

TEST(PlotSpans, AMarkWithoutAPlaceIsEmpty) {
    EXPECT_TRUE(MarkAt({0, 100}, std::numeric_limits<double>::quiet_NaN()).IsEmpty());
    EXPECT_TRUE(MarkAt({0, 100}, std::numeric_limits<double>::infinity()).IsEmpty());
    EXPECT_TRUE(MarkAt({0, 100}, -1e300).IsEmpty());
}

TEST(PlotSpans, DashesAreThreePixelsEverySixAndEndAtTheBottom) {
    EXPECT_EQ(Dashes(1, 21), (std::vector<Span>{{1, 4}, {7, 10}, {13, 16}, {19, 21}}));
    EXPECT_EQ(Dashes(0, 6), (std::vector<Span>{{0, 3}}));
    EXPECT_EQ(Dashes(0, 7), (std::vector<Span>{{0, 3}, {6, 7}}));
    EXPECT_TRUE(Dashes(5, 5).empty());
    EXPECT_TRUE(Dashes(5, 3).empty());
}

} // namespace
