// The meaning of a field's text.
#include "csv/CellText.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using csv::DecimalMark;
using csv::NumberFault;
using csv::ReadNumber;

void ExpectNumber(std::string_view text, DecimalMark mark, double value) {
    const csv::NumberReading reading = ReadNumber(text, mark);
    EXPECT_EQ(reading.fault, NumberFault::None) << text;
    EXPECT_EQ(reading.value, value) << text;
}

void ExpectFault(std::string_view text, DecimalMark mark, NumberFault fault) {
    EXPECT_EQ(ReadNumber(text, mark).fault, fault) << text;
}

TEST(CellText, NumbersWithADecimalPoint) {
    ExpectNumber("0", DecimalMark::Point, 0);
    ExpectNumber("-12.5", DecimalMark::Point, -12.5);
    ExpectNumber("+3", DecimalMark::Point, 3);
    ExpectNumber(".5", DecimalMark::Point, 0.5);
    ExpectNumber("5.", DecimalMark::Point, 5);
    ExpectNumber("1e3", DecimalMark::Point, 1000);
    ExpectNumber("2.5E-2", DecimalMark::Point, 0.025);
    ExpectNumber(" \t7 ", DecimalMark::Point, 7);
    ExpectNumber("007", DecimalMark::Point, 7);
}

TEST(CellText, NumbersWithADecimalComma) {
    ExpectNumber("1,5", DecimalMark::Comma, 1.5);
    ExpectNumber("-0,25", DecimalMark::Comma, -0.25);
    ExpectNumber("1,5e2", DecimalMark::Comma, 150);
    ExpectNumber(",5", DecimalMark::Comma, 0.5);
    ExpectNumber("12", DecimalMark::Comma, 12);
}

TEST(CellText, DigitsGroupedInThrees) {
    ExpectNumber("1,234", DecimalMark::Point, 1234);
    ExpectNumber("-12,345,678.5", DecimalMark::Point, -12345678.5);
    ExpectNumber("1.234.567,25", DecimalMark::Comma, 1234567.25);
    ExpectNumber("1.234", DecimalMark::Comma, 1234);
}

TEST(CellText, WronglyGroupedDigitsAreNoNumber) {
    for (const char* text : {"1,5", "0,123", "1234,567", "12,34", "1,,234", ",123", "1,234,", "1.5,000", "1,2345"})
        ExpectFault(text, DecimalMark::Point, NumberFault::NotANumber);
    ExpectFault("1.5", DecimalMark::Comma, NumberFault::NotANumber);
    ExpectFault("1,5,5", DecimalMark::Comma, NumberFault::NotANumber);
}

TEST(CellText, OtherTextsAreNoNumbers) {
    for (const char* text : {"", " ", "abc", "12a", "1 2", "--5", "+-5", "e5", "0x10", "1e", ".", "-", "1.2.3", "$5",
                             "5%", "nan", "2012-01-01", "1,2,3,4"}) {
        ExpectFault(text, DecimalMark::Point, NumberFault::NotANumber);
        ExpectFault(text, DecimalMark::Comma, NumberFault::NotANumber);
    }
}

TEST(CellText, InfinityAndNumbersBeyondTheRangeAreNotFinite) {
    for (const char* text : {"inf", "-Inf", "+INFINITY", "\u221E", "1e999", "-1e400"}) {
        ExpectFault(text, DecimalMark::Point, NumberFault::NotFinite);
        ExpectFault(text, DecimalMark::Comma, NumberFault::NotFinite);
    }
    ExpectFault(std::string(400, '9'), DecimalMark::Point, NumberFault::NotFinite);
}

TEST(CellText, NumbersTooSmallAreZero) {
    ExpectNumber("1e-999", DecimalMark::Point, 0);
    ExpectNumber("-1e-400", DecimalMark::Point, 0);
    ExpectNumber("0." + std::string(400, '0') + "1", DecimalMark::Point, 0);
}

TEST(CellText, NumbersKeepEveryDigit) {
    ExpectNumber("0.1", DecimalMark::Point, 0.1);
    ExpectNumber("1.7976931348623157e308", DecimalMark::Point, 1.7976931348623157e308);
    ExpectNumber("4.9406564584124654e-324", DecimalMark::Point, 4.9406564584124654e-324);
    ExpectNumber("9007199254740993", DecimalMark::Point, 9007199254740992);
}

TEST(CellText, MissingMarks) {
    for (const char* text : {"", " ", "\t", "NA", "na", "N/A", "#N/A", "NaN", "nan", "null", "NULL", " NA "})
        EXPECT_TRUE(csv::IsMissing(text)) << text;
    for (const char* text : {"None", "0", "-", "NAN1", "Namibia", "nil", "missing"})
        EXPECT_FALSE(csv::IsMissing(text)) << text;
}

TEST(CellText, Dashes) {
    for (const char* text : {"-", "--", ".", "?", "\u2013", "\u2014", " - "})
        EXPECT_TRUE(csv::IsDash(text)) << text;
    for (const char* text : {"", "-1", "a", "..."})
        EXPECT_FALSE(csv::IsDash(text)) << text;
}

TEST(CellText, IsoDates) {
    for (const char* text :
         {"2012-01-01", "2024-02-29", "2000-02-29", " 2015-12-31 ", "2015-12-31 23:59", "2015-12-31T23:59:59",
          "2015-12-31T23:59:59.125Z", "2015-12-31T23:59+01:00", "2015-12-31 23:59:60-0530"})
        EXPECT_TRUE(csv::IsDate(text)) << text;
}

TEST(CellText, NoDates) {
    for (const char* text : {"", "2012", "2023-02-29", "1900-02-29", "2012-13-01", "2012-00-10", "2012-04-31",
                             "2012-1-1", "01.02.2012", "1/2/2012", "2012-01-01x", "2012-01-01T", "2012-01-01 25:00",
                             "2012-01-01 10:60", "2012-01-01 10:00:61", "2012-01-01 10:00:00.", "2012-01-01 10:00+1"})
        EXPECT_FALSE(csv::IsDate(text)) << text;
}

TEST(CellText, DatesAreDaysSinceTheBeginningOf1970) {
    EXPECT_EQ(csv::ReadDate("1970-01-01"), 0.0);
    EXPECT_EQ(csv::ReadDate("1969-12-31"), -1.0);
    EXPECT_EQ(csv::ReadDate(" 2012-01-01 "), 15340.0);
    EXPECT_EQ(csv::ReadDate("1970-01-02 06:00"), 1.25);
    EXPECT_DOUBLE_EQ(csv::ReadDate("1970-01-01T00:00:59.5Z").value(), 59.5 / 86400);
    EXPECT_EQ(csv::ReadDate("1970-01-01 12:00+09:00"), 0.5); // as it is written, whatever the zone
    EXPECT_EQ(csv::ReadDate("1970-01-01 24:00"), 1.0);
    EXPECT_EQ(csv::ReadDate("1970-02-30"), std::nullopt);
    EXPECT_EQ(csv::ReadDate("12"), std::nullopt);
}

} // namespace
