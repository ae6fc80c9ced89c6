// The cells of the grid: plots of columns, and values that sort.
#include "window/ColumnPlotItem.h"
#include "window/ValueItem.h"

#include <gtest/gtest.h>

#include <cmath>
#include <vector>

namespace {

statistics::Summary Of(std::vector<double> numbers) { return statistics::Summarize(numbers); }

TEST(ColumnPlotItem, NeedsNumbersThatDiffer) {
    EXPECT_TRUE(ColumnPlotItem::CanShow(Of({1, 2})));
    EXPECT_FALSE(ColumnPlotItem::CanShow(Of({1, 1})));
    EXPECT_FALSE(ColumnPlotItem::CanShow(Of({1})));
    EXPECT_FALSE(ColumnPlotItem::CanShow(Of({})));
    // These differ in double precision, but not in the plot's single precision.
    EXPECT_FALSE(ColumnPlotItem::CanShow(Of({1e9, 1e9 + 1})));
}

TEST(ColumnPlotItem, ItsScaleGoesFromMinimumToMaximum) {
    const ColumnPlotItem plot(Of({2, 4, 9}));
    EXPECT_EQ(plot.GetMin(), 2);
    EXPECT_EQ(plot.GetMax(), 9);
    EXPECT_EQ(plot.GetTarget(), 4);
}

TEST(ColumnPlotItem, MinusNinetyNineIsAValueHere) {
    const ColumnPlotItem plot(Of({-99, -99, 1}));
    EXPECT_NE(plot.GetMin(), -99);
    EXPECT_NEAR(plot.GetMin(), -99, 0.001);
    EXPECT_NE(plot.GetTarget(), -99);
}

TEST(ColumnPlotItem, NumbersBeyondSinglePrecisionStayFinite) {
    const ColumnPlotItem plot(Of({-1e300, 0, 1e300}));
    EXPECT_LT(plot.GetMin(), -3.4e38);
    EXPECT_GT(plot.GetMin(), -3.5e38);
    EXPECT_GT(plot.GetMax(), 3.4e38);
}

TEST(ColumnPlotItem, LimitsBeginAroundTheMeanWithTheMedianAsTarget) {
    const statistics::Limits limits = ColumnPlotItem::InitialLimits(Of({1, 2, 6}));
    EXPECT_DOUBLE_EQ(limits.lower, 3 - std::sqrt(7));
    EXPECT_EQ(limits.target, 2);
    EXPECT_DOUBLE_EQ(limits.upper, 3 + std::sqrt(7));
}

class ValueItemTest : public ::testing::Test {
protected:
    int Compare(ValueItem* a, ValueItem* b) {
        record.AddItem(a);
        record.AddItem(b);
        const int result = a->Compare(nullptr, b);
        EXPECT_EQ(b->Compare(nullptr, a), -result);
        return result;
    }

    CXTPReportRecord record; // owns the items
};

TEST_F(ValueItemTest, NumbersSortByValue) {
    EXPECT_LT(Compare(new ValueItem(2.0), new ValueItem(10.0)), 0);
    EXPECT_EQ(Compare(new ValueItem(3.0), new ValueItem(3.0)), 0);
    EXPECT_LT(Compare(new ValueItem(L"5.0 %", 0.05), new ValueItem(L"40.0 %", 0.4)), 0);
}

TEST_F(ValueItemTest, NumbersComeBeforeTextsAndTextsBeforeNothing) {
    EXPECT_LT(Compare(new ValueItem(1e300), new ValueItem(L"2012-01-01")), 0);
    EXPECT_LT(Compare(new ValueItem(L"2012-01-01"), new ValueItem(L"")), 0);
    EXPECT_LT(Compare(new ValueItem(5.0), new ValueItem(L"")), 0);
    EXPECT_EQ(Compare(new ValueItem(L""), new ValueItem(L"")), 0);
}

TEST_F(ValueItemTest, TextsSortAsTexts) {
    EXPECT_LT(Compare(new ValueItem(L"2012-01-01"), new ValueItem(L"2012-01-02")), 0);
}

} // namespace
