// Delimiters and decimal marks are found from the beginning of a file.
#include "csv/Dialect.h"

#include <gtest/gtest.h>

namespace {

using csv::DecimalMark;
using csv::DetectDialect;
using csv::Dialect;

char Delimiter(std::string_view sample) { return DetectDialect(sample, true).delimiter; }

DecimalMark Mark(std::string_view sample, std::size_t column) {
    const Dialect dialect = DetectDialect(sample, true);
    return ChooseMark(dialect.columns.at(column), dialect);
}

TEST(Dialect, EachDelimiterIsFound) {
    EXPECT_EQ(Delimiter("a,b\n1,2\n"), ',');
    EXPECT_EQ(Delimiter("a;b\n1;2\n"), ';');
    EXPECT_EQ(Delimiter("a\tb\n1\t2\n"), '\t');
}

TEST(Dialect, DecimalCommasDoNotSeparate) {
    EXPECT_EQ(Delimiter("a;b;c\n1,5;2,5;3,5\n4,5;5,5;6,5\n"), ';');
    EXPECT_EQ(Delimiter("a\tb\n1,5\t2,5\n"), '\t');
    // Even where the header has commas as well: under the semicolon all cells are numbers.
    EXPECT_EQ(Delimiter("Temp, max;Temp, min\n12,8;5,0\n10,6;2,8\n"), ';');
}

TEST(Dialect, DelimitersInQuotesDoNotSeparate) {
    EXPECT_EQ(Delimiter("a,b\n\"x;y;z\",\"1;2;3\"\n\"p;q\",\"r;s\"\n"), ',');
    EXPECT_EQ(Delimiter("\"a;b\",c\n\"d;e\",1\n"), ',');
}

TEST(Dialect, ADelimiterInTextsOfSomeRecordsDoesNotWin) {
    EXPECT_EQ(Delimiter("name;note\nAnna;red, green, blue\nBert;white\nCarl;black, blue\n"), ';');
    EXPECT_EQ(Delimiter("name,note\nAnna,red; green\nBert,white\n"), ',');
}

TEST(Dialect, RaggedRecordsKeepTheDelimiter) {
    EXPECT_EQ(Delimiter("a,b,c\n1,2\n1,2,3\n1,2\n1,2\n"), ',');
    EXPECT_EQ(Delimiter("a,b,c\n1,2\n3,4\n"), ',');
}

TEST(Dialect, AFileOfOneColumnStaysWhole) {
    EXPECT_EQ(Delimiter("a\n1\n2\n"), ',');
    EXPECT_EQ(Delimiter("price\n1,5\n2,5\n"), ';');
    EXPECT_EQ(Delimiter("text, maybe long\nabc\ndef\n"), ';');
}

TEST(Dialect, OnlyAHeader) {
    EXPECT_EQ(Delimiter("a;b;c\n"), ';');
    EXPECT_EQ(Delimiter("a\tb"), '\t');
    EXPECT_EQ(Delimiter(""), ',');
}

TEST(Dialect, ADeclaredDelimiterCounts) {
    const Dialect dialect = DetectDialect("sep=;\na,x;b,y\n1,2;3,4\n", true);
    EXPECT_EQ(dialect.delimiter, ';');
    EXPECT_TRUE(dialect.declared);
    EXPECT_EQ(dialect.columns.size(), 2u);
    EXPECT_EQ(Delimiter("\xEF\xBB\xBFsep=|\r\na|b\r\n"), '|');
    EXPECT_FALSE(DetectDialect("sep=a\n1\n", true).declared);
    EXPECT_FALSE(DetectDialect("sep,b\n1,2\n", true).declared);
}

TEST(Dialect, ARecordCutByTheSamplesEndDoesNotCount) {
    const Dialect cut = DetectDialect("a,b\n1,2\n1,2\n1", false);
    EXPECT_EQ(cut.delimiter, ',');
    EXPECT_EQ(cut.columns[0].Present(), 2u);
    EXPECT_EQ(DetectDialect("a,b\n1,2\n1,2\n1", true).columns[0].Present(), 3u);
}

TEST(Dialect, TheMarkIsFoundPerColumn) {
    const char* const sample = "a;b;c\n1,5;0.5;3\n2,25;7.75;4\n";
    EXPECT_EQ(Mark(sample, 0), DecimalMark::Comma);
    EXPECT_EQ(Mark(sample, 1), DecimalMark::Point);
}

TEST(Dialect, QuotedDecimalCommasInCommaSeparatedFiles) {
    EXPECT_EQ(Mark("a,b\n\"1,5\",x\n\"2,5\",y\n", 0), DecimalMark::Comma);
    EXPECT_EQ(Mark("a,b\n\"0,125\",x\n\"0,250\",y\n", 0), DecimalMark::Comma);
}

TEST(Dialect, QuotedGroupedDigitsInCommaSeparatedFiles) {
    EXPECT_EQ(Mark("a,b\n\"1,234\",x\n\"2,345\",y\n", 0), DecimalMark::Point);
    EXPECT_EQ(Mark("a,b\n\"1,234.50\",x\n", 0), DecimalMark::Point);
}

TEST(Dialect, AnAmbiguousColumnFollowsItsFile) {
    EXPECT_EQ(Mark("a;b\n1.234;0,5\n5.678;1,5\n", 0), DecimalMark::Comma); // digits grouped by points
    EXPECT_EQ(Mark("a;b\n1.234;0.5\n5.678;1.5\n", 0), DecimalMark::Point);
    EXPECT_EQ(Mark("a;b\n1,234;0.5\n5,678;1.5\n", 0), DecimalMark::Comma);
}

TEST(Dialect, WithNoProofAtAllBothMarksAreFractions) {
    EXPECT_EQ(Mark("a;b\n1.234;x\n", 0), DecimalMark::Point);
    EXPECT_EQ(Mark("a;b\n1,234;x\n", 0), DecimalMark::Comma);
}

TEST(Dialect, ACommaColumnProvesNothingForACommaSeparatedFile) {
    EXPECT_EQ(Mark("a,b\n\"1,5\",1.234\n\"2,5\",5.678\n", 1), DecimalMark::Point);
}

TEST(Dialect, TalliesCountNeitherMissingNorDashes) {
    csv::NumberTally tally;
    for (const char* text : {"1", "", "NA", "-", "x", "2012-01-01", "inf"})
        tally.Add(text);
    EXPECT_EQ(tally.Present(), 4u);
    EXPECT_EQ(tally.Numbers(DecimalMark::Point), 2u); // infinity tells of a column of numbers
    EXPECT_EQ(tally.Dates(), 1u);
}

TEST(Dialect, TwoThirdsDecideTheType) {
    EXPECT_TRUE(csv::DecidesType(2, 3));
    EXPECT_FALSE(csv::DecidesType(1, 2));
    EXPECT_TRUE(csv::DecidesType(67, 100));
    EXPECT_FALSE(csv::DecidesType(66, 100));
    EXPECT_FALSE(csv::DecidesType(0, 0));
}

} // namespace
