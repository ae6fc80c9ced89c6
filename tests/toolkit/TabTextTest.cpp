// Tables as text, as spreadsheets copy and paste them.
#include "report/TabText.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using tabtext::Parse;
using tabtext::Row;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

std::wstring Written(const std::vector<Row>& rows) {
    std::wstring text;
    for (const Row& row : rows) {
        tabtext::RowWriter writer(text);
        for (const std::wstring& cell : row)
            writer.Add(cell);
        writer.End();
    }
    return text;
}

TEST(TabText, CellsArePartedByTabsAndRowsEndWithALineBreak) {
    EXPECT_EQ(Written({{L"a", L"b c"}, {L"", L"1,5"}}), L"a\tb c\r\n\t1,5\r\n");
    EXPECT_EQ(Written({{}}), L"\r\n");
    EXPECT_EQ(Written({}), L"");
}

TEST(TabText, CellsThatWouldBreakTheTableAreQuoted) {
    EXPECT_EQ(Written({{L"a\tb", L"c\nd", L"e\rf"}}), L"\"a\tb\"\t\"c\nd\"\t\"e\rf\"\r\n");
    EXPECT_EQ(Written({{L"say \"x\"", L"\""}}), L"\"say \"\"x\"\"\"\t\"\"\"\"\r\n");
    EXPECT_EQ(Written({{L"it's; fine, too"}}), L"it's; fine, too\r\n");
}

TEST(TabText, LineBreaksOfEveryKindEndARow) {
    EXPECT_THAT(Parse(L"a\tb\r\nc\nd\re"), ElementsAre(Row{L"a", L"b"}, Row{L"c"}, Row{L"d"}, Row{L"e"}));
}

TEST(TabText, ALineBreakAtTheEndBeginsNoRow) {
    EXPECT_THAT(Parse(L"a\r\n"), ElementsAre(Row{L"a"}));
    EXPECT_THAT(Parse(L"a\r\n\r\n"), ElementsAre(Row{L"a"}, Row{L""}));
    EXPECT_THAT(Parse(L""), IsEmpty());
}

TEST(TabText, EmptyCellsStay) { EXPECT_THAT(Parse(L"\t\tx\t"), ElementsAre(Row{L"", L"", L"x", L""})); }

TEST(TabText, QuotedCellsHoldTabsLineBreaksAndQuotationMarks) {
    EXPECT_THAT(Parse(L"\"a\tb\"\t\"c\r\nd\"\r\n\"say \"\"x\"\"\""),
                ElementsAre(Row{L"a\tb", L"c\r\nd"}, Row{L"say \"x\""}));
    EXPECT_THAT(Parse(L"\"\"\t\"\"\"\""), ElementsAre(Row{L"", L"\""}));
}

TEST(TabText, QuotationMarksWithinACellAreCharacters) {
    EXPECT_THAT(Parse(L"5\" \tx"), ElementsAre(Row{L"5\" ", L"x"}));
}

TEST(TabText, WhatFollowsAQuotedPartBelongsToTheCell) {
    EXPECT_THAT(Parse(L"\"a\"b\tc"), ElementsAre(Row{L"ab", L"c"}));
}

TEST(TabText, AQuotedCellWithoutAnEndGoesToTheEndOfTheText) {
    EXPECT_THAT(Parse(L"\"a\tb\r\nc"), ElementsAre(Row{L"a\tb\r\nc"}));
    EXPECT_THAT(Parse(L"\""), ElementsAre(Row{L""}));
}

TEST(TabText, WhatIsWrittenIsReadBack) {
    const std::vector<Row> rows{{L"a", L"", L"b\tc"}, {L"\"", L"\r\n", L"\"\""}, {L"", L"", L""}, {L"x", L"y", L"z\""}};
    EXPECT_EQ(Parse(Written(rows)), rows);
}

} // namespace
