// Where rows and columns stand, and what a point means.
#include "report/GridGeometry.h"

#include <gtest/gtest.h>

#include <limits>

using namespace gridgeometry;

namespace {

// --- Rows ------------------------------------------------------------------------------------------------------------

TEST(RowsOfOneHeight, AViewOf105PixelsShowsFiveWholeRowsOf20AndOneCutOff) {
    const StackedRows rows(100, 20, 105);
    EXPECT_EQ(rows.FullyVisibleCount(0), 5);
    EXPECT_EQ(rows.VisibleRows(0), (IndexRange{0, 5}));
    EXPECT_EQ(rows.VisibleRows(10), (IndexRange{10, 15}));
    EXPECT_EQ(rows.TotalHeight(), 2000);
}

TEST(RowsOfOneHeight, TheLastPageShowsTheLastRowWhole) {
    const StackedRows rows(100, 20, 105);
    EXPECT_EQ(rows.MaxTopRow(), 95);
    EXPECT_EQ(rows.VisibleRows(95), (IndexRange{95, 99}));
    EXPECT_EQ(rows.ClampTopRow(96), 95);
    EXPECT_EQ(rows.ClampTopRow(-1), 0);
    EXPECT_EQ(rows.ClampTopRow(std::numeric_limits<std::int64_t>::max()), 95);
}

TEST(RowsOfOneHeight, FewerRowsThanThePageDoNotScroll) {
    const StackedRows rows(3, 20, 105);
    EXPECT_EQ(rows.MaxTopRow(), 0);
    EXPECT_EQ(rows.VisibleRows(0), (IndexRange{0, 2}));
}

TEST(RowsOfOneHeight, AViewLowerThanARowStillPagesByOne) {
    const StackedRows rows(100, 20, 7);
    EXPECT_EQ(rows.FullyVisibleCount(0), 1);
    EXPECT_EQ(rows.MaxTopRow(), 99);
    EXPECT_EQ(rows.NextRow(RowMove::PageDown, 4, 4), 5);
    EXPECT_EQ(rows.NextRow(RowMove::PageUp, 4, 4), 3);
}

TEST(RowsOfOneHeight, APointMeansTheRowItLiesIn) {
    const StackedRows rows(100, 20, 105);
    EXPECT_EQ(rows.RowAt(10, 0), 10);
    EXPECT_EQ(rows.RowAt(10, 19), 10);
    EXPECT_EQ(rows.RowAt(10, 20), 11);
    EXPECT_EQ(rows.RowAt(10, -1), -1);
    EXPECT_EQ(rows.RowAt(95, 99), 99);
    EXPECT_EQ(rows.RowAt(95, 100), -1);
}

TEST(RowsOfOneHeight, APointBeyondTheRowsMeansTheNearestOne) {
    const StackedRows rows(100, 20, 105);
    EXPECT_EQ(rows.NearestRow(10, -1), 9);
    EXPECT_EQ(rows.NearestRow(10, -20), 9);
    EXPECT_EQ(rows.NearestRow(10, -21), 8);
    EXPECT_EQ(rows.NearestRow(0, -500), 0);
    EXPECT_EQ(rows.NearestRow(95, 5000), 99);
    EXPECT_EQ(StackedRows(0, 20, 105).NearestRow(0, 5), -1);
}

TEST(RowsOfOneHeight, ABandMeetsOnlyTheRowsItTouches) {
    const StackedRows rows(100, 20, 105);
    EXPECT_EQ(rows.RowsInBand(10, 20, 40), (IndexRange{11, 11}));
    EXPECT_EQ(rows.RowsInBand(10, 19, 41), (IndexRange{10, 12}));
    EXPECT_EQ(rows.RowsInBand(10, -50, 1), (IndexRange{10, 10}));
    EXPECT_TRUE(rows.RowsInBand(10, 40, 40).IsEmpty());
    EXPECT_TRUE(rows.RowsInBand(10, 105, 200).IsEmpty());
    EXPECT_TRUE(rows.RowsInBand(95, 100, 105).IsEmpty());
    EXPECT_TRUE(StackedRows(0, 20, 105).VisibleRows(0).IsEmpty());
}

TEST(RowsOfOneHeight, ShowingARowScrollsAsLittleAsPossible) {
    const StackedRows rows(100, 20, 105);
    EXPECT_EQ(rows.TopRowToShow(10, 12), 10);
    EXPECT_EQ(rows.TopRowToShow(10, 14), 10);
    EXPECT_EQ(rows.TopRowToShow(10, 15), 11) << "the sixth row of the view is cut off";
    EXPECT_EQ(rows.TopRowToShow(10, 9), 9);
    EXPECT_EQ(rows.TopRowToShow(10, 99), 95);
    EXPECT_EQ(rows.TopRowToShow(10, -1), 10);
    EXPECT_EQ(rows.TopRowToShow(10, 100), 10);
}

TEST(RowsOfOneHeight, TwoBillionRowsAreReachedToTheLast) {
    const int count = std::numeric_limits<int>::max();
    const StackedRows rows(count, 20, 105);
    EXPECT_EQ(rows.TotalHeight(), static_cast<std::int64_t>(count) * 20);
    EXPECT_EQ(rows.MaxTopRow(), count - 5);
    EXPECT_EQ(rows.VisibleRows(count - 5), (IndexRange{count - 5, count - 1}));
    EXPECT_EQ(rows.RowAt(count - 5, 99), count - 1);
    EXPECT_EQ(rows.RowAt(count - 5, 100), -1);
    EXPECT_EQ(rows.PageAbove(count - 5), count - 10);
    EXPECT_EQ(rows.RowTop(count - 5, count - 1), 80);
    EXPECT_EQ(rows.NextRow(RowMove::PageDown, count - 2, count - 6), count - 1);
    EXPECT_EQ(rows.NextRow(RowMove::End, 0, 0), count - 1);
    EXPECT_GT(rows.RowTop(0, count - 1), 100000000) << "far below the view, but still a coordinate";
    EXPECT_LT(rows.RowTop(count - 5, 0), -100000000);
}

TEST(RowsOfOneHeight, ArrowsMoveByOneAndStopAtTheEnds) {
    const StackedRows rows(100, 20, 105);
    EXPECT_EQ(rows.NextRow(RowMove::Down, 7, 5), 8);
    EXPECT_EQ(rows.NextRow(RowMove::Up, 7, 5), 6);
    EXPECT_EQ(rows.NextRow(RowMove::Up, 0, 0), 0);
    EXPECT_EQ(rows.NextRow(RowMove::Down, 99, 95), 99);
    EXPECT_EQ(rows.NextRow(RowMove::Home, 50, 48), 0);
    EXPECT_EQ(rows.NextRow(RowMove::End, 50, 48), 99);
}

TEST(RowsOfOneHeight, PageKeysGoToTheEndOfThePageFirst) {
    const StackedRows rows(100, 20, 105);
    EXPECT_EQ(rows.NextRow(RowMove::PageDown, 10, 10), 14);
    EXPECT_EQ(rows.NextRow(RowMove::PageDown, 14, 10), 18);
    EXPECT_EQ(rows.NextRow(RowMove::PageUp, 14, 10), 10);
    EXPECT_EQ(rows.NextRow(RowMove::PageUp, 10, 10), 6);
    EXPECT_EQ(rows.NextRow(RowMove::PageUp, 2, 2), 0);
    EXPECT_EQ(rows.NextRow(RowMove::PageDown, 98, 95), 99);
}

TEST(RowsOfOneHeight, WithoutAFocusTheKeysBeginAtTheFirstRow) {
    const StackedRows rows(100, 20, 105);
    EXPECT_EQ(rows.NextRow(RowMove::Down, -1, 0), 0);
    EXPECT_EQ(rows.NextRow(RowMove::Up, -1, 0), 0);
    EXPECT_EQ(StackedRows(0, 20, 105).NextRow(RowMove::Down, -1, 0), -1);
}

// --- Columns ---------------------------------------------------------------------------------------------------------

TEST(Columns, StandSideBySideFromTheOffset) {
    const auto columns = LayOutColumns({100, 0, 50, -3}, -20);
    EXPECT_EQ(columns, (std::vector<ColumnExtent>{{-20, 80, true}, {80, 80, true}, {80, 130, true}, {130, 130, true}}));
}

TEST(Columns, APointMeansTheColumnItLiesIn) {
    const auto columns = LayOutColumns({100, 0, 50}, 10);
    EXPECT_EQ(ColumnAt(columns, 9), -1);
    EXPECT_EQ(ColumnAt(columns, 10), 0);
    EXPECT_EQ(ColumnAt(columns, 109), 0);
    EXPECT_EQ(ColumnAt(columns, 110), 2) << "a column of width 0 has no point";
    EXPECT_EQ(ColumnAt(columns, 159), 2);
    EXPECT_EQ(ColumnAt(columns, 160), -1);
    EXPECT_EQ(ColumnAt({}, 0), -1);
}

TEST(Columns, ABandMeetsOnlyTheColumnsItTouches) {
    const auto columns = LayOutColumns({100, 50, 50}, 0);
    EXPECT_EQ(ColumnsInBand(columns, 0, 200), (IndexRange{0, 2}));
    EXPECT_EQ(ColumnsInBand(columns, 100, 150), (IndexRange{1, 1}));
    EXPECT_EQ(ColumnsInBand(columns, 99, 151), (IndexRange{0, 2}));
    EXPECT_TRUE(ColumnsInBand(columns, 200, 300).IsEmpty());
    EXPECT_TRUE(ColumnsInBand(columns, 50, 50).IsEmpty());
}

TEST(Columns, ADividerIsHeldFromFourPixelsAwayOnEitherSide) {
    const auto columns = LayOutColumns({100, 50}, 0);
    EXPECT_EQ(DividerAt(columns, 95), -1);
    EXPECT_EQ(DividerAt(columns, 96), 0);
    EXPECT_EQ(DividerAt(columns, 104), 0);
    EXPECT_EQ(DividerAt(columns, 105), -1);
    EXPECT_EQ(DividerAt(columns, 150), 1);
    EXPECT_EQ(DividerAt(columns, 0), -1) << "the left edge of the first column divides nothing";
}

TEST(Columns, TheNearerOfTwoDividersIsMeant) {
    const auto columns = LayOutColumns({100, 6}, 0);
    EXPECT_EQ(DividerAt(columns, 102), 0);
    EXPECT_EQ(DividerAt(columns, 104), 1);
}

TEST(Columns, AColumnShrunkToNothingIsTakenFromTheRight) {
    const auto columns = LayOutColumns({100, 0, 0, 50}, 0);
    EXPECT_EQ(DividerAt(columns, 99), 0);
    EXPECT_EQ(DividerAt(columns, 100), 2);
    EXPECT_EQ(DividerAt(columns, 103), 2);
}

TEST(Columns, AColumnOfFixedWidthHasNoDivider) {
    auto columns = LayOutColumns({100, 3, 50}, 0);
    columns[1].resizable = false;
    EXPECT_EQ(DividerAt(columns, 103), 0);
    columns[0].resizable = false;
    EXPECT_EQ(DividerAt(columns, 103), -1);
}

TEST(Columns, ADropLandsBeforeTheColumnOfWhichTheLeftHalfIsHit) {
    const auto columns = LayOutColumns({100, 50, 20}, 0);
    EXPECT_EQ(DropPosition(columns, -5), 0);
    EXPECT_EQ(DropPosition(columns, 49), 0);
    EXPECT_EQ(DropPosition(columns, 50), 1);
    EXPECT_EQ(DropPosition(columns, 124), 1);
    EXPECT_EQ(DropPosition(columns, 125), 2);
    EXPECT_EQ(DropPosition(columns, 160), 3);
    EXPECT_EQ(DropPosition(columns, 9999), 3);
    EXPECT_EQ(DropPosition({}, 5), 0);
}

TEST(Columns, TheDropMarkStandsAtTheEdgeBetween) {
    const auto columns = LayOutColumns({100, 50, 20}, 7);
    EXPECT_EQ(DropMarkX(columns, 0), 7);
    EXPECT_EQ(DropMarkX(columns, 1), 107);
    EXPECT_EQ(DropMarkX(columns, 3), 177);
    EXPECT_EQ(DropMarkX({}, 0), 0);
}

TEST(Columns, ADropOnEitherSideOfTheColumnItselfMovesNothing) {
    EXPECT_TRUE(DropMoves(2, 0));
    EXPECT_TRUE(DropMoves(2, 1));
    EXPECT_FALSE(DropMoves(2, 2));
    EXPECT_FALSE(DropMoves(2, 3));
    EXPECT_TRUE(DropMoves(2, 4));
    EXPECT_FALSE(DropMoves(2, -1));
}

TEST(Columns, SidewaysScrollEndsWhereTheLastColumnEnds) {
    EXPECT_EQ(MaxLeftOffset(500, 300), 200);
    EXPECT_EQ(MaxLeftOffset(200, 300), 0);
    EXPECT_EQ(ClampLeftOffset(250, 500, 300), 200);
    EXPECT_EQ(ClampLeftOffset(-1, 500, 300), 0);
}

TEST(Columns, ShowingAColumnScrollsSidewaysAsLittleAsPossible) {
    EXPECT_EQ(LeftOffsetToShow(100, {120, 180}, 300), 100);
    EXPECT_EQ(LeftOffsetToShow(100, {50, 180}, 300), 50);
    EXPECT_EQ(LeftOffsetToShow(100, {380, 440}, 300), 140);
    EXPECT_EQ(LeftOffsetToShow(100, {380, 900}, 300), 380) << "wider than the view: its left edge";
}

// --- Scrolling -------------------------------------------------------------------------------------------------------

TEST(ScrollBarsOfAView, AreShownWhenTheContentDoesNotFit) {
    EXPECT_EQ(FitScrollBars(100, 100, 100, 100, 17, 16), (ScrollBars{false, false}));
    EXPECT_EQ(FitScrollBars(100, 100, 101, 84, 17, 16), (ScrollBars{true, false}));
    EXPECT_EQ(FitScrollBars(100, 100, 83, 101, 17, 16), (ScrollBars{false, true}));
    EXPECT_EQ(FitScrollBars(100, 100, 0, 0, 17, 16), (ScrollBars{false, false}));
}

TEST(ScrollBarsOfAView, OneBarMayMakeTheOtherNecessary) {
    EXPECT_EQ(FitScrollBars(100, 100, 101, 85, 17, 16), (ScrollBars{true, true}));
    EXPECT_EQ(FitScrollBars(100, 100, 84, 101, 17, 16), (ScrollBars{true, true}));
}

TEST(Wheel, ANotchScrollsTheLinesTheUserChose) {
    WheelAccumulator wheel;
    EXPECT_EQ(wheel.Turn(120, 3), -3);
    EXPECT_EQ(wheel.Turn(-240, 3), 6);
    EXPECT_EQ(wheel.Turn(-120, 0), 0);
}

TEST(Wheel, FineStepsAddUpToWholeLines) {
    WheelAccumulator wheel;
    int lines = 0;
    for (int i = 0; i < 8; ++i)
        lines += wheel.Turn(-15, 3);
    EXPECT_EQ(lines, 3);
}

TEST(Wheel, TurningBackDropsWhatWasSaved) {
    WheelAccumulator wheel;
    EXPECT_EQ(wheel.Turn(-119, 1), 0);
    EXPECT_EQ(wheel.Turn(1, 1), 0);
    EXPECT_EQ(wheel.Turn(-1, 1), 0);
    EXPECT_EQ(wheel.Turn(-118, 1), 0);
    EXPECT_EQ(wheel.Turn(-1, 1), 1);
}

} // namespace
