// Numbers as texts: checks of formats, and reading what a user typed.
#include "ItemFormat.h"

#include <charconv>
#include <cmath>
#include <cwchar>
#include <cwctype>
#include <string>
#include <string_view>

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
    std::wstring_view rest(text);
    while (!rest.empty() && std::iswspace(rest.front()))
        rest.remove_prefix(1);
    while (!rest.empty() && std::iswspace(rest.back()))
        rest.remove_suffix(1);
    if (rest.size() > 1 && rest.front() == L'+' && rest[1] != L'-')
        rest.remove_prefix(1);
    // Not by the C library: where there is no memory for its copy of the text, it does not return.
    std::string typed;
    typed.reserve(rest.size());
    for (const wchar_t c : rest) {
        if (c > 0x7E)
            return false;
        typed += c == L',' ? '.' : static_cast<char>(c);
    }
    double read = 0.0;
    const auto [end, error] = std::from_chars(typed.data(), typed.data() + typed.size(), read);
    if (error != std::errc() || end != typed.data() + typed.size() || !std::isfinite(read))
        return false;
    number = read;
    return true;
}

} // namespace itemformat
