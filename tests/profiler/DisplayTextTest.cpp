// Numbers and shares as the grid shows them.
#include "statistics/DisplayText.h"

#include <gtest/gtest.h>

#include <cmath>

#include <limits>

namespace {

using statistics::DateDetail;
using statistics::DateText;
using statistics::NumberText;
using statistics::ShareText;

TEST(DisplayText, NumbersHaveSixSignificantDigits) {
    EXPECT_EQ(NumberText(0.1), "0.1");
    EXPECT_EQ(NumberText(43.9219298245614), "43.9219");
    EXPECT_EQ(NumberText(12345.678), "12345.7");
    EXPECT_EQ(NumberText(1565354), "1.56535e+06");
    EXPECT_EQ(NumberText(-2.5), "-2.5");
    EXPECT_EQ(NumberText(999999), "999999");
}

TEST(DisplayText, ExponentsHaveTwoDigitsOrMore) {
    EXPECT_EQ(NumberText(1e6), "1e+06");
    EXPECT_EQ(NumberText(0.00001), "1e-05");
    EXPECT_EQ(NumberText(1e300), "1e+300");
}

TEST(DisplayText, MinusZeroIsZeroAndMissingIsNothing) {
    EXPECT_EQ(NumberText(-0.0), "0");
    EXPECT_EQ(NumberText(std::numeric_limits<double>::quiet_NaN()), "");
}

TEST(DisplayText, SharesHaveOneDecimal) {
    EXPECT_EQ(ShareText(0.934), "93.4 %");
    EXPECT_EQ(ShareText(0.5), "50.0 %");
    EXPECT_EQ(ShareText(1.0 / 3), "33.3 %");
}

TEST(DisplayText, OnlyAllIsAHundredAndOnlyNoneIsZero) {
    EXPECT_EQ(ShareText(1.0), "100.0 %");
    EXPECT_EQ(ShareText(0.0), "0.0 %");
    EXPECT_EQ(ShareText(0.9999), ">99.9 %");
    EXPECT_EQ(ShareText(0.9995), ">99.9 %");
    EXPECT_EQ(ShareText(0.9994), "99.9 %");
    EXPECT_EQ(ShareText(0.0001), "<0.1 %");
    EXPECT_EQ(ShareText(0.001), "0.1 %");
}

TEST(DisplayText, NoShareIsNothing) { EXPECT_EQ(ShareText(std::nullopt), ""); }

TEST(DisplayText, DaysAreIsoDates) {
    EXPECT_EQ(DateText(0, DateDetail::Day), "1970-01-01");
    EXPECT_EQ(DateText(15340.99, DateDetail::Day), "2012-01-01");
    EXPECT_EQ(DateText(-0.25, DateDetail::Day), "1969-12-31");
    EXPECT_EQ(DateText(15340, DateDetail::Minute), "2012-01-01 00:00");
    EXPECT_EQ(DateText(15340 + (13 * 60 + 5) / 1440.0, DateDetail::Minute), "2012-01-01 13:05");
    EXPECT_EQ(DateText(15340.99999, DateDetail::Minute), "2012-01-02 00:00"); // the nearest minute
    EXPECT_EQ(DateText(-0.25, DateDetail::Minute), "1969-12-31 18:00");
}

TEST(DisplayText, DaysBeyondTheCalendarAreNothing) {
    EXPECT_EQ(DateText(-719528, DateDetail::Day), "0000-01-01");
    EXPECT_EQ(DateText(2932896.5, DateDetail::Minute), "9999-12-31 12:00");
    for (const double days : {-719529.0, 2932897.0, 1e300, -1e300, std::nan(""), HUGE_VAL}) {
        EXPECT_EQ(DateText(days, DateDetail::Day), "") << days;
        EXPECT_EQ(DateText(days, DateDetail::Minute), "") << days;
    }
}

} // namespace
