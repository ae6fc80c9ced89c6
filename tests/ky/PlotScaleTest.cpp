// The scale of a plot cell.
#include "plotcells/PlotScale.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

using namespace plotscale;

namespace {

constexpr Scale ZeroToTen{0.0, 10.0, 0.15};
constexpr double Infinity = std::numeric_limits<double>::infinity();

TEST(PlotScale, TheEndsOfTheScaleStandAtTheMargins) {
    EXPECT_DOUBLE_EQ(ToFraction(0.0, ZeroToTen), 0.15);
    EXPECT_DOUBLE_EQ(ToFraction(10.0, ZeroToTen), 0.85);
    EXPECT_DOUBLE_EQ(ToFraction(5.0, ZeroToTen), 0.5);
    EXPECT_DOUBLE_EQ(ToFraction(3.0, ZeroToTen), 0.36);
    EXPECT_DOUBLE_EQ(ToFraction(7.0, ZeroToTen), 0.64);
}

TEST(PlotScale, ValuesBeyondTheScaleAreNotClamped) {
    EXPECT_DOUBLE_EQ(ToFraction(20.0, ZeroToTen), 1.55);
    EXPECT_DOUBLE_EQ(ToFraction(-10.0, ZeroToTen), -0.55);
}

TEST(PlotScale, AMissingValueStaysTheMark) {
    EXPECT_EQ(ToFraction(-99.0, ZeroToTen), -99.0);
    EXPECT_EQ(ToFraction(-99.0, {-100.0, 100.0, 0.15}), -99.0);
    EXPECT_NE(ToFraction(-99.0001, {-100.0, 100.0, 0.15}), -99.0);
}

TEST(PlotScale, FractionsTurnBackIntoValues) {
    EXPECT_DOUBLE_EQ(ToValue(0.15, ZeroToTen), 0.0);
    EXPECT_DOUBLE_EQ(ToValue(0.85, ZeroToTen), 10.0);
    EXPECT_DOUBLE_EQ(ToValue(0.0, ZeroToTen), -0.15 / 0.7 * 10.0);
    EXPECT_DOUBLE_EQ(ToValue(0.25, {-4.0, 4.0, 0.0}), -2.0);
}

TEST(PlotScale, TheMissingMarkAsAFractionIsAFractionLikeAnyOther) {
    EXPECT_DOUBLE_EQ(ToValue(-99.0, {0.0, 1.0, 0.0}), -99.0);
    EXPECT_DOUBLE_EQ(ToValue(-99.0, {0.0, 2.0, 0.0}), -198.0);
}

TEST(PlotScale, AScaleWithoutExtentGivesInfiniteOrNoFractions) {
    const Scale point{5.0, 5.0, 0.15};
    EXPECT_EQ(ToFraction(6.0, point), Infinity);
    EXPECT_EQ(ToFraction(4.0, point), -Infinity);
    EXPECT_TRUE(std::isnan(ToFraction(5.0, point)));
    EXPECT_FALSE(IsNear(ToFraction(5.0, point), 0.5));
}

TEST(PlotScale, TheFractionIsDividedInSinglePrecision) {
    EXPECT_EQ(PointerFraction(11, 1, 31), static_cast<double>(10.0f / 30.0f));
    EXPECT_NE(PointerFraction(11, 1, 31), 10.0 / 30.0);
    // One third in single precision is 11184811 / 2^25.
    EXPECT_EQ(PointerFraction(11, 1, 31), 11184811.0 / 33554432.0);
}

TEST(PlotScale, TheExactFractionIsDividedInDoublePrecision) {
    EXPECT_EQ(ExactPointerFraction(11, 1, 31), 10.0 / 30.0);
    EXPECT_EQ(ExactPointerFraction(-5, 1, 31), -6.0 / 30.0);
    constexpr int lowest = std::numeric_limits<int>::min();
    constexpr int highest = std::numeric_limits<int>::max();
    EXPECT_EQ(ExactPointerFraction(highest, lowest, highest), 1.0);
    EXPECT_EQ(ExactPointerFraction(5, 4, 4), Infinity);
    EXPECT_TRUE(std::isnan(ExactPointerFraction(4, 4, 4)));
}

TEST(PlotScale, ThePointerFractionIsNotClamped) {
    EXPECT_EQ(PointerFraction(-50, 0, 100), -0.5);
    EXPECT_EQ(PointerFraction(250, 0, 100), 2.5);
}

TEST(PlotScale, ARectangleWithoutWidthGivesNoFiniteFraction) {
    EXPECT_EQ(PointerFraction(5, 0, 0), Infinity);
    EXPECT_EQ(PointerFraction(-5, 0, 0), -Infinity);
    EXPECT_TRUE(std::isnan(PointerFraction(0, 0, 0)));
}

TEST(PlotScale, ExtremeCoordinatesDoNotOverflow) {
    constexpr int lowest = std::numeric_limits<int>::min();
    constexpr int highest = std::numeric_limits<int>::max();
    EXPECT_EQ(PointerFraction(highest, lowest, highest), 1.0);
}

TEST(PlotScale, NearIsLessThanTwoPercentOfTheWidth) {
    EXPECT_TRUE(IsNear(0.5, 0.5));
    EXPECT_TRUE(IsNear(0.5, 0.519));
    EXPECT_TRUE(IsNear(0.5, 0.481));
    EXPECT_FALSE(IsNear(0.0, 0.02));
    EXPECT_FALSE(IsNear(0.5, 0.521));
    EXPECT_FALSE(IsNear(-99.0, 0.0));
    EXPECT_FALSE(IsNear(-99.0, -99.0)); // no mark, and a pointer that was never over the cell
}

TEST(PlotScale, TheValueUnderThePointerIsToldInsideTheCellOnly) {
    EXPECT_DOUBLE_EQ(ValueUnderPointer(0.5, ZeroToTen).value(), 5.0);
    EXPECT_TRUE(ValueUnderPointer(0.0, ZeroToTen).has_value());
    EXPECT_TRUE(ValueUnderPointer(1.0, ZeroToTen).has_value());
    EXPECT_FALSE(ValueUnderPointer(-0.001, ZeroToTen).has_value());
    EXPECT_FALSE(ValueUnderPointer(1.001, ZeroToTen).has_value());
    EXPECT_FALSE(ValueUnderPointer(-99.0, ZeroToTen).has_value());
    EXPECT_FALSE(ValueUnderPointer(std::numeric_limits<double>::quiet_NaN(), ZeroToTen).has_value());
}

} // namespace
