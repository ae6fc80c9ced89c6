// Profiles of the shipped files, against numbers computed by other programs. For one column of numbers:
//   awk -F, 'NR>1 && $3!="" {print $3}' penguins.csv | python3 -c '
//   import statistics as s, sys
//   x = sorted(map(float, sys.stdin)); m = s.fmean(x); d = s.stdev(x)
//   def q(p): k = (len(x) - 1) * p; i = int(k); return x[i] + (k - i) * (x[min(i + 1, len(x) - 1)] - x[i])
//   print(len(x), x[0], m, x[-1], d, q(.05), q(.5), q(.95), sum(m - d <= v <= m + d for v in x))'
#include "statistics/ColumnProfile.h"
#include "csv/TableReader.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using csv::ColumnType;
using statistics::ColumnProfile;

struct NumberColumn {
    const char* name;
    std::size_t count, missing;
    double minimum, mean, maximum, standardDeviation, quantile5, quantile25, median, quantile75, quantile95;
    std::size_t inside; ///< numbers from mean - standard deviation to mean + standard deviation
};

csv::Table ReadShipped(const std::string& file) {
    csv::ReadResult result = csv::ReadFile(std::filesystem::path(PROFILER_DATA_DIR) / file);
    EXPECT_EQ(result.outcome, csv::ReadResult::Outcome::Read);
    for (const csv::Message& message : result.messages)
        ADD_FAILURE() << Text(message);
    return std::move(result.table);
}

const csv::Column& Named(const csv::Table& table, const std::string& name) {
    for (const csv::Column& column : table.columns) {
        if (column.name == name)
            return column;
    }
    throw std::runtime_error("no column " + name);
}

void ExpectNumbers(const csv::Table& table, const NumberColumn& expected) {
    SCOPED_TRACE(expected.name);
    const csv::Column& column = Named(table, expected.name);
    const ColumnProfile profile = statistics::Profile(column, table.rows);
    ASSERT_EQ(profile.type, ColumnType::Number);
    EXPECT_EQ(profile.count, expected.count);
    EXPECT_EQ(profile.missing, expected.missing);
    EXPECT_EQ(profile.numbers.count, expected.count);
    EXPECT_EQ(profile.numbers.minimum, expected.minimum);
    EXPECT_EQ(profile.numbers.maximum, expected.maximum);
    EXPECT_DOUBLE_EQ(profile.numbers.mean, expected.mean);
    EXPECT_DOUBLE_EQ(profile.numbers.standardDeviation.value(), expected.standardDeviation);
    EXPECT_DOUBLE_EQ(profile.numbers.quantile5, expected.quantile5);
    EXPECT_DOUBLE_EQ(profile.numbers.quantile25, expected.quantile25);
    EXPECT_DOUBLE_EQ(profile.numbers.median, expected.median);
    EXPECT_DOUBLE_EQ(profile.numbers.quantile75, expected.quantile75);
    EXPECT_DOUBLE_EQ(profile.numbers.quantile95, expected.quantile95);
    const double mean = expected.mean;
    const double deviation = expected.standardDeviation;
    EXPECT_DOUBLE_EQ(statistics::ShareInside(column.numbers, mean - deviation, mean + deviation).value(),
                     static_cast<double>(expected.inside) / static_cast<double>(expected.count));
}

void ExpectTexts(const csv::Table& table, const char* name, std::size_t count, std::size_t missing,
                 std::size_t distinct) {
    SCOPED_TRACE(name);
    const ColumnProfile profile = statistics::Profile(Named(table, name), table.rows);
    EXPECT_EQ(profile.type, ColumnType::Text);
    EXPECT_EQ(profile.count, count);
    EXPECT_EQ(profile.missing, missing);
    EXPECT_EQ(profile.distinct, distinct);
}

TEST(ColumnProfile, OfThePenguins) {
    const csv::Table table = ReadShipped("penguins.csv");
    EXPECT_EQ(table.rows, 344u);
    ASSERT_EQ(table.columns.size(), 7u);
    ExpectNumbers(table, {"Beak Length (mm)", 342, 2, 32.1, 43.9219298245614, 59.6, 5.4595837139265315, 35.7, 39.225,
                          44.45, 48.5, 51.995, 204});
    ExpectNumbers(table, {"Beak Depth (mm)", 342, 2, 13.1, 17.151169590643274, 21.5, 1.9747931568167814, 13.9, 15.6,
                          17.3, 18.7, 20.0, 218});
    ExpectNumbers(table, {"Flipper Length (mm)", 342, 2, 172, 200.91520467836258, 231, 14.061713679356888, 181, 190,
                          197, 213, 225, 215});
    ExpectNumbers(table, {"Body Mass (g)", 342, 2, 2700, 4201.754385964912, 6300, 801.9545356980955, 3150, 3550, 4050,
                          4750, 5650, 231});
    const ColumnProfile beak = statistics::Profile(Named(table, "Beak Length (mm)"), table.rows);
    EXPECT_EQ(beak.histogram.counts, (std::vector<double>{7, 35, 48, 49, 35, 61, 42, 50, 10, 3, 2}));
    EXPECT_EQ(beak.histogram.minimum, 32.1);
    EXPECT_EQ(beak.histogram.maximum, 59.6);
    EXPECT_TRUE(beak.frequent.empty());
    ExpectTexts(table, "Species", 344, 0, 3);
    const ColumnProfile species = statistics::Profile(Named(table, "Species"), table.rows);
    EXPECT_EQ(species.frequent,
              (std::vector<statistics::FrequentText>{{"Adelie", 152}, {"Gentoo", 124}, {"Chinstrap", 68}}));
    EXPECT_TRUE(species.histogram.counts.empty());
    ExpectTexts(table, "Island", 344, 0, 3);
    // "MALE", "FEMALE" and one "."; a dash counts as missing among numbers and dates only.
    ExpectTexts(table, "Sex", 334, 10, 3);
}

TEST(ColumnProfile, OfTheWeatherInSeattle) {
    const csv::Table table = ReadShipped("seattle-weather.csv");
    EXPECT_EQ(table.rows, 1461u);
    ASSERT_EQ(table.columns.size(), 6u);
    ExpectNumbers(table,
                  {"precipitation", 1461, 0, 0, 3.02943189596167, 55.9, 6.680194322314738, 0, 0, 0, 2.8, 17, 1312});
    ExpectNumbers(table, {"temp_max", 1461, 0, -1.6, 16.43908281998631, 35.6, 7.349758097360177, 6.1, 10.6, 15.6, 22.2,
                          28.9, 922});
    ExpectNumbers(
        table, {"temp_min", 1461, 0, -7.1, 8.234770704996578, 18.3, 5.023004179961265, 0, 4.4, 8.3, 12.2, 15.6, 916});
    ExpectNumbers(table, {"wind", 1461, 0, 0.4, 3.24113620807666, 9.5, 1.4378250588746195, 1.3, 2.2, 3, 4, 6, 1012});
    ExpectTexts(table, "weather", 1461, 0, 5);

    const ColumnProfile date = statistics::Profile(Named(table, "date"), table.rows);
    EXPECT_EQ(date.type, ColumnType::Date);
    EXPECT_EQ(date.count, 1461u);
    EXPECT_EQ(date.distinct, 1461u);
    EXPECT_EQ(date.firstDate, "2012-01-01");
    EXPECT_EQ(date.lastDate, "2015-12-31");
    EXPECT_EQ(date.daySummary.minimum, 15340);
    EXPECT_EQ(date.daySummary.maximum, 16800);
    EXPECT_EQ(date.daySummary.median, 16070);
    ASSERT_EQ(date.days.size(), 1461u);
    EXPECT_EQ(date.days[2], 15342);
    EXPECT_EQ(&date.ValueSummary(), &date.daySummary);
    EXPECT_EQ(statistics::ValuesOf(Named(table, "date"), date).data(), date.days.data());
    // Every day once: 2 · 730 / cbrt(1461) = 128.7 days wide, 11.3 of them.
    ASSERT_EQ(date.histogram.counts.size(), 12u);
    EXPECT_NEAR(date.histogram.counts[5], 1461 / 12.0, 1);
}

TEST(ColumnProfile, OfAColumnWithoutValuesCountsItsRowsAsMissing) {
    csv::MemorySource source("a,b\n1,\n2,\n");
    const csv::ReadResult result = csv::ReadTable(source, "t.csv");
    const ColumnProfile profile = statistics::Profile(result.table.columns[1], result.table.rows);
    EXPECT_EQ(profile.type, ColumnType::Empty);
    EXPECT_EQ(profile.count, 0u);
    EXPECT_EQ(profile.missing, 2u);
    EXPECT_EQ(profile.distinct, 0u);
}

} // namespace
