// Reading a number from a text that a person typed. No window needed.
#pragma once

#include <string_view>

namespace numbertext {

/// Reads the whole text as one number in the C locale's notation; white space around it does not matter, and both '.'
/// and ',' are taken for the decimal separator (with a locale whose separator is neither, '.' and the locale's own).
/// What a number is, is what `wcstod` accepts: also hexadecimal, "inf" and "nan".
///
/// @return true when the text is one number within double's range; the number is then in `value`. An empty text fails
///         and sets `value` to the missing-value mark; any other failure leaves `value` as it was.
bool Parse(std::wstring_view text, double& value);

} // namespace numbertext
