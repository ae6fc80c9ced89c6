// Reading a number from a text that a person typed.
#include "NumberText.h"

#include "MissingValue.h"

#include <algorithm>
#include <cerrno>
#include <clocale>
#include <cstdlib>
#include <cwchar>
#include <cwctype>
#include <string>

namespace numbertext {
namespace {

std::wstring_view Trimmed(std::wstring_view text) {
    while (!text.empty() && std::iswspace(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && std::iswspace(text.back()))
        text.remove_suffix(1);
    return text;
}

/// The first character of the decimal point that `wcstod` expects.
wchar_t DecimalPoint() {
    const char* point = std::localeconv()->decimal_point;
    wchar_t wide = L'\0';
    const bool converted = std::mbtowc(&wide, point, std::char_traits<char>::length(point)) > 0;
    return converted ? wide : L'.';
}

} // namespace

bool Parse(std::wstring_view text, double& value) {
    const std::wstring_view trimmed = Trimmed(text);
    if (trimmed.empty()) {
        value = KyMissingValue;
        return false;
    }

    // Whatever the locale says, people type both separators: the other one is turned into the one in force.
    std::wstring number(trimmed);
    const wchar_t point = DecimalPoint();
    if (point == L'.')
        std::replace(number.begin(), number.end(), L',', L'.');
    else
        std::replace(number.begin(), number.end(), L'.', point);

    errno = 0;
    wchar_t* end = nullptr;
    const double parsed = std::wcstod(number.c_str(), &end);
    while (std::iswspace(*end))
        ++end;
    // Comparing with the text's length, not with a NUL, refuses a text that hides characters behind an embedded NUL.
    if (end != number.c_str() + number.size() || errno != 0)
        return false;
    value = parsed;
    return true;
}

} // namespace numbertext
