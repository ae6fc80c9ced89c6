// The pieces of an HTML table: texts, numbers, colours, cells. No window needed.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace htmltext {

/// A text that has no colour of its own on a cell that has none; COLORREF 0x00BBGGRR.
constexpr std::uint32_t DefaultTextColor = 0x000000;
constexpr std::uint32_t DefaultBackground = 0xFFFFFF;

/// In UTF-8. Units that are no character are dropped without a trace: a low surrogate alone, a high one at the end of
/// the text, and a high one with whatever other unit follows it.
std::string ToUtf8(std::u16string_view text);

/// Adds the text with the five characters that mean something to HTML as entities: & " ' > <.
void AppendEscaped(std::string& html, std::string_view text);

/// Six digits for red, green and blue, of a COLORREF 0x00BBGGRR; the highest byte does not matter.
std::string ColorCode(std::uint32_t color);

/// Nine significant digits, so that the very float is told, whatever the grid shows of it.
std::string FloatText(float value);

/// How an item is aligned: 0 left, 1 centred, 2 right, as Windows has it; anything else as the reader likes.
using Alignment = int;

/// A cell with a text.
struct TextCell {
    std::string text; ///< UTF-8, not escaped
    std::uint32_t background = DefaultBackground;
    std::uint32_t textColor = DefaultTextColor;
    Alignment alignment = -1;
    bool isBold = false;
};
void AppendHeaderCell(std::string& html, std::string_view caption, Alignment alignment);
void AppendTextCell(std::string& html, const TextCell& cell);
/// `file` goes into the page as it is, without entities: what cannot stand between single quotes is the caller's
/// affair.
void AppendImageCell(std::string& html, std::string_view file, std::uint32_t background);

} // namespace htmltext
