// Histograms of a column's values, and its most frequent texts.
#include "statistics/Histogram.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <numeric>

namespace statistics {
namespace {

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

Histogram Of(const std::vector<double>& values) { return MakeHistogram(values, Summarize(values)); }

std::size_t BinsOf(const std::vector<double>& values) { return BinCount(Summarize(values)); }

/// first, first + step, …
std::vector<double> Series(std::size_t count, double first, double step) {
    std::vector<double> values(count);
    for (std::size_t i = 0; i < count; ++i)
        values[i] = first + step * static_cast<double>(i);
    return values;
}

TEST(Histogram, TheNumberOfBinsFollowsTheMiddleHalfOfTheValues) {
    // 0 to 1000: quartiles 250 and 750, bins 2 · 500 / cbrt(1001) = 99.97 wide, 10.003 of them.
    EXPECT_EQ(BinsOf(Series(1001, 0, 1)), 11u);
    EXPECT_EQ(BinsOf(Series(1001, -5e6, 1e4)), 11u); // whatever the unit
    // 8 values from 0 to 7: quartiles 1.75 and 5.25, bins 2 · 3.5 / 2 = 3.5 wide, 2 of them.
    EXPECT_EQ(BinsOf(Series(8, 0, 1)), 2u);
}

TEST(Histogram, WhereHalfOfTheValuesAreTheSameTheCountAloneDecides) {
    std::vector<double> values(30, 5.0);
    values.push_back(0);
    values.push_back(9); // 32 values: log2 is 5, and one more
    EXPECT_EQ(BinsOf(values), 6u);
}

TEST(Histogram, ThereAreNeverMoreThanTwoHundredBinsAndNeverNone) {
    std::vector<double> values = Series(1000, 0, 0.001);
    values.push_back(1e6);
    EXPECT_EQ(BinsOf(values), 200u);
    EXPECT_EQ(BinsOf({5, 5, 5}), 1u);
    EXPECT_EQ(BinsOf({5}), 1u);
    EXPECT_EQ(BinsOf({}), 1u);
    EXPECT_EQ(BinsOf({1, 2}), 2u); // 2 · 0.5 / cbrt(2) = 0.79 wide
}

TEST(Histogram, AValueOnAnEdgeIsInTheRightBinAndTheMaximumInTheLast) {
    Histogram histogram{0, 8, std::vector<double>(4)};
    EXPECT_EQ(histogram.BinOf(0), 0u);
    EXPECT_EQ(histogram.BinOf(1.99), 0u);
    EXPECT_EQ(histogram.BinOf(2), 1u);
    EXPECT_EQ(histogram.BinOf(6), 3u);
    EXPECT_EQ(histogram.BinOf(8), 3u);
    EXPECT_EQ(histogram.Edge(0), 0);
    EXPECT_EQ(histogram.Edge(1), 2);
    EXPECT_EQ(histogram.Edge(4), 8);
}

TEST(Histogram, EveryValueIsCountedOnce) {
    const Histogram histogram = Of({0, 1, 2, 3, 4, 5, 6, 7, kNaN, kNaN});
    EXPECT_EQ(histogram.minimum, 0);
    EXPECT_EQ(histogram.maximum, 7);
    EXPECT_EQ(histogram.counts, (std::vector<double>{4, 4})); // 3.5 is the edge
    for (const std::size_t count : {1u, 2u, 100u, 3000u}) {
        std::vector<double> values = Series(count, 1e9, 0.37);
        const Histogram many = Of(values);
        EXPECT_EQ(std::accumulate(many.counts.begin(), many.counts.end(), 0.0), static_cast<double>(count));
    }
}

TEST(Histogram, OfEqualValuesIsOneBin) {
    const Histogram histogram = Of({-99, -99, -99});
    EXPECT_EQ(histogram.minimum, -99);
    EXPECT_EQ(histogram.maximum, -99);
    EXPECT_EQ(histogram.counts, (std::vector<double>{3}));
    EXPECT_EQ(histogram.BinOf(-99), 0u);
}

TEST(Histogram, OfNoValuesHasNoBins) {
    EXPECT_TRUE(Of({}).counts.empty());
    EXPECT_TRUE(Of({kNaN, kNaN}).counts.empty());
}

TEST(Histogram, TheWholeRangeOfDoubleIsFine) {
    constexpr double huge = std::numeric_limits<double>::max();
    const Histogram histogram = Of({-huge, -1, 0, 1, huge});
    EXPECT_EQ(std::accumulate(histogram.counts.begin(), histogram.counts.end(), 0.0), 5.0);
    EXPECT_EQ(histogram.counts.front(), 1.0);
    EXPECT_EQ(histogram.counts.back(), 1.0);
    EXPECT_EQ(histogram.Edge(0), -huge);
    EXPECT_EQ(histogram.Edge(histogram.counts.size()), huge);
    const double tiny = std::numeric_limits<double>::denorm_min();
    EXPECT_EQ(Of({0, tiny}).counts.size(), BinsOf({0, tiny}));
}

csv::TextPool Pool(const std::vector<std::string>& texts) {
    csv::TextPool pool;
    for (const std::string& text : texts)
        pool.Add(text, 1);
    return pool;
}

TEST(MostFrequent, TextsComeByFrequencyAndThenInTheOrderOfTheFile) {
    const auto pool = Pool({"b", "a", "c", "a", "d", "c", "a"});
    EXPECT_EQ(MostFrequent(pool, 3), (std::vector<FrequentText>{{"a", 3}, {"c", 2}, {"b", 1}}));
    EXPECT_EQ(MostFrequent(pool, 10), (std::vector<FrequentText>{{"a", 3}, {"c", 2}, {"b", 1}, {"d", 1}}));
    EXPECT_TRUE(MostFrequent(pool, 0).empty());
    EXPECT_TRUE(MostFrequent(csv::TextPool(), 10).empty());
}

} // namespace
} // namespace statistics
