// Breaks a text into lines between its words, and tells how wide the lines have to be. Arithmetic only, no window
// needed.
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <memory>
#include <string_view>
#include <vector>

namespace textwrap {

/// The widths of a font's characters, in pixels, asked for 256 at a time when one of them is first needed.
class CharWidths {
public:
    static constexpr int PageSize = 256;
    using Page = std::array<int, PageSize>;
    /// Fills the page with the widths of the characters from `first` on. Called at most once for each page.
    using Fill = std::function<void(int first, Page& page)>;

    explicit CharWidths(Fill fill) : m_fill(std::move(fill)) {}
    /// At least 1, so that every character needs room.
    int Of(wchar_t character);

private:
    static constexpr int Pages = 256; ///< UTF-16
    Fill m_fill;
    std::array<std::unique_ptr<Page>, Pages> m_pages;
};

/// A line of a text: where its first character stands, and how many there are without the space at its end.
struct Line {
    int first = 0;
    int length = 0;
    bool operator==(const Line&) const = default;
};

/// Wide enough for no text: more than a view ever has.
constexpr std::uint16_t NeverWide = 0xFFFF;

/// Wraps texts in one font. Lines are broken at white space; a word that is wider than a line begins one and is broken
/// between its characters. Line breaks in the text begin a line; white space around them, and empty lines, do not
/// count.
class Wrapper {
public:
    /// `widths` must live as long as this.
    explicit Wrapper(CharWidths& widths) : m_widths(widths) {}

    /// The lines of the text, each at most `width` pixels wide unless that has no room for a character; not more than
    /// `most` of them.
    std::vector<Line> Break(std::wstring_view text, int width, int most);
    /// How many lines `Break` gives; 0 when there is nothing but white space.
    int CountLines(std::wstring_view text, int width, int most);
    /// `fits[n]` becomes the smallest width into which the text fits in n + 1 lines, for n = 0 … `count` - 1; not more
    /// than `NeverWide`. They do not grow with n. False when there is nothing but white space.
    bool Measure(std::wstring_view text, std::uint16_t* fits, int count);

private:
    struct Word {
        int first;
        int length;
        int width;
        int gap; ///< width of the white space in front of it
        bool isBreakBefore;
    };
    void TakeWords(std::wstring_view text);
    template <class OnLine>
    int Lay(std::wstring_view text, int width, int most, OnLine onLine);

    CharWidths& m_widths;
    std::vector<Word> m_words; ///< kept for their memory
};

} // namespace textwrap
