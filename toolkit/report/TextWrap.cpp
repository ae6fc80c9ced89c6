// Breaks a text into lines between its words, and tells how wide the lines have to be.
#include "TextWrap.h"

#include <algorithm>
#include <cstddef>
#include <utility>

namespace textwrap {

namespace {

bool IsLineBreak(wchar_t c) { return c == L'\n' || c == L'\r'; }

bool IsSpace(wchar_t c) { return c == L' ' || c == L'\t' || IsLineBreak(c); }

bool IsLowSurrogate(wchar_t c) { return c >= 0xDC00 && c <= 0xDFFF; }

} // namespace

int CharWidths::Of(wchar_t character) {
    const auto code = static_cast<unsigned>(character) & 0xFFFF;
    std::unique_ptr<Page>& page = m_pages[code / PageSize];
    if (!page) {
        auto filled = std::make_unique<Page>();
        m_fill(static_cast<int>(code / PageSize * PageSize), *filled);
        page = std::move(filled);
    }
    return std::max((*page)[code % PageSize], 1);
}

void Wrapper::TakeWords(std::wstring_view text) {
    m_words.clear();
    const std::size_t end = text.size();
    std::size_t i = 0;
    while (i < end) {
        Word word = {};
        for (; i < end && IsSpace(text[i]); ++i) {
            word.isBreakBefore = word.isBreakBefore || IsLineBreak(text[i]);
            word.gap += IsLineBreak(text[i]) ? 0 : m_widths.Of(L' ');
        }
        word.first = static_cast<int>(i);
        for (; i < end && !IsSpace(text[i]); ++i)
            word.width += m_widths.Of(text[i]);
        word.length = static_cast<int>(i) - word.first;
        if (word.length > 0)
            m_words.push_back(word);
    }
}

/// Lays the words into lines and tells of each as it is complete; returns how many there are.
template <class OnLine>
int Wrapper::Lay(std::wstring_view text, int width, int most, OnLine onLine) {
    int lines = 0, used = 0;
    Line line;
    const auto finish = [&] {
        if (line.length > 0) {
            onLine(line);
            ++lines;
        }
        line = Line();
        used = 0;
    };
    for (const Word& word : m_words) {
        if (line.length > 0 && (word.isBreakBefore || used + word.gap + word.width > width))
            finish();
        if (lines >= most)
            return lines;
        if (line.length > 0) {
            line.length = word.first + word.length - line.first;
            used += word.gap + word.width;
            continue;
        }
        line = {word.first, word.length};
        used = word.width;
        // A word wider than the line is broken; the rest of it goes on like a word.
        while (used > width && lines < most) {
            int fitting = 0, fittingWidth = 0;
            for (; fitting < line.length; ++fitting) {
                const wchar_t c = text[static_cast<std::size_t>(line.first + fitting)];
                const int next = fittingWidth + m_widths.Of(c);
                if (next > width && fitting > 0 && !IsLowSurrogate(c))
                    break;
                fittingWidth = next;
            }
            if (fitting == line.length)
                break;
            const Line rest = {line.first + fitting, line.length - fitting};
            const int restWidth = used - fittingWidth;
            line.length = fitting;
            finish();
            line = rest;
            used = restWidth;
        }
        if (lines >= most)
            return lines;
    }
    finish();
    return lines;
}

std::vector<Line> Wrapper::Break(std::wstring_view text, int width, int most) {
    TakeWords(text);
    std::vector<Line> lines;
    Lay(text, width, most, [&lines](const Line& line) { lines.push_back(line); });
    return lines;
}

int Wrapper::CountLines(std::wstring_view text, int width, int most) {
    TakeWords(text);
    return Lay(text, width, most, [](const Line&) {});
}

bool Wrapper::Measure(std::wstring_view text, std::uint16_t* fits, int count) {
    TakeWords(text);
    std::int64_t total = 0, widest = 0, widestGap = 0;
    int paragraphs = 0;
    std::int64_t paragraph = 0, widestParagraph = 0;
    for (const Word& word : m_words) {
        const bool isFirst = paragraphs == 0 || word.isBreakBefore;
        paragraphs += isFirst ? 1 : 0;
        paragraph = isFirst ? word.width : paragraph + word.gap + word.width;
        total += word.width + (isFirst ? 0 : word.gap);
        widest = std::max<std::int64_t>(widest, word.width);
        widestGap = std::max<std::int64_t>(widestGap, word.gap);
        widestParagraph = std::max(widestParagraph, paragraph);
    }
    std::int64_t former = NeverWide;
    for (int i = 0; i < count; ++i) {
        const int lines = i + 1;
        if (lines < paragraphs) {
            fits[i] = NeverWide;
            continue;
        }
        // An even share, without the gaps that fall to the line ends, is the least. Lines with room for it and for one
        // word more have at least that share in them, when none ends before it is full.
        const std::int64_t share = (total + lines - 1) / lines;
        std::int64_t low = std::max<std::int64_t>((total - i * widestGap) / lines, 1);
        std::int64_t high = std::min(widestParagraph, former);
        if (paragraphs == 1)
            high = std::min(high, share + widest + widestGap);
        const auto isEnough = [&](std::int64_t width) {
            return Lay(text, static_cast<int>(width), lines + 1, [](const Line&) {}) <= lines;
        };
        while (low < high) {
            const std::int64_t middle = low + (high - low) / 2;
            if (isEnough(middle))
                high = middle;
            else
                low = middle + 1;
        }
        former = std::min<std::int64_t>(high, NeverWide);
        fits[i] = static_cast<std::uint16_t>(former);
    }
    return paragraphs > 0;
}

} // namespace textwrap
