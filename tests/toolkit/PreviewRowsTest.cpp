// Rows with a text below their cells: how many lines each has, in which width.
#include "report/PreviewRows.h"

#include <gtest/gtest.h>

#include <new>
#include <random>
#include <string>

namespace {

class PreviewRowsTest : public ::testing::Test {
protected:
    PreviewRowsTest() : m_widths([](int, textwrap::CharWidths::Page& page) { page.fill(10); }) {}

    void Measure(int most = 3) {
        m_rows.Clear();
        Splice(0, 0, static_cast<int>(m_texts.size()), most);
    }
    /// The texts have changed there.
    void Splice(int first, int removed, int inserted, int most = 3) {
        m_rows.Splice({first, removed, inserted, static_cast<int>(m_texts.size())}, most, m_widths,
                      [this](int row) { return std::wstring_view(m_texts[static_cast<std::size_t>(row)]); });
    }
    /// Plain rows are 20 high, a line adds 12.
    void Wrap(int width) {
        std::vector<int> heights;
        for (int lines = 0; lines <= m_rows.Most(); ++lines)
            heights.push_back(20 + 12 * lines);
        m_rows.Wrap(width, heights);
    }
    std::vector<int> Lines() const {
        std::vector<int> lines;
        for (int row = 0; row < m_rows.Heights().Count(); ++row)
            lines.push_back(m_rows.Heights().KindOf(row));
        return lines;
    }

    std::vector<std::wstring> m_texts;
    textwrap::CharWidths m_widths;
    PreviewRows m_rows;
};

TEST_F(PreviewRowsTest, ARowHasAsManyLinesAsItsTextNeeds) {
    m_texts = {L"", L"one ten three", L" \n ", L"a\nb", L"aaaa bbbb cccc dddd eeee"};
    Measure();
    Wrap(130);
    EXPECT_EQ(Lines(), (std::vector<int>{0, 1, 0, 2, 3}));
    EXPECT_EQ(m_rows.Heights().TotalHeight(), 20 + 32 + 20 + 44 + 56);
    Wrap(70);
    EXPECT_EQ(Lines(), (std::vector<int>{0, 2, 0, 2, 3})) << "five lines are more than there may be";
    Wrap(0);
    EXPECT_EQ(Lines(), (std::vector<int>{0, 3, 0, 3, 3})) << "no room for a character: all that there may be";
    Wrap(1000);
    EXPECT_EQ(Lines(), (std::vector<int>{0, 1, 0, 2, 1}));
}

TEST_F(PreviewRowsTest, WithoutTextsThereIsNothingToKeep) {
    m_texts = {L"", L""};
    Measure();
    Wrap(100);
    EXPECT_FALSE(m_rows.HasPreviews());
    EXPECT_EQ(m_rows.Heights().Count(), 0);
}

TEST_F(PreviewRowsTest, OneLineIsTheLeastThatThereMayBe) {
    m_texts = {L"aaaa bbbb", L""};
    Measure(1);
    Wrap(40);
    EXPECT_EQ(Lines(), (std::vector<int>{1, 0}));
}

TEST_F(PreviewRowsTest, OtherHeightsInTheSameWidthCostNoWrapping) {
    m_texts = {L"aaaa bbbb", L""};
    Measure();
    Wrap(40);
    m_rows.Wrap(40, {10, 15, 20, 25});
    EXPECT_EQ(m_rows.Heights().TotalHeight(), 20 + 10);
}

TEST_F(PreviewRowsTest, WhenReadingATextFailsThereAreNoRows) {
    m_texts = {L"a", L"b"};
    Measure();
    Wrap(40);
    EXPECT_THROW(m_rows.Splice({1, 0, 2, 4}, 3, m_widths,
                               [](int row) -> std::wstring_view {
                                   if (row == 2)
                                       throw std::bad_alloc();
                                   return L"a";
                               }),
                 std::bad_alloc);
    EXPECT_FALSE(m_rows.HasPreviews());
}

TEST_F(PreviewRowsTest, TheFirstPreviewMayComeLate) {
    m_texts = {L"", L"", L""};
    Measure();
    m_texts.insert(m_texts.begin() + 1, L"aaaa bbbb");
    Splice(1, 0, 1);
    Wrap(40);
    EXPECT_EQ(Lines(), (std::vector<int>{0, 2, 0, 0}));
    m_texts.erase(m_texts.begin() + 1);
    Splice(1, 1, 0);
    EXPECT_EQ(Lines(), (std::vector<int>{0, 0, 0}));
}

/// Against wrapping every text anew, while rows come and go and the width changes.
TEST_F(PreviewRowsTest, LinesAreThoseOfWrappingEveryTextAnew) {
    std::mt19937 random(3);
    const auto below = [&random](int limit) { return std::uniform_int_distribution<int>(0, limit - 1)(random); };
    const auto text = [&] {
        std::wstring made;
        for (int length = below(3) * below(40); length > 0; --length)
            made += below(5) == 0 ? (below(8) == 0 ? L'\n' : L' ') : L'x';
        return made;
    };
    for (int row = 0; row < 200; ++row)
        m_texts.push_back(text());
    Measure(4);
    textwrap::Wrapper wrapper(m_widths);
    for (int round = 0; round < 200; ++round) {
        const int width = 10 + 10 * below(30);
        Wrap(width);
        const int first = below(static_cast<int>(m_texts.size()) + 1);
        const int removed = below(std::min(static_cast<int>(m_texts.size()) - first, 4) + 1), inserted = below(4);
        m_texts.erase(m_texts.begin() + first, m_texts.begin() + first + removed);
        for (int i = 0; i < inserted; ++i)
            m_texts.insert(m_texts.begin() + first, text());
        Splice(first, removed, inserted);
        std::vector<int> expected;
        for (const std::wstring& each : m_texts)
            expected.push_back(wrapper.CountLines(each, width, 4));
        ASSERT_EQ(Lines(), expected);
    }
}

} // namespace
