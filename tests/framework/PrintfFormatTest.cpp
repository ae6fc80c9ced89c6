// Tests of the translation of printf formats.
#include "core/PrintfFormat.h"

#include <gtest/gtest.h>

using printfformat::ToC99;

TEST(PrintfFormat, PlainTextConversionsTakeWideArguments) { EXPECT_EQ(ToC99(L"%s and %c"), L"%ls and %lc"); }

TEST(PrintfFormat, UpperCaseConversionsTakeEightBitArguments) { EXPECT_EQ(ToC99(L"%S%C"), L"%s%c"); }

TEST(PrintfFormat, LengthsDecideOverTheLetterCase) {
    EXPECT_EQ(ToC99(L"%hs %hS %hc %ls %lS %lc %ws"), L"%s %s %c %ls %ls %lc %ls");
}

TEST(PrintfFormat, FlagsWidthAndPrecisionStay) {
    EXPECT_EQ(ToC99(L"%-10s|%.3s|%*s|%+08.3f"), L"%-10ls|%.3ls|%*ls|%+08.3f");
}

TEST(PrintfFormat, DoubledPercentSignsAreNoConversions) { EXPECT_EQ(ToC99(L"100%% %%s %s"), L"100%% %%s %ls"); }

TEST(PrintfFormat, NumbersStay) {
    EXPECT_EQ(ToC99(L"%d %lu %lld %I64d %hd %g %p %zu"), L"%d %lu %lld %I64d %hd %g %p %zu");
}

TEST(PrintfFormat, UnfinishedConversionsStay) {
    EXPECT_EQ(ToC99(L"50%"), L"50%");
    EXPECT_EQ(ToC99(L"%-5.2l"), L"%-5.2l");
    EXPECT_EQ(ToC99(L""), L"");
}
