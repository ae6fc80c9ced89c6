// What the text of one field means: nothing, a number, a date.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace csv {

/// The character between whole number and fraction. The other of the two may group the digits of the whole number in
/// threes, as in "1,234.5" and "1.234,5".
enum class DecimalMark : char { Point = '.', Comma = ',' };

/// Why a text is not a number that one can reckon with.
enum class NumberFault {
    None,
    NotANumber, ///< other text
    NotFinite,  ///< infinity, or beyond the range of double
};

struct NumberReading {
    double value = 0;
    NumberFault fault = NumberFault::NotANumber;
};

/// `text` without blanks and tabs at its ends.
std::string_view Trimmed(std::string_view text);

/// Nothing, only blanks, or one of the marks NA, N/A, #N/A, NaN, null, in any case of letters. Quotes around it make no
/// difference. ("None" is an ordinary answer in many files and no such mark.)
bool IsMissing(std::string_view text);

/// A dash or a mark of the same use ("-", "--", the longer dashes, ".", "?"): missing in columns of numbers and dates,
/// a text like any other in columns of texts.
bool IsDash(std::string_view text);

/// Reads a whole text as a decimal number, blanks at the ends apart: sign, digits with the mark, exponent. Never
/// depends on the locale. A number too small for double reads as 0.
NumberReading ReadNumber(std::string_view text, DecimalMark mark);

/// True for an ISO 8601 date that the calendar has, with or without a time: "2024-02-29", "2024-02-29 13:05",
/// "2024-02-29T13:05:59.5Z", "2024-02-29T13:05:59+01:00". No other order of day, month and year is taken for a date,
/// because one cannot tell 3/4 from 4/3.
bool IsDate(std::string_view text);

/// The same date in days since 1970-01-01, its time as a fraction of the day. Zones are not converted: it is the place
/// on the calendar that is written. Nothing for a text that is no date.
std::optional<double> ReadDate(std::string_view text);

} // namespace csv
