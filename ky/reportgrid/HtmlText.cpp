// The pieces of an HTML table: texts, numbers, colours, cells.
#include "HtmlText.h"

#include <boost/lexical_cast.hpp>

namespace htmltext {
namespace {

bool IsHighSurrogate(char16_t unit) { return unit >= 0xD800 && unit <= 0xDBFF; }
bool IsLowSurrogate(char16_t unit) { return unit >= 0xDC00 && unit <= 0xDFFF; }

char Continuation(char32_t bits) { return static_cast<char>(0x80 | (bits & 0x3F)); }

void AppendCodePoint(std::string& utf8, char32_t code) {
    if (code < 0x80) {
        utf8 += static_cast<char>(code);
    } else if (code < 0x800) {
        utf8 += static_cast<char>(0xC0 | (code >> 6));
        utf8 += Continuation(code);
    } else if (code < 0x10000) {
        utf8 += static_cast<char>(0xE0 | (code >> 12));
        utf8 += Continuation(code >> 6);
        utf8 += Continuation(code);
    } else {
        utf8 += static_cast<char>(0xF0 | (code >> 18));
        utf8 += Continuation(code >> 12);
        utf8 += Continuation(code >> 6);
        utf8 += Continuation(code);
    }
}

/// Empty for a character that stands for itself.
std::string_view EntityOf(char c) {
    switch (c) {
    case '&':
        return "&amp;";
    case '"':
        return "&quot;";
    case '\'':
        return "&#39;";
    case '>':
        return "&gt;";
    case '<':
        return "&lt;";
    default:
        return {};
    }
}

void AppendColor(std::string& html, std::string_view property, std::uint32_t color) {
    html += property;
    html += ": #";
    html += ColorCode(color);
    html += ';';
}

std::string_view AlignmentStyle(Alignment alignment) {
    return alignment == 1 ? " text-align: center;" : alignment == 2 ? " text-align: right;" : "";
}

/// Intended: an empty cell tells its background also where that is the default, and a full one does not.
void AppendEmptyCell(std::string& html, std::uint32_t background) {
    html += "   <td";
    if (background != 0) {
        AppendColor(html, " style='background-color", background);
        html += '\'';
    }
    html += "> </td>";
}

} // namespace

std::string ToUtf8(std::u16string_view text) {
    std::string utf8;
    utf8.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char16_t unit = text[i];
        if (IsHighSurrogate(unit)) {
            // Intended: what follows a high surrogate goes with it, whether or not the two are a pair.
            ++i;
            if (i < text.size() && IsLowSurrogate(text[i]))
                AppendCodePoint(utf8, ((char32_t{unit} & 0x3FF) << 10 | (char32_t{text[i]} & 0x3FF)) + 0x10000);
        } else if (!IsLowSurrogate(unit)) {
            AppendCodePoint(utf8, unit);
        }
    }
    return utf8;
}

void AppendEscaped(std::string& html, std::string_view text) {
    const char* first = text.data(); // of what is not copied yet
    const char* const end = first + text.size();
    for (const char* at = first; at != end; ++at) {
        const std::string_view entity = EntityOf(*at);
        if (entity.empty())
            continue;
        html.append(first, at);
        html += entity;
        first = at + 1;
    }
    html.append(first, end);
}

std::string ColorCode(std::uint32_t color) {
    const std::uint32_t rgb = (color & 0xFF) << 16 | (color & 0xFF00) | (color >> 16 & 0xFF);
    std::string code(6, '0');
    for (int digit = 0; digit < 6; ++digit)
        code[digit] = "0123456789abcdef"[rgb >> (20 - 4 * digit) & 0xF];
    return code;
}

std::string FloatText(float value) { return boost::lexical_cast<std::string>(value); }

void AppendHeaderCell(std::string& html, std::string_view caption, Alignment alignment) {
    AppendColor(html, "   <th style='background-color", 0xE6E6E6);
    html += alignment == 0 ? " text-align: left;" : alignment == 2 ? " text-align: right;" : " text-align: center;";
    html += "'>";
    AppendEscaped(html, caption);
    html += "</th>";
}

void AppendTextCell(std::string& html, const TextCell& cell) {
    if (cell.text.empty()) {
        AppendEmptyCell(html, cell.background);
        return;
    }
    html += "   <td style='";
    if (cell.background != DefaultBackground)
        AppendColor(html, "background-color", cell.background);
    html += AlignmentStyle(cell.alignment);
    if (cell.textColor != DefaultTextColor)
        AppendColor(html, " color", cell.textColor);
    html += "'>";
    if (cell.isBold)
        html += "<strong>";
    AppendEscaped(html, cell.text);
    if (cell.isBold)
        html += "</strong>";
    html += "</td>";
}

void AppendImageCell(std::string& html, std::string_view file, std::uint32_t background) {
    html += "   <td style='padding: 0;";
    if (background != DefaultBackground)
        AppendColor(html, " background-color", background);
    html += "'> <img src='";
    html += file;
    html += "' border='0'/> </td>";
}

} // namespace htmltext
