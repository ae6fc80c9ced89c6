// ProfileText.cpp - bytes as letters and back.
#include "ProfileText.h"

namespace profiletext {

std::wstring EncodeBytes(const std::uint8_t* bytes, std::size_t count) {
    std::wstring text;
    text.reserve(count * 2);
    for (std::size_t i = 0; i < count; ++i) {
        text += static_cast<wchar_t>(L'A' + (bytes[i] & 0x0F));
        text += static_cast<wchar_t>(L'A' + (bytes[i] >> 4));
    }
    return text;
}

std::optional<std::vector<std::uint8_t>> DecodeBytes(std::wstring_view text) {
    if (text.size() % 2 != 0)
        return std::nullopt;
    for (const wchar_t letter : text) {
        if (letter < L'A' || letter > L'P')
            return std::nullopt;
    }
    std::vector<std::uint8_t> bytes(text.size() / 2);
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        const auto low = static_cast<unsigned>(text[2 * i] - L'A');
        const auto high = static_cast<unsigned>(text[2 * i + 1] - L'A');
        bytes[i] = static_cast<std::uint8_t>(low | high << 4);
    }
    return bytes;
}

} // namespace profiletext
