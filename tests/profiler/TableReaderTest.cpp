// Whole files: types, missing cells, and what is told of odd ones.
#include "csv/TableReader.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

namespace {

using csv::Column;
using csv::ColumnType;
using csv::ReadResult;
using testing::ElementsAre;
using testing::IsEmpty;

ReadResult Read(const std::string& bytes, const csv::ReadOptions& options = {}) {
    csv::MemorySource source(bytes);
    return csv::ReadTable(source, "t.csv", options);
}

std::vector<std::string> Texts(const ReadResult& result) {
    std::vector<std::string> texts;
    for (const csv::Message& message : result.messages)
        texts.push_back(Text(message));
    return texts;
}

std::vector<std::string> Names(const ReadResult& result) {
    std::vector<std::string> names;
    for (const Column& column : result.table.columns)
        names.push_back(column.name);
    return names;
}

/// The cells of a column as texts; "" is missing.
std::vector<std::string> Cells(const Column& column) {
    std::vector<std::string> cells;
    for (const double number : column.numbers)
        cells.push_back(std::isnan(number) ? "" : std::to_string(number).substr(0, 4));
    for (const std::uint32_t id : column.textIds)
        cells.push_back(id == Column::kNoText ? "" : std::string(column.texts[id].text));
    return cells;
}

TEST(TableReader, NumbersTextsAndDates) {
    const ReadResult result = Read("n,t,d\n1.50,x,2024-01-02\n2.50,y,2024-01-01\n");
    ASSERT_EQ(result.outcome, ReadResult::Outcome::Read);
    EXPECT_THAT(result.messages, IsEmpty());
    EXPECT_EQ(result.table.rows, 2u);
    EXPECT_EQ(result.table.delimiter, ',');
    ASSERT_THAT(Names(result), ElementsAre("n", "t", "d"));
    EXPECT_EQ(result.table.columns[0].type, ColumnType::Number);
    EXPECT_EQ(result.table.columns[1].type, ColumnType::Text);
    EXPECT_EQ(result.table.columns[2].type, ColumnType::Date);
    EXPECT_THAT(Cells(result.table.columns[0]), ElementsAre("1.50", "2.50"));
    EXPECT_THAT(Cells(result.table.columns[2]), ElementsAre("2024-01-02", "2024-01-01"));
}

TEST(TableReader, MissingCells) {
    const ReadResult result = Read("n,t,e,d\n1.25,x,,2024-01-02\n,,NA,NA\nNaN,null,,-\n-,-,,\n");
    EXPECT_THAT(result.messages, IsEmpty());
    EXPECT_THAT(Cells(result.table.columns[0]), ElementsAre("1.25", "", "", ""));
    EXPECT_EQ(result.table.columns[0].missing, 3u);
    // A dash is a text among texts.
    EXPECT_THAT(Cells(result.table.columns[1]), ElementsAre("x", "", "", "-"));
    EXPECT_EQ(result.table.columns[1].missing, 2u);
    EXPECT_EQ(result.table.columns[2].type, ColumnType::Empty);
    EXPECT_EQ(result.table.columns[2].missing, 4u);
    EXPECT_THAT(Cells(result.table.columns[3]), ElementsAre("2024-01-02", "", "", ""));
    EXPECT_EQ(result.table.columns[3].missing, 3u);
}

TEST(TableReader, BlanksAreTakenOffPlainTextsOnly) {
    const ReadResult result = Read("t,u\n x ,\" x \"\n");
    EXPECT_THAT(Cells(result.table.columns[0]), ElementsAre("x"));
    EXPECT_THAT(Cells(result.table.columns[1]), ElementsAre(" x "));
}

TEST(TableReader, DecimalCommas) {
    const ReadResult result = Read("a;b\n1,25;1.234,5\n2,25;2.345\n");
    EXPECT_EQ(result.table.delimiter, ';');
    EXPECT_THAT(result.table.columns[0].numbers, ElementsAre(1.25, 2.25));
    EXPECT_THAT(result.table.columns[1].numbers, ElementsAre(1234.5, 2345));
    EXPECT_EQ(result.table.columns[1].decimalMark, csv::DecimalMark::Comma);
    EXPECT_THAT(Read("a,b\n\"1,5\",2.5\n\"2,5\",3.5\n").table.columns[0].numbers, ElementsAre(1.5, 2.5));
}

TEST(TableReader, ATextWhereNumbersAreExpectedIsMissingAndTold) {
    const ReadResult result = Read("a,b\n1,2\n3,x\n5,6\n7,8\n");
    EXPECT_EQ(result.outcome, ReadResult::Outcome::Read);
    EXPECT_EQ(result.table.columns[1].type, ColumnType::Number);
    EXPECT_EQ(result.table.columns[1].missing, 1u);
    EXPECT_THAT(Texts(result),
                ElementsAre("t.csv, line 3, column \"b\": \"x\" is not a number. It counts as missing."));
    EXPECT_EQ(result.messages[0].severity, csv::Severity::Warning);
    EXPECT_EQ(result.messages[0].line, 3u);
}

TEST(TableReader, TheSameUnreadableTextIsToldOnce) {
    const ReadResult two = Read("a\n1\n2\nx\n4\nx\n6\n7\n");
    EXPECT_THAT(Texts(two),
                ElementsAre("t.csv, line 4, column \"a\": \"x\" is not a number. It counts as missing, here "
                            "and in 1 more row."));
    const ReadResult three = Read("a\n1\n2\nx\n4\nx\n6\nx\n8\n9\n");
    EXPECT_THAT(Texts(three), ElementsAre("t.csv, line 4, column \"a\": \"x\" is not a number. It counts as missing, "
                                          "here and in 2 more rows."));
    EXPECT_EQ(three.table.columns[0].missing, 3u);
}

TEST(TableReader, TheLineIsThatOfTheCellItself) {
    const ReadResult result = Read("t,n\n\"two\nlines\",x\n\ny,1\ny,2\n");
    EXPECT_THAT(Texts(result),
                ElementsAre("t.csv, line 3, column \"n\": \"x\" is not a number. It counts as missing."));
}

TEST(TableReader, InfinityIsMissingAndTold) {
    const ReadResult result = Read("a\n1\ninf\n1e999\n4\n5\n");
    EXPECT_EQ(result.table.columns[0].missing, 2u);
    EXPECT_THAT(Texts(result),
                ElementsAre("t.csv, line 3, column \"a\": \"inf\" is infinite or too large. It counts as missing.",
                            "t.csv, line 4, column \"a\": \"1e999\" is infinite or too large. It counts as missing."));
}

TEST(TableReader, AWrongDateIsMissingAndTold) {
    const ReadResult result = Read("d\n2024-01-01\n2024-02-30\n2024-03-01\n");
    EXPECT_EQ(result.table.columns[0].type, ColumnType::Date);
    EXPECT_THAT(Cells(result.table.columns[0]), ElementsAre("2024-01-01", "", "2024-03-01"));
    EXPECT_EQ(result.table.columns[0].texts.Size(), 2u);
    EXPECT_THAT(Texts(result), ElementsAre("t.csv, line 3, column \"d\": \"2024-02-30\" is not a date like 2024-12-31. "
                                           "It counts as missing."));
}

TEST(TableReader, FewerThanTwoThirdsNumbersMakeTexts) {
    const ReadResult result = Read("a,b\n1,1\nx,x\n");
    EXPECT_EQ(result.table.columns[0].type, ColumnType::Text);
    EXPECT_THAT(result.messages, IsEmpty());
}

/// A column that is all numbers in the sample and something else below it.
ReadResult ReadWithSmallSample(const std::string& bytes) {
    csv::ReadOptions options;
    options.sample = 16;
    options.chunk = 8;
    return Read(bytes, options);
}

TEST(TableReader, AColumnThatOnlyBeginsLikeNumbersIsReadAgainAsTexts) {
    std::string bytes = "a,b\n1,1\n2,2\n3,3\n4,4\n";
    for (int i = 0; i < 20; ++i)
        bytes += "x" + std::to_string(i % 3) + ",5\n";
    const ReadResult result = ReadWithSmallSample(bytes);
    ASSERT_EQ(result.outcome, ReadResult::Outcome::Read);
    EXPECT_THAT(result.messages, IsEmpty());
    EXPECT_EQ(result.table.rows, 24u);
    EXPECT_EQ(result.table.columns[0].type, ColumnType::Text);
    EXPECT_EQ(result.table.columns[0].texts.Size(), 7u);
    EXPECT_EQ(Cells(result.table.columns[0])[0], "1");
    EXPECT_EQ(Cells(result.table.columns[0])[23], "x1");
    EXPECT_EQ(result.table.columns[1].type, ColumnType::Number);
    EXPECT_EQ(result.table.columns[1].numbers.size(), 24u);
}

TEST(TableReader, ReadingAgainTellsNothingTwice) {
    std::string bytes = "a,b\n1,1\n2,2\n3,3\n4\n";
    for (int i = 0; i < 20; ++i)
        bytes += "x,5\n";
    const ReadResult result = ReadWithSmallSample(bytes);
    EXPECT_THAT(Texts(result),
                ElementsAre("t.csv, line 5: 1 field where the header has 2. The others count as missing."));
}

TEST(TableReader, AColumnThatBeginsWithoutValuesIsDecidedLater) {
    std::string bytes = "a,b,c\n,,\n,,\n,,\n,,\n";
    for (int i = 0; i < 20; ++i)
        bytes += "1.5,x,2024-01-01\n";
    const ReadResult result = ReadWithSmallSample(bytes);
    EXPECT_EQ(result.table.columns[0].type, ColumnType::Number);
    EXPECT_EQ(result.table.columns[0].missing, 4u);
    EXPECT_EQ(result.table.columns[0].numbers.size(), 24u);
    EXPECT_EQ(result.table.columns[1].type, ColumnType::Text);
    EXPECT_EQ(result.table.columns[1].textIds.size(), 24u);
    EXPECT_EQ(result.table.columns[2].type, ColumnType::Date);
}

TEST(TableReader, AColumnThatBeginsLikeTextsMayBeOneOfNumbers) {
    std::string bytes = "a,b\nx,1\ny,2\nz,3\n";
    for (int i = 0; i < 20; ++i)
        bytes += "1.5,4\n";
    const ReadResult result = ReadWithSmallSample(bytes);
    EXPECT_EQ(result.table.columns[0].type, ColumnType::Number);
    EXPECT_EQ(result.table.columns[0].missing, 3u);
    EXPECT_EQ(Cells(result.table.columns[0])[3], "1.50");
    EXPECT_EQ(result.messages.size(), 3u);
}

TEST(TableReader, RaggedRowsAreKeptAndTold) {
    const ReadResult result = Read("a,b,c\n1,2,3\n4,5\n6,7,8,9,10\n11,12,13\n");
    EXPECT_EQ(result.table.rows, 4u);
    EXPECT_THAT(result.table.columns[0].numbers, ElementsAre(1, 4, 6, 11));
    EXPECT_EQ(Cells(result.table.columns[2])[1], "");
    EXPECT_EQ(result.table.columns[2].missing, 1u);
    EXPECT_EQ(result.table.columns.size(), 3u);
    EXPECT_THAT(Texts(result),
                ElementsAre("t.csv, line 3: 2 fields where the header has 3. The others count as missing.",
                            "t.csv, line 4: 5 fields where the header has 3. The last ones are left out."));
}

TEST(TableReader, BlankLinesAreNoRows) {
    const ReadResult result = Read("\n\na,b\n\n1,2\n  \n3,4\n\n");
    EXPECT_EQ(result.table.rows, 2u);
    EXPECT_THAT(result.messages, IsEmpty());
}

TEST(TableReader, NamesAreMadeUniqueAndComplete) {
    const ReadResult result = Read("a, a ,,a,\"two\nlines\"\n1,2,3,4,5\n");
    EXPECT_THAT(Names(result), ElementsAre("a", "a (2)", "Column 3", "a (3)", "two lines"));
    EXPECT_THAT(Texts(result), ElementsAre("t.csv, line 1: the name \"a\" comes again. Column 2 is called \"a (2)\".",
                                           "t.csv, line 1: column 3 has no name. It is called \"Column 3\".",
                                           "t.csv, line 1: the name \"a\" comes again. Column 4 is called \"a (3)\"."));
}

TEST(TableReader, NamesThatAreNumbersAreTold) {
    const ReadResult result = Read("1,2.5\n3,4\n");
    EXPECT_THAT(Names(result), ElementsAre("1", "2.5"));
    EXPECT_THAT(Texts(result), ElementsAre("t.csv, line 1: the names of the columns are numbers. If this line is data, "
                                           "put a line with names above it."));
}

TEST(TableReader, ADeclarationOfTheDelimiterIsNoHeader) {
    const ReadResult result = Read("sep=;\r\na;b\r\n1;2\r\n");
    EXPECT_THAT(Names(result), ElementsAre("a", "b"));
    EXPECT_EQ(result.table.rows, 1u);
    EXPECT_THAT(result.messages, IsEmpty());
}

TEST(TableReader, OnlyAHeaderIsReadAndTold) {
    for (const char* bytes : {"a,b", "a,b\n", "a,b\r\n\r\n"}) {
        const ReadResult result = Read(bytes);
        EXPECT_EQ(result.outcome, ReadResult::Outcome::Read);
        EXPECT_THAT(Names(result), ElementsAre("a", "b"));
        EXPECT_EQ(result.table.rows, 0u);
        EXPECT_EQ(result.table.columns[0].type, ColumnType::Empty);
        EXPECT_THAT(Texts(result),
                    ElementsAre("t.csv, line 1: only a header, no rows below it. There is nothing to compute."));
    }
}

void ExpectError(const std::string& bytes, const char* text) {
    const ReadResult result = Read(bytes);
    EXPECT_EQ(result.outcome, ReadResult::Outcome::Failed);
    EXPECT_TRUE(result.table.columns.empty());
    ASSERT_EQ(result.messages.size(), 1u);
    EXPECT_EQ(result.messages[0].severity, csv::Severity::Error);
    EXPECT_EQ(Text(result.messages[0]), text);
}

TEST(TableReader, AnEmptyFileIsTold) {
    ExpectError("", "t.csv, line 1: the file is empty. Its first line must name the columns.");
    ExpectError("\xEF\xBB\xBF", "t.csv, line 1: the file is empty. Its first line must name the columns.");
    ExpectError("\n\r\n \n", "t.csv, line 1: there is nothing but blank lines. The first line must name the columns.");
}

TEST(TableReader, Utf16IsTold) {
    const char* const text = "t.csv, line 1: the file is UTF-16 text. Save it as UTF-8 and open it again.";
    ExpectError(std::string("\xFF\xFE"
                            "a\0,\0b\0\n\0",
                            10),
                text);
    ExpectError(std::string("\xFE\xFF\0a\0,\0b\0\n", 10), text);
    ExpectError(std::string("a\0,\0b\0\n\0", 8), text);
    ExpectError(std::string("\0a\0,\0b\0\n", 8), text);
}

TEST(TableReader, AFileThatIsNoTextIsTold) {
    ExpectError(std::string("PK\3\4\n\24\0\6\0\10\0", 11),
                "t.csv, line 2: zero bytes, so this is not a text file. Export its table as CSV and open that.");
}

TEST(TableReader, WrongUtf8IsReplacedAndTold) {
    const ReadResult result = Read("n\xE4me,b\nM\xFCller,1\nMeier,2\n");
    EXPECT_THAT(Names(result), ElementsAre("n\uFFFDme", "b"));
    EXPECT_THAT(Cells(result.table.columns[0]), ElementsAre("M\uFFFDller", "Meier"));
    EXPECT_THAT(Texts(result),
                ElementsAre("t.csv, line 1: the name of column 1 has characters that are not UTF-8 and are shown as "
                            "\uFFFD. Save the file as UTF-8 to see them.",
                            "t.csv, line 2, column \"n\uFFFDme\": some characters are not UTF-8 and are shown as "
                            "\uFFFD. Save the file as UTF-8 to see them."));
}

TEST(TableReader, OddQuotesAreTold) {
    const ReadResult result = Read("a,b\n\"x\"y,1\nz,\"2\nq,3\nr,4\n");
    EXPECT_EQ(result.table.rows, 4u);
    EXPECT_THAT(Cells(result.table.columns[0]), ElementsAre("xy", "z", "q", "r"));
    EXPECT_THAT(Texts(result),
                ElementsAre("t.csv, line 2: there is text behind a closing quotation mark. It is kept as part of the "
                            "field.",
                            "t.csv, line 3: a quotation mark is opened and never closed. It is taken as an ordinary "
                            "character.",
                            "t.csv, line 3, column \"b\": \"\"2\" is not a number. It counts as missing."));
}

TEST(TableReader, ALongListOfOddRowsIsCutAndCounted) {
    std::string bytes = "a,b\n";
    for (int i = 0; i < 1000; ++i)
        bytes += "1\n1,2\n";
    const ReadResult result = Read(bytes);
    ASSERT_EQ(result.messages.size(), 51u);
    EXPECT_EQ(Text(result.messages.back()), "t.csv: 950 more messages like these are not listed.");
}

TEST(TableReader, UnreadableCellsWithoutEndAreCutAndCounted) {
    std::string bytes = "a\n";
    for (int i = 0; i < 3000; ++i)
        bytes += "1\n2\n3\nx" + std::to_string(i) + "\n";
    const ReadResult result = Read(bytes);
    EXPECT_EQ(result.table.columns[0].missing, 3000u);
    ASSERT_EQ(result.messages.size(), 51u);
    EXPECT_EQ(Text(result.messages.back()), "t.csv: 2950 more messages like these are not listed.");
}

TEST(TableReader, ProgressRisesFromZeroToOneAndCountsTheRows) {
    std::string bytes = "a,b\n1,1\n2,2\n3,3\n4,4\n";
    for (int i = 0; i < 100; ++i)
        bytes += "x,5\n";
    std::vector<double> fractions;
    std::vector<std::size_t> rows;
    csv::ReadOptions options;
    options.sample = 16;
    options.chunk = 32;
    options.progress = [&](const csv::ReadState& state) {
        fractions.push_back(state.fraction);
        rows.push_back(state.rows);
        return true;
    };
    EXPECT_EQ(Read(bytes, options).outcome, ReadResult::Outcome::Read);
    ASSERT_GT(fractions.size(), 10u);
    EXPECT_TRUE(std::is_sorted(fractions.begin(), fractions.end()));
    EXPECT_EQ(fractions.front(), 0);
    EXPECT_EQ(fractions.back(), 1);
    // The file is read twice, because its first column only begins like numbers; rows are counted once.
    EXPECT_TRUE(std::is_sorted(rows.begin(), rows.end()));
    EXPECT_EQ(rows.front(), 0u);
    EXPECT_TRUE(std::any_of(rows.begin(), rows.end(), [](std::size_t count) { return count > 0 && count < 104; }));
    EXPECT_EQ(rows.back(), 104u);
}

TEST(TableReader, GivingUpEndsTheReadingAtAnyPoint) {
    std::string bytes = "a,b\n1,1\n2,2\n3,3\n4,4\n";
    for (int i = 0; i < 50; ++i)
        bytes += "x,5\n";
    for (int patience = 0; patience < 12; ++patience) {
        int calls = 0;
        csv::ReadOptions options;
        options.sample = 16;
        options.chunk = 32;
        options.progress = [&](const csv::ReadState&) { return ++calls <= patience; };
        const ReadResult result = Read(bytes, options);
        EXPECT_EQ(result.outcome, ReadResult::Outcome::Cancelled);
        EXPECT_TRUE(result.table.columns.empty());
        EXPECT_THAT(result.messages, IsEmpty());
        EXPECT_EQ(calls, patience + 1);
    }
}

/// A file that another program makes shorter between the first pass and the second.
class ShrinkingSource : public csv::ByteSource {
public:
    explicit ShrinkingSource(std::string bytes) : m_source(std::move(bytes)) {}
    std::optional<std::size_t> Read(char* to, std::size_t size) override { return m_source.Read(to, size); }
    bool Rewind() override {
        if (++m_rewinds == 2)
            m_source = csv::MemorySource("a,b\n1,2\n");
        return m_source.Rewind();
    }
    std::uint64_t Size() const override { return m_source.Size(); }

private:
    csv::MemorySource m_source;
    int m_rewinds = 0;
};

TEST(TableReader, AFileThatChangesWhileItIsReadIsTold) {
    std::string bytes = "a,b\n1,1\n2,2\n3,3\n4,4\n";
    for (int i = 0; i < 50; ++i)
        bytes += "x,5\n";
    ShrinkingSource source(bytes);
    csv::ReadOptions options;
    options.sample = 16;
    const ReadResult result = csv::ReadTable(source, "t.csv", options);
    EXPECT_EQ(result.outcome, ReadResult::Outcome::Failed);
    EXPECT_THAT(Texts(result), ElementsAre("t.csv, line 3: the file was changed while it was read. Open it again."));
}

TEST(TableReader, ManyRowsKeepTheirOrder) {
    std::string bytes = "n,t\n";
    for (int i = 0; i < 50000; ++i)
        bytes += std::to_string(i) + (i % 2 == 0 ? ",even\n" : ",odd\n");
    const ReadResult result = Read(bytes);
    ASSERT_EQ(result.table.rows, 50000u);
    for (std::size_t i = 0; i < 50000; ++i)
        ASSERT_EQ(result.table.columns[0].numbers[i], static_cast<double>(i));
    EXPECT_EQ(result.table.columns[1].texts.Size(), 2u);
    // No more room is kept than the rows need.
    EXPECT_LT(result.table.columns[0].numbers.capacity(), 53000u);
    EXPECT_LT(result.table.columns[1].textIds.capacity(), 53000u);
}

} // namespace
