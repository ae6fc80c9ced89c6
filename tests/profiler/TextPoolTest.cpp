// Distinct texts are stored once and counted.
#include "csv/TextPool.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using csv::TextPool;

TEST(TextPool, NumbersDistinctTextsInTheirOrder) {
    TextPool pool;
    EXPECT_EQ(pool.Add("b", 2), 0u);
    EXPECT_EQ(pool.Add("a", 3), 1u);
    EXPECT_EQ(pool.Add("b", 4), 0u);
    EXPECT_EQ(pool.Add("", 5), 2u);
    EXPECT_EQ(pool.Add("", 6), 2u);
    ASSERT_EQ(pool.Size(), 3u);
    EXPECT_EQ(pool[0].text, "b");
    EXPECT_EQ(pool[0].count, 2u);
    EXPECT_EQ(pool[0].firstLine, 2u);
    EXPECT_EQ(pool[2].text, "");
    EXPECT_EQ(pool[2].count, 2u);
}

TEST(TextPool, KeepsItsOwnCopies) {
    TextPool pool;
    std::string text = "short-lived";
    pool.Add(text, 1);
    text.assign(text.size(), 'x');
    EXPECT_EQ(pool[0].text, "short-lived");
}

TEST(TextPool, FindsEveryTextAgainAmongManyAndLongOnes) {
    TextPool pool;
    const auto text = [](int i) { return std::string(static_cast<std::size_t>(i % 700), 'a') + std::to_string(i); };
    for (int i = 0; i < 20000; ++i)
        ASSERT_EQ(pool.Add(text(i), 1), static_cast<std::uint32_t>(i));
    pool.Add(std::string(300000, 'z'), 1);
    for (int i = 0; i < 20000; ++i) {
        ASSERT_EQ(pool.Add(text(i), 2), static_cast<std::uint32_t>(i));
        ASSERT_EQ(pool[static_cast<std::uint32_t>(i)].text, text(i));
    }
    EXPECT_EQ(pool[20000].text, std::string(300000, 'z'));
}

TEST(TextPool, MovedPoolKeepsItsTextsInPlace) {
    TextPool pool;
    pool.Add("one", 1);
    const TextPool moved = std::move(pool);
    EXPECT_EQ(moved[0].text, "one");
}

} // namespace
