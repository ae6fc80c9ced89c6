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

} // namespace
