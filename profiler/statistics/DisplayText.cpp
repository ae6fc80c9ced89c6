// Numbers as the grid shows them.
#include "statistics/DisplayText.h"

#include <charconv>
#include <cmath>

namespace statistics {

namespace {

std::string Converted(double value, std::chars_format format, int precision) {
    char buffer[400]; // the longest double in plain decimals has 309 digits
    const std::to_chars_result result = std::to_chars(buffer, buffer + sizeof buffer, value, format, precision);
    return std::string(buffer, result.ptr);
}

} // namespace

std::string NumberText(double value) {
    if (std::isnan(value))
        return {};
    return Converted(value == 0 ? 0.0 : value, std::chars_format::general, 6);
}

std::string ShareText(std::optional<double> share) {
    if (!share || std::isnan(*share))
        return {};
    if (*share > 0 && *share < 0.0005)
        return "<0.1 %";
    if (*share < 1 && *share > 0.9995)
        return ">99.9 %";
    std::string text = Converted(*share * 100, std::chars_format::fixed, 1);
    // Halves may round up to the texts that stand for all and for none.
    if (text == "100.0" && *share < 1)
        text = ">99.9";
    if (text == "0.0" && *share > 0)
        text = "<0.1";
    return text + " %";
}

} // namespace statistics
