// Descriptive statistics, against numbers worked out elsewhere.
#include "statistics/Summary.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>

namespace {

using statistics::Quantiles;
using statistics::ShareInside;
using statistics::Summarize;
using statistics::Summary;

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

TEST(Summary, OfEightNumbers) {
    const Summary summary = Summarize(std::vector<double>{2, 4, 4, 4, 5, 5, 7, 9});
    EXPECT_EQ(summary.count, 8u);
    EXPECT_EQ(summary.minimum, 2);
    EXPECT_EQ(summary.maximum, 9);
    EXPECT_EQ(summary.mean, 5);
    // python3 -c "import statistics; print(statistics.stdev([2,4,4,4,5,5,7,9]))"
    EXPECT_DOUBLE_EQ(summary.standardDeviation.value(), 2.138089935299395);
    EXPECT_DOUBLE_EQ(summary.quantile5, 2.7);  // h = 0.35: 0.35 of the way from 2 to 4
    EXPECT_DOUBLE_EQ(summary.quantile25, 4);   // h = 1.75: between 4 and 4
    EXPECT_DOUBLE_EQ(summary.median, 4.5);     // h = 3.5: half the way from 4 to 5
    EXPECT_DOUBLE_EQ(summary.quantile75, 5.5); // h = 5.25: 0.25 of the way from 5 to 7
    EXPECT_DOUBLE_EQ(summary.quantile95, 8.3); // h = 6.65: 0.65 of the way from 7 to 9
}

TEST(Summary, OrderAndMissingNumbersMakeNoDifference) {
    const Summary summary = Summarize(std::vector<double>{kNaN, 9, 4, 2, kNaN, 4, 7, 5, 4, 5, kNaN});
    EXPECT_EQ(summary.count, 8u);
    EXPECT_EQ(summary.mean, 5);
    EXPECT_DOUBLE_EQ(summary.median, 4.5);
    EXPECT_DOUBLE_EQ(summary.standardDeviation.value(), 2.138089935299395);
}

TEST(Summary, OfOneNumberHasNoStandardDeviation) {
    const Summary summary = Summarize(std::vector<double>{-3.5});
    EXPECT_EQ(summary.count, 1u);
    EXPECT_FALSE(summary.standardDeviation.has_value());
    for (const double value : {summary.minimum, summary.maximum, summary.mean, summary.quantile5, summary.quantile25,
                               summary.median, summary.quantile75, summary.quantile95})
        EXPECT_EQ(value, -3.5);
}

TEST(Summary, OfNothingCountsNothing) {
    EXPECT_EQ(Summarize({}).count, 0u);
    EXPECT_EQ(Summarize(std::vector<double>{kNaN, kNaN}).count, 0u);
    EXPECT_FALSE(Summarize({}).standardDeviation.has_value());
}

TEST(Summary, EqualNumbersHaveTheirMeanAndNoDeviation) {
    const Summary summary = Summarize(std::vector<double>(7, 0.1));
    EXPECT_EQ(summary.mean, 0.1);
    EXPECT_EQ(summary.standardDeviation.value(), 0);
    EXPECT_EQ(summary.quantile5, 0.1);
    EXPECT_EQ(summary.quantile95, 0.1);
}

TEST(Summary, ALargeOffsetCostsNoDigits) {
    std::vector<double> numbers;
    for (int i = 0; i < 1000; ++i)
        numbers.insert(numbers.end(), {1e9 + 4, 1e9 + 7, 1e9 + 13, 1e9 + 16});
    const Summary summary = Summarize(numbers);
    EXPECT_EQ(summary.mean, 1e9 + 10);
    // The squares of -6, -3, 3, 6 are 22.5 on the average: sqrt(22.5 * 4000 / 3999).
    EXPECT_DOUBLE_EQ(summary.standardDeviation.value(), std::sqrt(22.5 * 4000 / 3999));
}

TEST(Summary, AnOffsetOfManyTimesTheSpreadCostsNoDigits) {
    const Summary summary = Summarize(std::vector<double>{9007199254740990, 9007199254740991, 9007199254740992});
    EXPECT_EQ(summary.mean, 9007199254740991);
    EXPECT_DOUBLE_EQ(summary.standardDeviation.value(), 1);
}

TEST(Summary, NeitherHugeNorTinyNumbersLeaveTheRange) {
    const Summary huge = Summarize(std::vector<double>{-1.5e308, 1.5e308});
    EXPECT_EQ(huge.mean, 0);
    EXPECT_EQ(huge.median, 0);
    EXPECT_DOUBLE_EQ(huge.quantile95, 1.35e308);
    const Summary same = Summarize(std::vector<double>{1e308, 1e308, 1.6e308, 1.6e308});
    EXPECT_DOUBLE_EQ(same.mean, 1.3e308);
    EXPECT_DOUBLE_EQ(same.standardDeviation.value() / 1e308, 0.3 * std::sqrt(4.0 / 3));
    const Summary tiny = Summarize(std::vector<double>{1e-300, 3e-300});
    EXPECT_DOUBLE_EQ(tiny.mean, 2e-300);
    EXPECT_DOUBLE_EQ(tiny.standardDeviation.value() / 1e-300, std::sqrt(2.0));
    EXPECT_EQ(Summarize(std::vector<double>{5e-324, 5e-324}).mean, 5e-324);
}

TEST(Summary, SmallNumbersBesideALargeOneAreNotLost) {
    std::vector<double> numbers(10000, 1.0);
    numbers.push_back(1e16);
    numbers.push_back(-1e16);
    EXPECT_DOUBLE_EQ(Summarize(numbers).mean, 10000.0 / 10002.0);
}

TEST(Quantiles, InterpolateBetweenOrderStatistics) {
    std::vector<double> numbers{40, 10, 30, 20};
    const std::vector<double> quantiles = Quantiles(numbers, {0, 0.05, 1.0 / 3, 0.5, 0.95, 1});
    ASSERT_EQ(quantiles.size(), 6u);
    EXPECT_EQ(quantiles[0], 10);
    EXPECT_DOUBLE_EQ(quantiles[1], 11.5);
    EXPECT_DOUBLE_EQ(quantiles[2], 20);
    EXPECT_EQ(quantiles[3], 25);
    EXPECT_DOUBLE_EQ(quantiles[4], 38.5);
    EXPECT_EQ(quantiles[5], 40);
}

TEST(Quantiles, OfTwentyOneNumbersFallOnThem) {
    std::vector<double> numbers(21);
    std::iota(numbers.begin(), numbers.end(), 0.0);
    std::reverse(numbers.begin(), numbers.end());
    EXPECT_EQ(Quantiles(numbers, {0.05, 0.5, 0.5, 0.95}), (std::vector<double>{1, 10, 10, 19}));
}

TEST(Quantiles, AreThoseOfTheSortedNumbers) {
    std::vector<double> numbers;
    for (int i = 0; i < 1009; ++i)
        numbers.push_back(i * 389 % 1009 % 300); // mixed, most of them more than once
    std::vector<double> sorted = numbers;
    std::sort(sorted.begin(), sorted.end());
    // 1008 divides by 16: each of these falls on a number.
    const std::vector<double> quantiles = Quantiles(numbers, {0.0625, 0.25, 0.3125, 0.5, 0.5625, 0.9375});
    EXPECT_EQ(quantiles,
              (std::vector<double>{sorted[63], sorted[252], sorted[315], sorted[504], sorted[567], sorted[945]}));
}

TEST(ShareInside, TheIntervalIsClosed) {
    const std::vector<double> numbers{1, 2, 3, 4, 5};
    EXPECT_EQ(ShareInside(numbers, 2, 4).value(), 0.6);
    EXPECT_EQ(ShareInside(numbers, 3, 3).value(), 0.2);
    EXPECT_EQ(ShareInside(numbers, 2.5, 2.6).value(), 0);
    EXPECT_EQ(ShareInside(numbers, -INFINITY, INFINITY).value(), 1);
}

TEST(ShareInside, MissingNumbersAreNeitherInsideNorOutside) {
    EXPECT_EQ(ShareInside(std::vector<double>{kNaN, 1, kNaN, 9}, 0, 5).value(), 0.5);
}

TEST(ShareInside, AnIntervalTurnedRoundHoldsNothing) {
    EXPECT_EQ(ShareInside(std::vector<double>{1, 2, 3}, 3, 1).value(), 0);
}

TEST(ShareInside, OfNothingIsNoShare) {
    EXPECT_FALSE(ShareInside({}, 0, 1).has_value());
    EXPECT_FALSE(ShareInside(std::vector<double>{kNaN}, 0, 1).has_value());
}

} // namespace
