// ProfileText.h - how the bytes of a binary profile entry are written in an INI file. Needs no Windows.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace profiletext {

/// Two letters per byte, 'A' plus the low four bits and then 'A' plus the high four: 0x1F is "PB".
std::wstring EncodeBytes(const std::uint8_t* bytes, std::size_t count);

/// The bytes behind such a text; nothing when its length is odd or a letter is not one of A to P.
std::optional<std::vector<std::uint8_t>> DecodeBytes(std::wstring_view text);

} // namespace profiletext
