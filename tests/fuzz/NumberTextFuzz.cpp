// Feeds texts to the reader of typed numbers.
#include "common/NumberText.h"

#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cwchar>
#include <string>

namespace {

void Require(bool condition, const char* what) {
    if (!condition) {
        std::fprintf(stderr, "number text: %s\n", what);
        std::abort();
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    // Two bytes are one UTF-16 unit, as on Windows.
    std::wstring text;
    for (std::size_t i = 0; i + 1 < size; i += 2)
        text.push_back(static_cast<wchar_t>(data[i] | data[i + 1] << 8));

    constexpr double untouched = 4711.0;
    double value = untouched;
    if (!numbertext::Parse(text, value)) {
        Require(value == untouched || value == -99.0, "a failure left a number");
        return 0;
    }
    wchar_t written[64];
    std::swprintf(written, 64, L" %.17g ", value);
    double again = untouched;
    // The very smallest numbers report a range error of their own when they are read.
    if (numbertext::Parse(written, again))
        Require(again == value || (std::isnan(again) && std::isnan(value)), "written, it reads otherwise");
    else
        Require(std::fabs(value) < 1e-300, "its own text is no number");
    return 0;
}
