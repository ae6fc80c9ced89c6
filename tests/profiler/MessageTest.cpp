// Sentences about files.
#include "csv/Message.h"

#include <gtest/gtest.h>

namespace {

using csv::Message;
using csv::MessageList;
using csv::Severity;

Message OfLine(std::size_t line, const char* literal = "line %1%") {
    return {Severity::Warning, line, literal, nullptr, 1, {std::to_string(line)}};
}

TEST(Message, PlacesAreFilledInByPosition) {
    EXPECT_EQ(csv::FillIn("%2% of %1%", {"a", "b"}), "b of a");
    EXPECT_EQ(csv::FillIn("%1%%1%", {"x"}), "xx");
}

TEST(Message, OtherPercentSignsStay) {
    EXPECT_EQ(csv::FillIn("100 % of %1%", {"a"}), "100 % of a");
    EXPECT_EQ(csv::FillIn("%", {}), "%");
    EXPECT_EQ(csv::FillIn("%1", {"a"}), "%1");
}

TEST(Message, APlaceWithoutArgumentStandsForNothing) { EXPECT_EQ(csv::FillIn("[%3%]", {"a"}), "[]"); }

TEST(Message, ArgumentsAreNotReadForPlaces) { EXPECT_EQ(csv::FillIn("%1%-%2%", {"%2%", "b"}), "%2%-b"); }

TEST(Message, TheNumberDecidesTheForm) {
    Message message{Severity::Warning, 1, "%1% row", "%1% rows", 1, {"1"}};
    EXPECT_EQ(Text(message), "1 row");
    message.number = 2;
    message.arguments = {"2"};
    EXPECT_EQ(Text(message), "2 rows");
}

TEST(Message, TheTranslatorGetsTheFormThatTheNumberChose) {
    const Message message{Severity::Warning, 1, "%1% row", "%1% rows", 3, {"3"}};
    EXPECT_EQ(Text(message, [](const char* text) { return "<" + std::string(text) + ">"; }), "<3 rows>");
}

TEST(Message, AnExcerptEndsAfterFortyCharactersNotBytes) {
    EXPECT_EQ(csv::Excerpt(std::string(40, 'a')), std::string(40, 'a'));
    EXPECT_EQ(csv::Excerpt(std::string(41, 'a')), std::string(40, 'a') + "\u2026");
    std::string umlauts;
    for (int i = 0; i < 41; ++i)
        umlauts += "\u00E4";
    EXPECT_EQ(csv::Excerpt(umlauts), umlauts.substr(0, 80) + "\u2026");
}

TEST(MessageList, OrdersByLineAndPutsTheWholeFileLast) {
    MessageList list("f.csv");
    list.Add(OfLine(7));
    list.Add(OfLine(0));
    list.Add(OfLine(3));
    const std::vector<Message> messages = list.Take();
    ASSERT_EQ(messages.size(), 3u);
    EXPECT_EQ(messages[0].line, 3u);
    EXPECT_EQ(messages[1].line, 7u);
    EXPECT_EQ(messages[2].line, 0u);
}

TEST(MessageList, CountsWhatIsMoreThanFiftyOfOneKind) {
    MessageList list("f.csv");
    for (std::size_t line = 1; line <= 60; ++line)
        list.Add(OfLine(line));
    list.Add(OfLine(100, "another kind %1%"));
    const std::vector<Message> messages = list.Take();
    ASSERT_EQ(messages.size(), 52u);
    EXPECT_EQ(messages[49].line, 50u);
    EXPECT_EQ(Text(messages[50]), "another kind 100");
    EXPECT_EQ(Text(messages[51]), "f.csv: 10 more messages like these are not listed.");
}

TEST(MessageList, OneLeftOutIsSaidInTheSingular) {
    MessageList list("f.csv");
    list.LeaveOut(1);
    const std::vector<Message> messages = list.Take();
    ASSERT_EQ(messages.size(), 1u);
    EXPECT_EQ(Text(messages[0]), "f.csv: 1 more message like these is not listed.");
}

} // namespace
