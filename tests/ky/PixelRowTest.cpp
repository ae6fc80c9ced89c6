// A row of pixels that stands for all rows of a plot.
#include "plotcells/PixelRow.h"

#include <gtest/gtest.h>

#include <limits>

using namespace plotspan;

namespace {

using Colors = std::vector<std::uint32_t>;

TEST(PixelRow, IsOfOneColourAtFirst) {
    const PixelRow row({-2, 1}, 7);
    EXPECT_EQ(row.Columns(), (Span{-2, 1}));
    EXPECT_EQ(row.Colors(), (Colors{7, 7, 7}));
}

TEST(PixelRow, TakesThePartOfASpanThatIsInIt) {
    PixelRow row({-2, 3}, 0);
    row.Fill({-1, 1}, 1);
    EXPECT_EQ(row.Colors(), (Colors{0, 1, 1, 0, 0}));
    row.Fill({std::numeric_limits<int>::min(), -1}, 2);
    row.Fill({2, std::numeric_limits<int>::max()}, 3);
    EXPECT_EQ(row.Colors(), (Colors{2, 1, 1, 0, 3}));
    row.Fill({1, 0}, 9);
    row.Fill({3, 9}, 9);
    row.Fill({-9, -2}, 9);
    EXPECT_EQ(row.Colors(), (Colors{2, 1, 1, 0, 3}));
    row.Set(-2, 5);
    row.Set(2, 6);
    EXPECT_EQ(row.Colors(), (Colors{5, 1, 1, 0, 6}));
}

TEST(PixelRow, OfNoColumnsIsEmpty) {
    for (const Span none : {Span{4, 4}, Span{5, -5}}) {
        PixelRow row(none, 1);
        row.Fill({-10, 10}, 2);
        EXPECT_TRUE(row.Columns().IsEmpty());
        EXPECT_TRUE(row.Colors().empty());
    }
}

} // namespace
