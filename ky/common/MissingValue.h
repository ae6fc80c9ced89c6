/// @file
/// The mark that stands for "no value" in plot cells, numeric cells, edits and property items.
#pragma once

/// @addtogroup ky_common
/// @{

/// "No value" where a double is held. Such a value is not drawn, shows as empty text, and stands in a signal for a
/// position that did not change.
inline constexpr double KyMissingValue = -99.0;

/// "No value" where a float is held.
inline constexpr float KyMissingValueF = -99.0f;

/// True only for exactly the mark; -99.0001, which a typed -99 becomes, is a value.
constexpr bool IsMissing(double value) { return value == KyMissingValue; }

/// @}
