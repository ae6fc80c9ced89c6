// Numbers as the grid shows them. Nothing here depends on the locale.
#pragma once

#include <optional>
#include <string>

namespace statistics {

/// Six significant digits, no trailing zeros, an exponent of at least two digits for the very large and the very small:
/// "0.1", "12345.7", "1e+06", "1e-05". Minus zero is "0"; NaN, which stands for missing, is the empty text.
std::string NumberText(double value);

/// A share from 0 to 1 in percent with one decimal: "93.4 %". "0.0 %" and "100.0 %" are kept for none and for all: what
/// would be rounded to them otherwise is "<0.1 %" or ">99.9 %". No share is the empty text.
std::string ShareText(std::optional<double> share);

/// Days since 1970-01-01 as an ISO date, "2012-03-04"; with the time, "2012-03-04 13:05". Beyond the years 0 to 9999,
/// and for NaN, the empty text.
enum class DateDetail { Day, Minute };
std::string DateText(double days, DateDetail detail);

} // namespace statistics
