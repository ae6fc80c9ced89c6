// Records and fields, whatever the quotes, line ends and chunk sizes.
#include "csv/RecordReader.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

namespace {

using csv::Record;
using csv::RecordReader;
using Rows = std::vector<std::vector<std::string>>;
using Step = RecordReader::Step;

struct Everything {
    Rows rows;
    std::vector<std::size_t> lines;
    std::vector<std::size_t> openQuotes;
    std::vector<std::size_t> afterQuotes;
    Step last = Step::End;
};

Everything ReadAll(const std::string& bytes, char delimiter = ',', std::size_t chunk = RecordReader::kChunk,
                   std::size_t longest = RecordReader::kLongestRecord) {
    csv::MemorySource source(bytes);
    RecordReader reader(source, delimiter, chunk, longest);
    Everything all;
    Record record;
    while ((all.last = reader.Next(record)) == Step::Record) {
        all.rows.emplace_back();
        for (const csv::Field& field : record.fields)
            all.rows.back().emplace_back(field.text);
        all.lines.push_back(record.line);
        if (record.openQuoteLine != 0)
            all.openQuotes.push_back(record.openQuoteLine);
        if (record.afterQuoteLine != 0)
            all.afterQuotes.push_back(record.afterQuoteLine);
    }
    EXPECT_TRUE(all.last != Step::End || reader.Consumed() == bytes.size());
    return all;
}

TEST(RecordReader, FieldsAndRecords) {
    EXPECT_EQ(ReadAll("a,b\n1,2\n").rows, (Rows{{"a", "b"}, {"1", "2"}}));
    EXPECT_EQ(ReadAll("a;b\n1;2,5", ';').rows, (Rows{{"a", "b"}, {"1", "2,5"}}));
    EXPECT_EQ(ReadAll("a\tb\n", '\t').rows, (Rows{{"a", "b"}}));
}

TEST(RecordReader, EveryEndOfLine) {
    const Rows expected{{"a", "b"}, {"1", "2"}, {"3", "4"}};
    EXPECT_EQ(ReadAll("a,b\n1,2\n3,4\n").rows, expected);
    EXPECT_EQ(ReadAll("a,b\r\n1,2\r\n3,4\r\n").rows, expected);
    EXPECT_EQ(ReadAll("a,b\r1,2\r3,4\r").rows, expected);
    EXPECT_EQ(ReadAll("a,b\r1,2\n3,4").rows, expected);
}

TEST(RecordReader, TheLastEndOfLineMayBeMissing) {
    EXPECT_EQ(ReadAll("a,b\n1,").rows, (Rows{{"a", "b"}, {"1", ""}}));
    EXPECT_EQ(ReadAll("a\n\"1\"").rows, (Rows{{"a"}, {"1"}}));
}

TEST(RecordReader, EmptyFieldsAreFields) {
    EXPECT_EQ(ReadAll(",,\n").rows, (Rows{{"", "", ""}}));
    EXPECT_EQ(ReadAll("\"\"\n").rows, (Rows{{""}}));
}

TEST(RecordReader, QuotedFieldsHoldDelimitersQuotesAndLineEnds) {
    EXPECT_EQ(ReadAll("\"a,b\",\"say \"\"hi\"\"\",\"two\r\nlines\"\nx\n").rows,
              (Rows{{"a,b", "say \"hi\"", "two\r\nlines"}, {"x"}}));
    EXPECT_EQ(ReadAll("\"\"\"\",\"\"\"\"\"\"\n").rows, (Rows{{"\"", "\"\""}}));
}

TEST(RecordReader, AQuoteInsideAPlainFieldIsACharacter) {
    EXPECT_EQ(ReadAll("5\",a\"b\"c,\n").rows, (Rows{{"5\"", "a\"b\"c", ""}}));
    EXPECT_EQ(ReadAll("x, \"y\"\n").rows, (Rows{{"x", " \"y\""}}));
}

TEST(RecordReader, TextBehindAClosingQuoteIsKeptAndTold) {
    const Everything all = ReadAll("a\n\"x\"y\"z,1\n\"q\"\"r\" s\n");
    EXPECT_EQ(all.rows, (Rows{{"a"}, {"xy\"z", "1"}, {"q\"r s"}}));
    EXPECT_EQ(all.afterQuotes, (std::vector<std::size_t>{2, 3}));
}

TEST(RecordReader, BlanksBehindAClosingQuoteAreDropped) {
    const Everything all = ReadAll("\"x\" \t,\"y\"\n");
    EXPECT_EQ(all.rows, (Rows{{"x", "y"}}));
    EXPECT_TRUE(all.afterQuotes.empty());
}

TEST(RecordReader, BlankLinesAreSkippedAndCounted) {
    const Everything all = ReadAll("\n \t \na\n\n\r\nb\n\n");
    EXPECT_EQ(all.rows, (Rows{{"a"}, {"b"}}));
    EXPECT_EQ(all.lines, (std::vector<std::size_t>{3, 6}));
}

TEST(RecordReader, LinesAreCountedThroughQuotedFields) {
    const Everything all = ReadAll("\"1\n2\r\n3\r4\"\nb\n\"\r\r\"\r\nc");
    EXPECT_EQ(all.lines, (std::vector<std::size_t>{1, 5, 6, 9}));
}

TEST(RecordReader, FieldsKnowTheirOwnLine) {
    csv::MemorySource source("\"a\nb\",\"c\n\",d\n");
    RecordReader reader(source, ',');
    Record record;
    ASSERT_EQ(reader.Next(record), Step::Record);
    ASSERT_EQ(record.fields.size(), 3u);
    EXPECT_EQ(record.fields[0].lineOffset, 0u);
    EXPECT_EQ(record.fields[1].lineOffset, 1u);
    EXPECT_EQ(record.fields[2].lineOffset, 2u);
    EXPECT_TRUE(record.fields[1].quoted);
    EXPECT_FALSE(record.fields[2].quoted);
}

TEST(RecordReader, AByteOrderMarkIsSkipped) {
    EXPECT_EQ(ReadAll("\xEF\xBB\xBF\"a\",b\n").rows, (Rows{{"a", "b"}}));
    EXPECT_EQ(ReadAll("\xEF\xBB\xBF").rows, Rows{});
}

TEST(RecordReader, NothingHasNoRecords) {
    EXPECT_EQ(ReadAll("").rows, Rows{});
    EXPECT_EQ(ReadAll("\n\r\n \n").rows, Rows{});
}

TEST(RecordReader, AQuoteThatIsNeverClosedIsACharacterAndTold) {
    const Everything all = ReadAll("h,i\n\"ok\n\",\"open\nb,2\nc,3\n");
    EXPECT_EQ(all.rows, (Rows{{"h", "i"}, {"ok\n", "\"open"}, {"b", "2"}, {"c", "3"}}));
    EXPECT_EQ(all.openQuotes, (std::vector<std::size_t>{3}));
    EXPECT_EQ(all.lines, (std::vector<std::size_t>{1, 2, 4, 5}));
}

TEST(RecordReader, AQuoteNotClosedWithinTheLongestRecordIsACharacter) {
    std::string bytes = "a\n\"open\n";
    for (int i = 0; i < 100; ++i)
        bytes += "12345678\n";
    bytes += "late\"\n";
    const Everything all = ReadAll(bytes, ',', 16, 200);
    ASSERT_EQ(all.rows.size(), 103u);
    EXPECT_EQ(all.rows[1], (std::vector<std::string>{"\"open"}));
    EXPECT_EQ(all.rows[2], (std::vector<std::string>{"12345678"}));
    EXPECT_EQ(all.openQuotes, (std::vector<std::size_t>{2}));
}

TEST(RecordReader, ALineLongerThanTheLongestRecordEndsTheReading) {
    const Everything all = ReadAll("a\n" + std::string(1000, 'x') + "\nb\n", ',', 16, 200);
    EXPECT_EQ(all.rows, (Rows{{"a"}}));
    EXPECT_EQ(all.last, Step::TooLong);
}

TEST(RecordReader, HugeFieldsAreRead) {
    const std::string huge(3 << 20, 'y');
    EXPECT_EQ(ReadAll("a,\"" + huge + "\n\"\"\"\n1,2\n").rows, (Rows{{"a", huge + "\n\""}, {"1", "2"}}));
}

TEST(RecordReader, EveryChunkSizeReadsTheSame) {
    const std::string bytes = "\xEF\xBB\xBF"
                              "a,\"b \"\"quoted\"\"\",c\r\n\r\n1,\"two\r\nlines\",\"\"\r\"x\"y,,\n\"\"\"\",z,\"never";
    const Everything expected = ReadAll(bytes);
    ASSERT_EQ(expected.rows.size(), 4u);
    for (std::size_t chunk = 1; chunk <= bytes.size(); ++chunk) {
        SCOPED_TRACE(chunk);
        const Everything all = ReadAll(bytes, ',', chunk);
        EXPECT_EQ(all.rows, expected.rows);
        EXPECT_EQ(all.lines, expected.lines);
        EXPECT_EQ(all.openQuotes, expected.openQuotes);
        EXPECT_EQ(all.afterQuotes, expected.afterQuotes);
    }
}

/// A source whose every read past the first few bytes fails.
class FailingSource : public csv::ByteSource {
public:
    std::optional<std::size_t> Read(char* to, std::size_t size) override {
        if (m_failing || size == 0)
            return std::nullopt;
        m_failing = true;
        const std::string begin = "a,b\n1,2\n3";
        return begin.copy(to, size);
    }
    bool Rewind() override { return true; }
    std::uint64_t Size() const override { return 100; }

private:
    bool m_failing = false;
};

TEST(RecordReader, AFailingSourceIsTold) {
    FailingSource source;
    RecordReader reader(source, ',');
    Record record;
    EXPECT_EQ(reader.Next(record), Step::Record);
    EXPECT_EQ(reader.Next(record), Step::Record);
    EXPECT_EQ(reader.Next(record), Step::ReadError);
    EXPECT_EQ(reader.Line(), 3u);
}

std::string Quoted(const std::string& field) {
    std::string text = "\"";
    for (const char c : field)
        text += c == '"' ? "\"\"" : std::string(1, c);
    return text + "\"";
}

TEST(RecordReader, WhatIsWrittenByTheRulesIsReadBack) {
    std::mt19937 random(7);
    const std::string alphabet = "ab1.,;\t \"\"\r\n";
    for (int round = 0; round < 300; ++round) {
        Rows rows(1 + random() % 4, std::vector<std::string>(1 + random() % 4));
        std::string bytes;
        for (std::vector<std::string>& row : rows) {
            for (std::string& field : row) {
                for (std::size_t length = random() % 6; length > 0; --length)
                    field += alphabet[random() % alphabet.size()];
                bytes += (&field == &row.front() ? "" : ",") + Quoted(field);
            }
            bytes += random() % 2 == 0 ? "\n" : "\r\n";
        }
        ASSERT_EQ(ReadAll(bytes, ',', 1 + random() % 9).rows, rows) << bytes;
    }
}

TEST(RecordReader, AnyBytesAreReadTheSameInAnyChunks) {
    std::mt19937 random(11);
    const std::string alphabet("a1,\"\"\"\r\n \xFF\0", 11);
    for (int round = 0; round < 2000; ++round) {
        std::string bytes;
        for (std::size_t length = random() % 24; length > 0; --length)
            bytes += alphabet[random() % alphabet.size()];
        const Everything whole = ReadAll(bytes);
        const Everything chunked = ReadAll(bytes, ',', 1 + random() % 5);
        ASSERT_EQ(whole.rows, chunked.rows) << bytes;
        ASSERT_EQ(whole.lines, chunked.lines) << bytes;
        ASSERT_EQ(whole.openQuotes, chunked.openQuotes) << bytes;
    }
}

} // namespace
