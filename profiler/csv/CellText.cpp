// Reading the text of one field.
#include "csv/CellText.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <chrono>
#include <cmath>
#include <cstring>
#include <limits>

namespace csv {

namespace {

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

char Lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

bool EqualsIgnoringCase(std::string_view text, std::string_view lower) {
    return text.size() == lower.size() &&
           std::equal(text.begin(), text.end(), lower.begin(), [](char a, char b) { return Lower(a) == b; });
}

bool IsInfinity(std::string_view text) {
    if (!text.empty() && (text[0] == '-' || text[0] == '+'))
        text.remove_prefix(1);
    return EqualsIgnoringCase(text, "inf") || EqualsIgnoringCase(text, "infinity") || text == "\u221E";
}

/// A number with a decimal point and no grouping.
NumberReading ReadPlainNumber(std::string_view text) {
    if (!text.empty() && text[0] == '+') {
        text.remove_prefix(1);
        if (!text.empty() && text[0] == '-')
            return {};
    }
    double value = 0;
    const char* const end = text.data() + text.size();
    const std::from_chars_result result = std::from_chars(text.data(), end, value);
    if (result.ptr != end || result.ec == std::errc::invalid_argument || text.empty())
        return {};
    // "inf" and "nan" are numbers to the converter; a number without a digit in front is none here.
    const std::size_t first = text[0] == '-' ? 1 : 0;
    if (!IsDigit(text[first]) && text[first] != '.')
        return {};
    if (result.ec == std::errc::result_out_of_range) {
        const std::size_t exponent = text.find_first_of("eE");
        const bool tiny =
            exponent == std::string_view::npos ? text[first] == '0' || text[first] == '.' : text[exponent + 1] == '-';
        return tiny ? NumberReading{0, NumberFault::None} : NumberReading{0, NumberFault::NotFinite};
    }
    return {value, NumberFault::None};
}

/// True when the digits of a whole number are grouped in threes: "1,234", "12,345,678", not "0,123", "1234,567".
bool IsGroupedInThrees(std::string_view whole, char group) {
    if (!whole.empty() && (whole[0] == '-' || whole[0] == '+'))
        whole.remove_prefix(1);
    const std::size_t firstGroup = std::min(whole.find(group), whole.size());
    if (firstGroup < 1 || firstGroup > 3 || whole[0] == '0')
        return false;
    for (std::size_t i = 0; i < whole.size(); ++i) {
        const bool groupPlace = i >= firstGroup && (i - firstGroup) % 4 == 0;
        if (groupPlace ? whole[i] != group : !IsDigit(whole[i]))
            return false;
    }
    return (whole.size() - firstGroup) % 4 == 0;
}

constexpr double kSecondsPerDay = 86400;

/// Reads exactly `count` digits at `position`, which moves behind them; -1 when they are not there.
int ReadDigits(std::string_view text, std::size_t& position, std::size_t count) {
    if (position + count > text.size())
        return -1;
    int value = 0;
    for (std::size_t i = 0; i < count; ++i, ++position) {
        if (!IsDigit(text[position]))
            return -1;
        value = value * 10 + (text[position] - '0');
    }
    return value;
}

bool Skip(std::string_view text, std::size_t& position, char c) {
    if (position >= text.size() || text[position] != c)
        return false;
    ++position;
    return true;
}

/// "13:05", "13:05:59", "13:05:59.25" at `position`, which moves behind it: as a fraction of a day.
std::optional<double> ReadTime(std::string_view text, std::size_t& position) {
    const int hour = ReadDigits(text, position, 2);
    if (hour < 0 || hour > 24 || !Skip(text, position, ':'))
        return std::nullopt;
    const int minute = ReadDigits(text, position, 2);
    if (minute < 0 || minute > 59)
        return std::nullopt;
    double seconds = 3600.0 * hour + 60.0 * minute;
    if (!Skip(text, position, ':'))
        return seconds / kSecondsPerDay;
    const int second = ReadDigits(text, position, 2);
    if (second < 0 || second > 60) // 60 is a leap second
        return std::nullopt;
    seconds += second;
    if (Skip(text, position, '.')) {
        const std::size_t fraction = position;
        double place = 0.1;
        for (; position < text.size() && IsDigit(text[position]); ++position, place /= 10)
            seconds += place * (text[position] - '0');
        if (position == fraction)
            return std::nullopt;
    }
    return seconds / kSecondsPerDay;
}

/// "Z", "+01:00", "-0530" or nothing, up to the end of the text.
bool ReadZone(std::string_view text, std::size_t position) {
    if (position == text.size())
        return true;
    if (Skip(text, position, 'Z'))
        return position == text.size();
    if (!Skip(text, position, '+') && !Skip(text, position, '-'))
        return false;
    if (ReadDigits(text, position, 2) < 0)
        return false;
    Skip(text, position, ':');
    return ReadDigits(text, position, 2) >= 0 && position == text.size();
}

} // namespace

std::string_view Trimmed(std::string_view text) {
    while (!text.empty() && (text.front() == ' ' || text.front() == '\t'))
        text.remove_prefix(1);
    while (!text.empty() && (text.back() == ' ' || text.back() == '\t'))
        text.remove_suffix(1);
    return text;
}

bool IsMissing(std::string_view text) {
    text = Trimmed(text);
    if (text.empty())
        return true;
    if (text.size() > 4)
        return false;
    constexpr std::array<std::string_view, 5> kMarks{"na", "n/a", "#n/a", "nan", "null"};
    return std::any_of(kMarks.begin(), kMarks.end(),
                       [&](std::string_view mark) { return EqualsIgnoringCase(text, mark); });
}

bool IsDash(std::string_view text) {
    text = Trimmed(text);
    constexpr std::array<std::string_view, 6> kMarks{"-", "--", ".", "?", "\u2013", "\u2014"};
    return std::find(kMarks.begin(), kMarks.end(), text) != kMarks.end();
}

NumberReading ReadNumber(std::string_view text, DecimalMark mark) {
    text = Trimmed(text);
    const char decimal = static_cast<char>(mark);
    const char group = mark == DecimalMark::Point ? ',' : '.';
    const bool plain = text.find(',') == std::string_view::npos &&
                       (mark == DecimalMark::Point || text.find('.') == std::string_view::npos);
    if (plain) {
        const NumberReading reading = ReadPlainNumber(text);
        if (reading.fault == NumberFault::NotANumber && IsInfinity(text))
            return {0, NumberFault::NotFinite};
        return reading;
    }

    std::array<char, 64> buffer; // no number that somebody wrote down is longer
    if (text.size() > buffer.size())
        return {};
    const std::string_view whole = text.substr(0, text.find(decimal));
    if (whole.find(group) != std::string_view::npos &&
        !IsGroupedInThrees(whole.substr(0, whole.find_first_of("eE")), group))
        return {};
    std::size_t length = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == group && i >= whole.size())
            return {}; // grouping belongs to the whole number only
        if (text[i] != group)
            buffer[length++] = text[i] == decimal ? '.' : text[i];
    }
    return ReadPlainNumber(std::string_view(buffer.data(), length));
}

bool IsDate(std::string_view text) { return ReadDate(text).has_value(); }

std::optional<double> ReadDate(std::string_view text) {
    text = Trimmed(text);
    std::size_t position = 0;
    const int year = ReadDigits(text, position, 4);
    if (year < 0 || !Skip(text, position, '-'))
        return std::nullopt;
    const int month = ReadDigits(text, position, 2);
    if (month < 0 || !Skip(text, position, '-'))
        return std::nullopt;
    const int day = ReadDigits(text, position, 2);
    if (day < 0)
        return std::nullopt;
    const std::chrono::year_month_day date{std::chrono::year(year), std::chrono::month(static_cast<unsigned>(month)),
                                           std::chrono::day(static_cast<unsigned>(day))};
    if (!date.ok())
        return std::nullopt;
    const double days = static_cast<double>(std::chrono::sys_days(date).time_since_epoch().count());
    if (position == text.size())
        return days;
    if (!Skip(text, position, 'T') && !Skip(text, position, ' '))
        return std::nullopt;
    const std::optional<double> time = ReadTime(text, position);
    if (!time || !ReadZone(text, position))
        return std::nullopt;
    return days + *time;
}

} // namespace csv
