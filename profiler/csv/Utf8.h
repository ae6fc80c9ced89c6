// Telling UTF-8 from other bytes.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace utf8 {

/// True when `text` is well-formed UTF-8: shortest forms only, no surrogates, nothing above U+10FFFF, and no zero byte
/// (a zero byte would end the text for the system).
bool IsValid(std::string_view text);

/// `text` with U+FFFD in place of each byte that is no part of well-formed UTF-8.
std::string Repaired(std::string_view text);

} // namespace utf8
