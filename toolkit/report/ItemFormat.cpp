// Numbers as texts: checks of formats, and reading what a user typed.
#include "ItemFormat.h"

#include <cerrno>
#include <clocale>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <cwchar>
#include <cwctype>
#include <string>

namespace itemformat {

namespace {

const wchar_t* SkipDigits(const wchar_t* p) {
    constexpr int mostDigits = 3;
    for (int i = 0; i < mostDigits && *p >= L'0' && *p <= L'9'; ++i)
        ++p;
    return p;
}

bool IsOneOf(wchar_t c, const wchar_t* set) { return c != L'\0' && std::wcschr(set, c) != nullptr; }

/// Behind the directive whose '%' stands before `p`; null when it is not one for the value.
const wchar_t* SkipDirective(const wchar_t* p, Value value) {
    while (IsOneOf(*p, L"-+ #0"))
        ++p;
    p = SkipDigits(p);
    if (*p == L'.')
        p = SkipDigits(p + 1);
    if (*p == L'l')
        ++p;
    return IsOneOf(*p, value == Value::Number ? L"aAeEfFgG" : L"s") ? p + 1 : nullptr;
}

} // namespace

bool IsSafe(const wchar_t* format, Value value) {
    int directives = 0;
    for (const wchar_t* p = format; p && *p;) {
        if (*p++ != L'%')
            continue;
        if (*p == L'%') {
            ++p;
            continue;
        }
        p = SkipDirective(p, value);
        if (!p)
            return false;
        ++directives;
    }
    return directives == 1;
}

bool ReadNumber(const wchar_t* text, double& number) {
    if (!text)
        return false;
    std::wstring typed(text);
    const char* const localPoint = std::localeconv()->decimal_point;
    wchar_t point = L'.';
    if (std::mbtowc(&point, localPoint, std::strlen(localPoint)) <= 0)
        point = L'.';
    for (wchar_t& c : typed)
        if (c == L'.' || c == L',')
            c = point;
    wchar_t* end = nullptr;
    errno = 0;
    const double read = std::wcstod(typed.c_str(), &end);
    if (end == typed.c_str() || errno == ERANGE || !std::isfinite(read))
        return false;
    while (std::iswspace(*end))
        ++end;
    if (*end != L'\0')
        return false;
    number = read;
    return true;
}

} // namespace itemformat
