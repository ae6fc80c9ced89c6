// Tests of printf-like formatting.
#include "resource.h"

#include <cstdarg>
#include <limits>

namespace {

template <class... Args>
CString Formatted(LPCWSTR format, const Args&... args) {
    CString text;
    text.Format(format, args...);
    return text;
}

void FormatThroughList(CString* text, LPCWSTR format, ...) {
    va_list arguments;
    va_start(arguments, format);
    text->FormatV(format, arguments);
    va_end(arguments);
}

} // namespace

TEST(StringFormat, ExponentsHaveTwoDigits) {
    EXPECT_EQ(Formatted(L"%g", 0.00001), L"1e-05");
    EXPECT_EQ(Formatted(L"%e", 1.0), L"1.000000e+00");
    EXPECT_EQ(Formatted(L"%.3g", 1e100), L"1e+100");
}

TEST(StringFormat, PlainTextArgumentsAreWide) {
    EXPECT_EQ(Formatted(L"%s-%c", L"wide", L'w'), L"wide-w");
    EXPECT_EQ(Formatted(L"%S-%hs-%C", "eight", "bit", 'n'), L"eight-bit-n");
    EXPECT_EQ(Formatted(L"%ls", L"long"), L"long");
    EXPECT_EQ(Formatted(L"[%-6s][%6s][%.2s]", L"ab", L"cd", L"efgh"), L"[ab    ][    cd][ef]");
}

TEST(StringFormat, StringsAreTakenAsArguments) {
    const CString name(L"speed");
    EXPECT_EQ(Formatted(L"%s=%d", name, 5), L"speed=5");
}

TEST(StringFormat, TheStringItselfMayBeAnArgument) {
    CString text(L"inner");
    text.Format(L"<%s>", text);
    EXPECT_EQ(text, L"<inner>");
    const CString padding(L' ', 600);
    text.Format(L"%s%s", text, padding);
    EXPECT_EQ(text.GetLength(), 607);
    EXPECT_EQ(text.Left(8), L"<inner> ");
}

TEST(StringFormat, NumbersOfAllSizes) {
    EXPECT_EQ(Formatted(L"%d %u %x %08X", -5, 6u, 255, 255), L"-5 6 ff 000000FF");
    EXPECT_EQ(Formatted(L"%I64d %lld", std::numeric_limits<LONGLONG>::min(), 7LL), L"-9223372036854775808 7");
    EXPECT_EQ(Formatted(L"%.2f|%8.3f|%-8.1f|%+d", 0.126, 2.5, 2.5, 3), L"0.13|   2.500|2.5     |+3");
    EXPECT_EQ(Formatted(L"%*d%%", 4, 50), L"  50%");
}

TEST(StringFormat, TextsLongerThanAnyBuffer) {
    const CString longText(L'q', 100000);
    const CString text = Formatted(L"%s.", longText);
    EXPECT_EQ(text.GetLength(), 100001);
    EXPECT_EQ(text[99999], L'q');
    EXPECT_EQ(text[100000], L'.');
    EXPECT_EQ(Formatted(L"%s", CString(L'r', 255)).GetLength(), 255);
    EXPECT_EQ(Formatted(L"%s", CString(L'r', 256)).GetLength(), 256);
}

TEST(StringFormat, CharactersOutsideTheCodePageSurvive) {
    EXPECT_EQ(Formatted(L"%s\u00B1", L"\u00E9\U0001F600"), L"\u00E9\U0001F600\u00B1");
}

TEST(StringFormat, Appends) {
    CString text(L"n=");
    text.AppendFormat(L"%d", 3);
    EXPECT_EQ(text, L"n=3");
}

TEST(StringFormat, TakesTheFormatFromAResource) {
    CString text(L"old");
    text.Format(IDS_FORMAT, L"Grid", 12);
    EXPECT_EQ(text, L"Grid has 12 rows");
    text.Format(IDS_ABSENT, 1);
    EXPECT_EQ(text, L"Grid has 12 rows");
}

TEST(StringFormat, TakesAnArgumentList) {
    CString text;
    FormatThroughList(&text, L"%s/%d", L"a", 2);
    EXPECT_EQ(text, L"a/2");
}
