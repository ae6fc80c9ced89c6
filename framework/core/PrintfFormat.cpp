// PrintfFormat.cpp - see PrintfFormat.h.
#include "PrintfFormat.h"

namespace printfformat {

namespace {

constexpr std::wstring_view flagsWidthAndPrecision = L"-+ #0123456789.*";
constexpr std::wstring_view lengths = L"hlLwjzt";

/// The text conversion that stands for `conversion` with the given length.
std::wstring TextConversion(wchar_t conversion, std::wstring_view length) {
    const bool upper = conversion == L'S' || conversion == L'C';
    const bool narrow = length == L"h" || (upper && length.empty());
    std::wstring result = narrow ? L"" : L"l";
    result += (conversion == L's' || conversion == L'S') ? L's' : L'c';
    return result;
}

bool IsTextConversion(wchar_t c) { return c == L's' || c == L'S' || c == L'c' || c == L'C'; }

} // namespace

std::wstring ToC99(std::wstring_view format) {
    std::wstring result;
    result.reserve(format.size() + 8);
    std::size_t next = 0;
    while (next < format.size()) {
        if (format[next] != L'%') {
            result += format[next++];
            continue;
        }
        std::size_t length = format.find_first_not_of(flagsWidthAndPrecision, next + 1);
        length = length == std::wstring_view::npos ? format.size() : length;
        std::size_t conversion = format.find_first_not_of(lengths, length);
        conversion = conversion == std::wstring_view::npos ? format.size() : conversion;
        if (conversion == format.size() || !IsTextConversion(format[conversion])) {
            // A lone or doubled percent sign, a number or the end of the format.
            const std::size_t end = conversion < format.size() ? conversion + 1 : conversion;
            result.append(format.substr(next, end - next));
            next = end;
            continue;
        }
        result.append(format.substr(next, length - next));
        result += TextConversion(format[conversion], format.substr(length, conversion - length));
        next = conversion + 1;
    }
    return result;
}

} // namespace printfformat
