// Reading numbers that people typed.
#include "common/NumberText.h"
#include "common/MissingValue.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <clocale>
#include <cmath>
#include <optional>
#include <string>

namespace {

/// The number, or nothing when the text is refused; a refused text must leave the value alone.
std::optional<double> Parsed(std::wstring_view text) {
    double value = 1234.5;
    if (numbertext::Parse(text, value))
        return value;
    EXPECT_EQ(value, 1234.5);
    return std::nullopt;
}

/// Runs the C library in a locale with a decimal comma for one test.
class DecimalComma {
public:
    DecimalComma() {
        for (const char* name : {"de_DE.UTF-8", "de_DE.utf8", "German", "de_DE", "fr_FR.UTF-8"}) {
            if (std::setlocale(LC_NUMERIC, name) != nullptr && *std::localeconv()->decimal_point == ',') {
                m_found = true;
                return;
            }
        }
    }
    ~DecimalComma() { std::setlocale(LC_NUMERIC, "C"); }
    bool Found() const { return m_found; }

private:
    bool m_found = false;
};

TEST(MissingValue, IsExactlyMinusNinetyNine) {
    EXPECT_TRUE(IsMissing(-99.0));
    EXPECT_TRUE(IsMissing(-99.0f));
    EXPECT_TRUE(IsMissing(KyMissingValueF));
    EXPECT_FALSE(IsMissing(-99.0001));
    EXPECT_FALSE(IsMissing(99.0));
}

TEST(NumberText, ReadsWholeNumbersAndFractions) {
    EXPECT_EQ(Parsed(L"42"), 42.0);
    EXPECT_EQ(Parsed(L"-1.25"), -1.25);
    EXPECT_EQ(Parsed(L"+.5"), 0.5);
    EXPECT_EQ(Parsed(L"1e3"), 1000.0);
    EXPECT_EQ(Parsed(L"1.E-2"), 0.01);
}

TEST(NumberText, AcceptsBothSeparators) {
    EXPECT_EQ(Parsed(L"1,5"), 1.5);
    EXPECT_EQ(Parsed(L"1.5"), 1.5);
    EXPECT_EQ(Parsed(L"-0,25"), -0.25);
    EXPECT_EQ(Parsed(L"1,234.5"), std::nullopt); // no grouping: two separators
    EXPECT_EQ(Parsed(L"1,2,3"), std::nullopt);
}

TEST(NumberText, AcceptsBothSeparatorsInALocaleWithADecimalComma) {
    const DecimalComma locale;
    if (!locale.Found())
        GTEST_SKIP() << "no locale with a decimal comma on this machine";
    EXPECT_EQ(Parsed(L"1,5"), 1.5);
    EXPECT_EQ(Parsed(L"1.5"), 1.5);
}

TEST(NumberText, WhiteSpaceAroundTheNumberDoesNotMatter) {
    EXPECT_EQ(Parsed(L"  7\t"), 7.0);
    EXPECT_EQ(Parsed(L"\r\n7\r\n"), 7.0);
    EXPECT_EQ(Parsed(L"7 8"), std::nullopt);
}

TEST(NumberText, AnEmptyTextFailsAndGivesTheMissingMark) {
    for (const std::wstring_view text : {L"", L" ", L"\t\r\n "}) {
        double value = 1234.5;
        EXPECT_FALSE(numbertext::Parse(text, value));
        EXPECT_EQ(value, -99.0);
    }
}

TEST(NumberText, WhatIsLeftOverRefusesTheText) {
    EXPECT_EQ(Parsed(L"12 px"), std::nullopt);
    EXPECT_EQ(Parsed(L"12%"), std::nullopt);
    EXPECT_EQ(Parsed(L"abc"), std::nullopt);
    EXPECT_EQ(Parsed(L"."), std::nullopt);
    EXPECT_EQ(Parsed(L"-"), std::nullopt);
    EXPECT_EQ(Parsed(L"1e"), std::nullopt);
    EXPECT_EQ(Parsed(L"--1"), std::nullopt);
    EXPECT_EQ(Parsed(std::wstring_view(L"1\0002", 3)), std::nullopt);
    EXPECT_EQ(Parsed(std::wstring_view(L"1\000", 2)), std::nullopt);
}

TEST(NumberText, ReadsNoFurtherThanTheView) { EXPECT_EQ(Parsed(std::wstring_view(L"123456", 3)), 123.0); }

TEST(NumberText, OutOfRangeIsRefused) {
    EXPECT_EQ(Parsed(L"1e400"), std::nullopt);
    EXPECT_EQ(Parsed(L"-1e400"), std::nullopt);
    EXPECT_EQ(Parsed(L"1e-400"), std::nullopt);
    EXPECT_EQ(Parsed(L"1e308"), 1e308);
}

TEST(NumberText, AnOldErrorDoesNotCount) {
    errno = ERANGE;
    EXPECT_EQ(Parsed(L"3"), 3.0);
}

TEST(NumberText, ReadsWhatTheCLibraryCallsANumber) {
    EXPECT_EQ(Parsed(L"0x1F"), 31.0);
    EXPECT_EQ(Parsed(L"0x1p3"), 8.0);
    EXPECT_EQ(Parsed(L"0x"), std::nullopt);
    EXPECT_EQ(Parsed(L"inf"), HUGE_VAL);
    EXPECT_EQ(Parsed(L"-Infinity"), -HUGE_VAL);
    ASSERT_TRUE(Parsed(L"NaN").has_value());
    EXPECT_TRUE(std::isnan(*Parsed(L"nan")));
}

TEST(NumberText, ATypedMarkIsReadAsTheNumberItIs) { EXPECT_EQ(Parsed(L"-99"), -99.0); }

} // namespace
