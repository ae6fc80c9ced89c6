// Numbers as texts that are read back bit by bit.
#include "common/PropertyText.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <limits>

namespace {

using namespace propertytext;

std::wstring Text(double number) { return NumberText(number).c_str(); }
std::wstring Text(std::int64_t number) { return NumberText(number).c_str(); }

TEST(PropertyText, IntegersAreDecimal) {
    EXPECT_EQ(Text(std::int64_t{0}), L"0");
    EXPECT_EQ(Text(std::int64_t{-1}), L"-1");
    EXPECT_EQ(Text(std::int64_t{4294967295}), L"4294967295");
    EXPECT_EQ(Text(std::numeric_limits<std::int64_t>::min()), L"-9223372036854775808");
}

TEST(PropertyText, NumbersAreTheShortestTextThatMeansThem) {
    EXPECT_EQ(Text(0.1), L"0.1");
    EXPECT_EQ(Text(-99.0), L"-99");
    EXPECT_EQ(Text(1e-5), L"1e-05");
    EXPECT_EQ(Text(std::numeric_limits<double>::infinity()), L"inf");
    EXPECT_EQ(Text(-std::numeric_limits<double>::infinity()), L"-inf");
}

TEST(PropertyText, EveryNumberComesBackBitByBit) {
    using Limits = std::numeric_limits<double>;
    for (const double number : {0.0, -0.0, 0.1, -99.0, 1.0 / 3, Limits::max(), Limits::lowest(), Limits::min(),
                                Limits::denorm_min(), Limits::infinity(), -Limits::infinity(),
                                std::copysign(Limits::quiet_NaN(), 1.0), std::copysign(Limits::quiet_NaN(), -1.0)}) {
        const std::optional<double> read = ReadNumber(Text(number));
        ASSERT_TRUE(read) << number;
        EXPECT_EQ(std::memcmp(&*read, &number, sizeof(number)), 0) << number;
    }
}

TEST(PropertyText, WhatIsNotWhollyANumberIsNotRead) {
    for (const wchar_t* const text :
         {L"", L" ", L"1 ", L" 1", L"+1", L"1x", L"x", L"1,5", L"--1", L"0x10", L"ö", L"1\xFF11"}) {
        EXPECT_FALSE(ReadInteger(text)) << text;
        EXPECT_FALSE(ReadNumber(text)) << text;
    }
    EXPECT_FALSE(ReadInteger(L"1.5"));
    EXPECT_FALSE(ReadInteger(L"1e3"));
}

TEST(PropertyText, WhatIsOutOfRangeOrTooLongIsNotRead) {
    EXPECT_FALSE(ReadInteger(L"9223372036854775808"));
    EXPECT_FALSE(ReadNumber(L"1e999"));
    EXPECT_FALSE(ReadNumber(std::wstring(MostCharacters + 1, L'1')));
    EXPECT_TRUE(ReadNumber(std::wstring(MostCharacters, L'1')));
}

} // namespace
