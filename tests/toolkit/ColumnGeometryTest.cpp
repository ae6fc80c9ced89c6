// How columns share a view: frozen columns, columns that fill the view, buttons of a group-by box.
#include "report/ColumnGeometry.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numeric>
#include <random>

namespace {

using namespace gridgeometry;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

int SumOf(const std::vector<int>& widths) { return std::accumulate(widths.begin(), widths.end(), 0); }

// --- Frozen columns -------------------------------------------------------------------------------------------------

TEST(FrozenColumnsTest, AsManyStayAsAreAskedFor) {
    EXPECT_EQ(FrozenCount({50, 60, 70, 200}, 2, 300), 2);
    EXPECT_EQ(FrozenCount({50, 60, 70, 200}, 0, 300), 0);
    EXPECT_EQ(FrozenCount({50, 60, 70, 200}, -3, 300), 0);
    EXPECT_EQ(FrozenCount({}, 2, 300), 0);
}

TEST(FrozenColumnsTest, TheyLeaveAQuarterOfTheViewToTheOthers) {
    EXPECT_EQ(FrozenCount({100, 125, 100}, 2, 300), 2) << "225 of 300";
    EXPECT_EQ(FrozenCount({100, 126, 100}, 2, 300), 1);
    EXPECT_EQ(FrozenCount({226, 100, 100}, 2, 300), 0);
    EXPECT_EQ(FrozenCount({100, 126, 100}, 3, 300), 1);
    EXPECT_EQ(FrozenCount({100, 0, 126, 100}, 3, 300), 2);
}

TEST(FrozenColumnsTest, AllStayWhileNothingScrolls) {
    EXPECT_EQ(FrozenCount({100, 140, 60}, 2, 300), 2);
    EXPECT_EQ(FrozenCount({100, 140, 60}, 9, 300), 3);
    EXPECT_EQ(FrozenCount({100, 140, 61}, 9, 300), 1);
}

TEST(FrozenColumnsTest, TheOthersScrollBeneathThem) {
    const auto columns = LayOutFrozenColumns({40, 50, 60, 70}, 2, 10, 75);
    EXPECT_THAT(columns,
                ElementsAre(ColumnExtent{10, 50}, ColumnExtent{50, 100}, ColumnExtent{25, 85}, ColumnExtent{85, 155}));
    EXPECT_THAT(CutAtFrozen(columns, 2), ElementsAre(ColumnExtent{10, 50}, ColumnExtent{50, 100},
                                                     ColumnExtent{100, 100, false}, ColumnExtent{100, 155}));
    EXPECT_EQ(CutAtFrozen(columns, 0), columns);
    EXPECT_THAT(CutAtFrozen({}, 2), IsEmpty());
}

TEST(FrozenColumnsTest, APointMeansTheColumnOnTop) {
    const auto seen = CutAtFrozen(LayOutFrozenColumns({40, 50, 60, 70}, 2, 0, 75), 2); // 0 40 90 | 15…75, 75…145
    EXPECT_EQ(ColumnAt(seen, 39), 0);
    EXPECT_EQ(ColumnAt(seen, 89), 1);
    EXPECT_EQ(ColumnAt(seen, 90), 3);
    EXPECT_EQ(ColumnAt(seen, 145), -1);
    EXPECT_EQ(DividerAt(seen, 74, 4), -1) << "the divider of the covered column";
    EXPECT_EQ(DividerAt(seen, 91, 4), 1) << "that of the last frozen one";
    EXPECT_EQ(DividerAt(seen, 143, 4), 3);
    EXPECT_EQ(DropPosition(seen, 80), 2) << "behind the last frozen column";
    EXPECT_EQ(DropMarkX(seen, 2), 90);
    EXPECT_EQ(DropPosition(seen, 95), 3);
    EXPECT_EQ(DropPosition(seen, 140), 4);
}

// --- Columns that fill the view -------------------------------------------------------------------------------------

SharedColumn Shares(int width, int least = 0, int most = 32000) { return {width, least, most, true}; }
SharedColumn Keeps(int width) { return {width, 0, 32000, false}; }

TEST(ShareWidthTest, ColumnsDivideTheViewInProportion) {
    EXPECT_THAT(ShareWidth({Shares(100), Shares(200)}, 600), ElementsAre(200, 400));
    EXPECT_THAT(ShareWidth({Shares(100), Shares(200)}, 150), ElementsAre(50, 100));
    EXPECT_THAT(ShareWidth({Shares(1), Shares(1), Shares(1)}, 100), ElementsAre(33, 33, 34));
    EXPECT_THAT(ShareWidth({}, 100), IsEmpty());
}

TEST(ShareWidthTest, OtherColumnsKeepTheirWidth) {
    EXPECT_THAT(ShareWidth({Shares(100), Keeps(80), Shares(300)}, 480), ElementsAre(100, 80, 300));
    EXPECT_THAT(ShareWidth({Shares(100), Keeps(80), Shares(300)}, 880), ElementsAre(200, 80, 600));
    EXPECT_THAT(ShareWidth({Keeps(80)}, 500), ElementsAre(80));
}

TEST(ShareWidthTest, LimitsAreKeptAndTheOthersTakeTheRest) {
    EXPECT_THAT(ShareWidth({Shares(100, 0, 120), Shares(100), Shares(200)}, 800), ElementsAre(120, 226, 454));
    EXPECT_THAT(ShareWidth({Shares(100, 90), Shares(100), Shares(200)}, 240), ElementsAre(90, 50, 100));
    // The first one's least width makes the others too narrow for what the second may have at most.
    EXPECT_THAT(ShareWidth({Shares(10, 150), Shares(80, 0, 60), Shares(10)}, 300), ElementsAre(150, 60, 90));
}

TEST(ShareWidthTest, WhatCannotFitStaysAtItsLimits) {
    EXPECT_THAT(ShareWidth({Shares(100, 60), Shares(100, 70)}, 100), ElementsAre(60, 70));
    EXPECT_THAT(ShareWidth({Shares(100, 60), Keeps(500), Shares(100, 70)}, 300), ElementsAre(60, 500, 70));
    EXPECT_THAT(ShareWidth({Shares(100, 0, 110), Shares(100, 0, 120)}, 500), ElementsAre(110, 120));
    EXPECT_EQ(LeastWidth({Shares(100, 60), Keeps(500), Shares(100, 70)}), 630);
}

TEST(ShareWidthTest, AColumnWithoutWidthGetsSome) {
    EXPECT_THAT(ShareWidth({Shares(0), Shares(99)}, 200), ElementsAre(2, 198));
}

TEST(ShareWidthTest, SumsAreExactLimitsKeptAndNothingMovesTwice) {
    std::mt19937 random(20);
    const auto between = [&random](int low, int high) {
        return low + static_cast<int>(random() % static_cast<unsigned>(high - low + 1));
    };
    int filled = 0;
    for (int run = 0; run < 5000; ++run) {
        std::vector<SharedColumn> columns;
        for (int count = between(0, 12); count > 0; --count) {
            SharedColumn column{between(0, 400), between(0, 120), 0, between(0, 4) > 0};
            column.most = column.least + (between(0, 3) == 0 ? between(0, 60) : 32000);
            columns.push_back(column);
        }
        const int view = between(0, 2500);
        const std::vector<int> widths = ShareWidth(columns, view);
        ASSERT_EQ(widths.size(), columns.size());
        int least = 0, most = 0;
        bool shares = false;
        for (std::size_t i = 0; i < columns.size(); ++i) {
            const SharedColumn& column = columns[i];
            shares = shares || column.shares;
            least += column.shares ? column.least : column.width;
            most += column.shares ? column.most : column.width;
            if (column.shares) {
                ASSERT_GE(widths[i], column.least);
                ASSERT_LE(widths[i], column.most);
            } else {
                ASSERT_EQ(widths[i], column.width);
            }
        }
        ASSERT_EQ(LeastWidth(columns), least);
        ASSERT_TRUE(!shares || SumOf(widths) == std::clamp(view, least, most)) << "run " << run;
        filled += shares && view > least && view < most;
        // Columns that are within their limits have the same part of their share, to a pixel.
        double lowest = 1e9, highest = 0;
        for (std::size_t i = 0; i < columns.size(); ++i) {
            if (columns[i].shares && widths[i] > columns[i].least + 1 && widths[i] < columns[i].most - 1) {
                lowest = std::min(lowest, (widths[i] + 1.0) / std::max(columns[i].width, 1));
                highest = std::max(highest, (widths[i] - 1.0) / std::max(columns[i].width, 1));
            }
            columns[i].width = widths[i];
        }
        ASSERT_TRUE(highest <= lowest || highest == 0) << "run " << run;
        ASSERT_EQ(ShareWidth(columns, view), widths) << "run " << run;
    }
    EXPECT_GT(filled, 1250);
}

TEST(MovableByTest, OneColumnGetsWhatTheOtherLoses) {
    EXPECT_EQ(MovableBy(Shares(100), Shares(100), 30), 30);
    EXPECT_EQ(MovableBy(Shares(100), Shares(100, 80), 30), 20);
    EXPECT_EQ(MovableBy(Shares(100, 0, 110), Shares(100), 30), 10);
    EXPECT_EQ(MovableBy(Shares(100, 95), Shares(100), -30), -5);
    EXPECT_EQ(MovableBy(Shares(100), Shares(100, 0, 120), -30), -20);
    EXPECT_EQ(MovableBy(Shares(100, 0, 90), Shares(100, 110), 30), 0);
}

// --- The group-by box -----------------------------------------------------------------------------------------------

TEST(GroupButtonsTest, StandSideBySide) {
    EXPECT_THAT(LayOutButtons({50, 60}, 8, 300, 10), ElementsAre(ColumnExtent{8, 58}, ColumnExtent{68, 128}));
    EXPECT_THAT(LayOutButtons({}, 8, 300, 10), IsEmpty());
}

TEST(GroupButtonsTest, GetNarrowerWhenTheyDoNotFit) {
    EXPECT_THAT(LayOutButtons({100, 200}, 0, 160, 10), ElementsAre(ColumnExtent{0, 50}, ColumnExtent{60, 160}));
    EXPECT_THAT(LayOutButtons({100, 200}, 0, 5, 10), ElementsAre(ColumnExtent{0, 0}, ColumnExtent{10, 10}));
}

TEST(GroupButtonsTest, TheMarkStandsInTheGaps) {
    const auto buttons = LayOutButtons({50, 60}, 8, 300, 10);
    EXPECT_EQ(ButtonMarkX(buttons, 0, 8, 10), 3);
    EXPECT_EQ(ButtonMarkX(buttons, 1, 8, 10), 63);
    EXPECT_EQ(ButtonMarkX(buttons, 2, 8, 10), 133);
    EXPECT_EQ(ButtonMarkX({}, 0, 8, 10), 3);
}

} // namespace
