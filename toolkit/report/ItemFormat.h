// Numbers as texts: checks of the printf-style formats that hosts give to cells, and reading what a user typed. No
// window needed.
#pragma once

namespace itemformat {

/// Kinds of value that a format may show.
enum class Value { Number, Text };

/// True when the format has exactly one directive, which takes a double (a, e, f, g) or a text (s), and nothing else
/// that would read an argument; "%%" may stand anywhere. Width and precision have at most three digits. Only such a
/// format may be handed to printf with one argument.
bool IsSafe(const wchar_t* format, Value value);

/// Reads the whole text, white space around it aside, as one finite number. Both '.' and ',' are taken for the decimal
/// separator, whatever the C locale has; no others are taken between the digits. False, and `number` as it was, for
/// anything else; null is no number.
bool ReadNumber(const wchar_t* text, double& number);

} // namespace itemformat
