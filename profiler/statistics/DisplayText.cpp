// Numbers as the grid shows them.
#include "statistics/DisplayText.h"

#include <charconv>
#include <chrono>
#include <cmath>
#include <cstdio>

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

std::string DateText(double days, DateDetail detail) {
    const double minutes = std::floor(days * 24 * 60 + 0.5); // the nearest minute: a fraction of a day is rarely exact
    const double day = detail == DateDetail::Day ? std::floor(days) : std::floor(minutes / (24 * 60));
    constexpr double kFirst = -719528, kLast = 2932896; // 0000-01-01 and 9999-12-31
    if (!(day >= kFirst && day <= kLast))
        return {};
    const std::chrono::year_month_day date{std::chrono::sys_days(std::chrono::days(static_cast<int>(day)))};
    char text[40];
    int length = std::snprintf(text, sizeof text, "%04d-%02u-%02u", static_cast<int>(date.year()),
                               static_cast<unsigned>(date.month()), static_cast<unsigned>(date.day()));
    if (detail == DateDetail::Minute) {
        const int minute = static_cast<int>(minutes - day * 24 * 60);
        length += std::snprintf(text + length, sizeof text - length, " %02d:%02d", minute / 60, minute % 60);
    }
    return std::string(text, static_cast<std::size_t>(length));
}

} // namespace statistics
