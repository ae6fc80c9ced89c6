// Texts broken into lines, and the widths that they need.
#include "report/TextWrap.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <random>
#include <string>

using namespace textwrap;
using ::testing::ElementsAre;

namespace {

/// Every character is 10 pixels wide, 'w' 15 and 'i' 5.
CharWidths TypeWriter() {
    return CharWidths([](int first, CharWidths::Page& page) {
        for (int i = 0; i < CharWidths::PageSize; ++i)
            page[static_cast<std::size_t>(i)] = first + i == 'w' ? 15 : first + i == 'i' ? 5 : 10;
    });
}

class TextWrap : public ::testing::Test {
protected:
    std::vector<std::wstring> Lines(const std::wstring& text, int width, int most = 9) {
        std::vector<std::wstring> lines;
        for (const Line& line : m_wrapper.Break(text, width, most))
            lines.push_back(text.substr(static_cast<std::size_t>(line.first), static_cast<std::size_t>(line.length)));
        EXPECT_EQ(m_wrapper.CountLines(text, width, most), static_cast<int>(lines.size()));
        return lines;
    }

    CharWidths m_widths = TypeWriter();
    Wrapper m_wrapper{m_widths};
};

TEST_F(TextWrap, BreaksBetweenWords) {
    EXPECT_THAT(Lines(L"one ten three", 70), ElementsAre(L"one ten", L"three"));
    EXPECT_THAT(Lines(L"one ten three", 69), ElementsAre(L"one", L"ten", L"three"));
    EXPECT_THAT(Lines(L"one ten three", 130), ElementsAre(L"one ten three"));
}

TEST_F(TextWrap, WideCharactersNeedMoreRoom) {
    EXPECT_THAT(Lines(L"www iii", 70), ElementsAre(L"www iii"));
    EXPECT_THAT(Lines(L"www www", 99), ElementsAre(L"www", L"www"));
    EXPECT_THAT(Lines(L"www www", 100), ElementsAre(L"www www"));
}

TEST_F(TextWrap, AWordWiderThanALineBeginsOneAndIsBroken) {
    EXPECT_THAT(Lines(L"a bbbbbbb c", 50), ElementsAre(L"a", L"bbbbb", L"bb c"));
    EXPECT_THAT(Lines(L"abc", 5), ElementsAre(L"a", L"b", L"c")) << "a character at least";
}

TEST_F(TextWrap, SurrogatesStayTogether) {
    EXPECT_THAT(Lines(L"\xD83D\xDE00\xD83D\xDE00", 10), ElementsAre(L"\xD83D\xDE00", L"\xD83D\xDE00"));
}

TEST_F(TextWrap, LineBreaksOfEveryKindBeginALine) {
    EXPECT_THAT(Lines(L"a\nb\r\nc\rd", 500), ElementsAre(L"a", L"b", L"c", L"d"));
}

TEST_F(TextWrap, EmptyLinesAndSpaceAtTheEndsDoNotCount) {
    EXPECT_THAT(Lines(L"  \n a  b \n\n \tc \n ", 500), ElementsAre(L"a  b", L"c"));
    EXPECT_THAT(Lines(L" \t\r\n ", 500), ElementsAre());
    EXPECT_THAT(Lines(L"", 500), ElementsAre());
}

TEST_F(TextWrap, NoMoreLinesThanAreAskedFor) {
    EXPECT_THAT(Lines(L"a b c d", 10, 2), ElementsAre(L"a", L"b"));
    EXPECT_THAT(Lines(L"abcdef", 10, 2), ElementsAre(L"a", L"b"));
    EXPECT_THAT(Lines(L"a b", 10, 0), ElementsAre());
}

TEST_F(TextWrap, ATextTellsHowWideItsLinesHaveToBe) {
    std::uint16_t fits[3];
    ASSERT_TRUE(m_wrapper.Measure(L"one ten three", fits, 3));
    EXPECT_THAT(fits, ElementsAre(130, 70, 50));
    ASSERT_TRUE(m_wrapper.Measure(L"a\nbb\nc", fits, 3));
    EXPECT_THAT(fits, ElementsAre(NeverWide, NeverWide, 20)) << "three lines, however wide the view";
    EXPECT_FALSE(m_wrapper.Measure(L" \n ", fits, 3));
}

TEST_F(TextWrap, AVeryLongTextFitsNoView) {
    std::uint16_t fits[2];
    ASSERT_TRUE(m_wrapper.Measure(std::wstring(20'000, L'x'), fits, 2));
    EXPECT_THAT(fits, ElementsAre(NeverWide, NeverWide));
    ASSERT_TRUE(m_wrapper.Measure(std::wstring(5'000, L'x'), fits, 2));
    EXPECT_THAT(fits, ElementsAre(50'000, 25'000));
}

TEST_F(TextWrap, APageOfWidthsIsAskedForOnce) {
    std::vector<int> asked;
    CharWidths widths([&asked](int first, CharWidths::Page& page) {
        asked.push_back(first);
        page.fill(0);
    });
    EXPECT_EQ(widths.Of(L'a'), 1) << "at least a pixel";
    widths.Of(L'z');
    widths.Of(L'\x3042');
    widths.Of(L'\x3043');
    EXPECT_THAT(asked, ElementsAre(0, 0x3000));
}

/// The widths that `Measure` finds are exactly those at which the lines become fewer.
TEST_F(TextWrap, WidthsAreExactForRandomTexts) {
    std::mt19937 random(99);
    const auto below = [&random](int limit) { return std::uniform_int_distribution<int>(0, limit - 1)(random); };
    for (int round = 0; round < 3000; ++round) {
        std::wstring text;
        for (int length = below(60); length > 0; --length)
            text += below(round % 7 + 2) == 0 ? L" \n  \t"[below(round % 3 == 0 ? 5 : 1)] : L"iwx"[below(3)];
        constexpr int count = 4;
        std::uint16_t fits[count];
        const bool isText = m_wrapper.Measure(text, fits, count);
        ASSERT_EQ(isText, m_wrapper.CountLines(text, 100, count) > 0);
        for (int i = 0; isText && i < count; ++i) {
            ASSERT_TRUE(i == 0 || fits[i] <= fits[i - 1]);
            if (fits[i] > 15) { // narrower than that, a character may stand out
                ASSERT_GT(m_wrapper.CountLines(text, fits[i] - 1, count + 1), i + 1) << i;
            }
            if (fits[i] != NeverWide) {
                ASSERT_LE(m_wrapper.CountLines(text, fits[i], count + 1), i + 1) << i;
            }
        }
    }
}

} // namespace
