// Telling UTF-8 from other bytes.
#include "csv/Utf8.h"

namespace utf8 {

namespace {

/// Length of the well-formed character at the start of `text` (not empty), 0 when there is none.
std::size_t CharacterLength(std::string_view text) {
    const auto at = [&](std::size_t i) { return i < text.size() ? static_cast<unsigned char>(text[i]) : 0u; };
    const auto continues = [&](std::size_t i, unsigned low = 0x80, unsigned high = 0xBF) {
        return at(i) >= low && at(i) <= high;
    };
    const unsigned lead = at(0);
    if (lead < 0x80)
        return lead == 0 ? 0 : 1;
    if (lead >= 0xC2 && lead <= 0xDF)
        return continues(1) ? 2 : 0;
    if (lead >= 0xE0 && lead <= 0xEF) {
        // The second byte rules out over-long forms after E0 and surrogates after ED.
        const unsigned low = lead == 0xE0 ? 0xA0 : 0x80;
        const unsigned high = lead == 0xED ? 0x9F : 0xBF;
        return continues(1, low, high) && continues(2) ? 3 : 0;
    }
    if (lead >= 0xF0 && lead <= 0xF4) {
        const unsigned low = lead == 0xF0 ? 0x90 : 0x80;
        const unsigned high = lead == 0xF4 ? 0x8F : 0xBF;
        return continues(1, low, high) && continues(2) && continues(3) ? 4 : 0;
    }
    return 0;
}

} // namespace

bool IsValid(std::string_view text) {
    while (!text.empty()) {
        const std::size_t length = CharacterLength(text);
        if (length == 0)
            return false;
        text.remove_prefix(length);
    }
    return true;
}

std::string Repaired(std::string_view text) {
    std::string result;
    result.reserve(text.size());
    while (!text.empty()) {
        const std::size_t length = CharacterLength(text);
        if (length == 0)
            result += "\uFFFD";
        else
            result += text.substr(0, length);
        text.remove_prefix(length == 0 ? 1 : length);
    }
    return result;
}

} // namespace utf8
