// Which formats may be handed to printf.
#include "report/ItemFormat.h"

#include <gtest/gtest.h>

namespace {

using itemformat::IsSafe;
using itemformat::Value;

TEST(ItemFormat, TakesOneDirectiveForANumber) {
    for (const wchar_t* format :
         {L"%f", L"%g", L"%.2f", L"%+08.3e", L"%lf", L"%G", L"%a", L"about %.1f %%", L"%#.0f", L"% g"})
        EXPECT_TRUE(IsSafe(format, Value::Number)) << format;
}

TEST(ItemFormat, TakesOneDirectiveForAText) {
    for (const wchar_t* format : {L"%s", L"%-10s", L"%.3s", L"<%s>", L"%ls"})
        EXPECT_TRUE(IsSafe(format, Value::Text)) << format;
}

TEST(ItemFormat, RefusesWhatWouldReadAnotherArgument) {
    for (const wchar_t* format :
         {L"%d",      L"%s", L"%n", L"%p", L"%f %f", L"%*f", L"%.*f", L"%Lf",   L"%hf",  L"%1000f",
          L"%.1234f", L"%",  L"%5", L"%.", L"100%",  L"%%",  L"",     L"plain", L"%f %", L"%l"})
        EXPECT_FALSE(IsSafe(format, Value::Number)) << format;
    for (const wchar_t* format : {L"%f", L"%d", L"%S", L"%s%s", L"%c", L"", L"%*s"})
        EXPECT_FALSE(IsSafe(format, Value::Text)) << format;
    EXPECT_FALSE(IsSafe(nullptr, Value::Number));
}

TEST(ReadNumber, TakesBothSeparatorsAndWhiteSpaceAround) {
    double number = 0;
    EXPECT_TRUE(itemformat::ReadNumber(L"1.5", number));
    EXPECT_EQ(number, 1.5);
    EXPECT_TRUE(itemformat::ReadNumber(L" -2,25\t", number));
    EXPECT_EQ(number, -2.25);
    EXPECT_TRUE(itemformat::ReadNumber(L"1e3", number));
    EXPECT_EQ(number, 1000);
    EXPECT_TRUE(itemformat::ReadNumber(L"+4", number));
    EXPECT_EQ(number, 4);
    EXPECT_TRUE(itemformat::ReadNumber(L"-.5", number));
    EXPECT_EQ(number, -0.5);
}

TEST(ReadNumber, LeavesTheNumberWhenTheTextIsNone) {
    double number = 7;
    for (const wchar_t* text : {L"", L" ", L"x", L"1x", L"1 2", L"1.234,5", L"1,2,3", L"inf", L"-nan", L"1e999", L"--1",
                                L"++1", L"+-1", L"+", L"\u0661", L"0x10"})
        EXPECT_FALSE(itemformat::ReadNumber(text, number));
    EXPECT_FALSE(itemformat::ReadNumber(nullptr, number));
    EXPECT_EQ(number, 7);
}

} // namespace
