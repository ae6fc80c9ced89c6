// Rows of several heights: where they stand, which one a point means, and how far keys and scrolling go, against a loop
// over the heights.
#include "report/GridGeometry.h"

#include <gtest/gtest.h>

#include <numeric>
#include <random>

using namespace gridgeometry;

namespace {

/// Three rows of 20, one of 50, one of 35, and so on.
RowHeights Mixed() {
    RowHeights heights;
    heights.Assign({0, 0, 0, 2, 1, 0, 2, 0}, {20, 35, 50});
    return heights;
}

TEST(RowHeights, ARowBeginsWhereTheOneBeforeItEnds) {
    const RowHeights heights = Mixed();
    const int tops[] = {0, 20, 40, 60, 110, 145, 165, 215, 235};
    for (int row = 0; row <= heights.Count(); ++row)
        EXPECT_EQ(heights.TopOf(row), tops[row]) << row;
    EXPECT_EQ(heights.TotalHeight(), 235);
    EXPECT_EQ(heights.RowAt(0), 0);
    EXPECT_EQ(heights.RowAt(59), 2);
    EXPECT_EQ(heights.RowAt(60), 3);
    EXPECT_EQ(heights.RowAt(109), 3);
    EXPECT_EQ(heights.RowAt(110), 4);
    EXPECT_EQ(heights.RowAt(234), 7);
}

TEST(RowHeights, OtherHeightsOfTheKindsMoveEveryRow) {
    RowHeights heights = Mixed();
    heights.SetHeights({10, 11, 12});
    EXPECT_EQ(heights.TopOf(5), 10 + 10 + 10 + 12 + 11);
    EXPECT_EQ(heights.TotalHeight(), 5 * 10 + 11 + 2 * 12);
}

TEST(RowHeights, WithoutRowsThereIsNoHeight) {
    RowHeights heights = Mixed();
    heights.Clear();
    EXPECT_EQ(heights.Count(), 0);
    EXPECT_EQ(heights.TotalHeight(), 0);
    RowHeights one;
    one.Assign({1}, {20, 30});
    one.Splice(0, 1, {});
    EXPECT_EQ(one.TotalHeight(), 0);
}

TEST(RowsOfSeveralHeights, AViewShowsWhatFits) {
    const RowHeights heights = Mixed();
    const StackedRows rows(heights, 105);
    EXPECT_EQ(rows.VisibleRows(0), (IndexRange{0, 3}));
    EXPECT_EQ(rows.FullyVisibleCount(0), 3);
    EXPECT_EQ(rows.FullyVisibleCount(3), 3) << "50 + 35 + 20 pixels fill it";
    EXPECT_EQ(rows.MaxTopRow(), 5) << "20 + 50 + 20 pixels; with 35 more it would be too many";
    EXPECT_EQ(rows.RowAt(3, 49), 3);
    EXPECT_EQ(rows.RowAt(3, 50), 4);
    EXPECT_EQ(rows.RowTop(3, 5), 85);
    EXPECT_EQ(rows.RowTop(3, 0), -60);
    EXPECT_EQ(rows.TopRowToShow(0, 2), 0);
    EXPECT_EQ(rows.TopRowToShow(0, 3), 1) << "60 to 110";
    EXPECT_EQ(rows.TopRowToShow(4, 3), 3);
    EXPECT_EQ(rows.PageAbove(5), 2) << "20 + 50 + 35 pixels";
}

TEST(RowsOfSeveralHeights, ARowHigherThanTheViewBeginsAtItsEdge) {
    const RowHeights heights = Mixed();
    const StackedRows rows(heights, 30);
    EXPECT_EQ(rows.TopRowToShow(0, 3), 3);
    EXPECT_EQ(rows.TopRowToShow(3, 3), 3);
    EXPECT_EQ(rows.FullyVisibleCount(3), 1);
    EXPECT_EQ(rows.NextRow(RowMove::PageDown, 3, 3), 4) << "paging always moves";
    EXPECT_EQ(rows.NextRow(RowMove::PageUp, 3, 3), 2);
}

TEST(RowsOfSeveralHeights, PageKeysGoAsFarAsAPageShows) {
    const RowHeights heights = Mixed();
    const StackedRows rows(heights, 105);
    EXPECT_EQ(rows.NextRow(RowMove::PageDown, 0, 0), 2) << "the last whole row of the view";
    EXPECT_EQ(rows.NextRow(RowMove::PageDown, 2, 0), 4) << "20 + 50 + 35 pixels from the second row on";
    EXPECT_EQ(rows.NextRow(RowMove::PageUp, 4, 2), 2);
    EXPECT_EQ(rows.NextRow(RowMove::PageUp, 4, 4), 2);
}

// --- Against a loop over the heights ---------------------------------------------------------------------------------

/// What the classes are to answer, found by walking over all rows.
class NaiveRows {
public:
    std::vector<int> heights;
    int viewHeight = 0;

    std::int64_t TopOf(int row) const {
        return std::accumulate(heights.begin(), heights.begin() + row, std::int64_t{0});
    }
    int Count() const { return static_cast<int>(heights.size()); }
    int RowAt(int top, int y) const {
        for (int row = 0; row < Count(); ++row)
            if (TopOf(top) + y >= TopOf(row) && TopOf(top) + y < TopOf(row + 1))
                return y < 0 ? -1 : row;
        return -1;
    }
    bool IsWhole(int top, int row) const { return row >= top && TopOf(row + 1) - TopOf(top) <= viewHeight; }
    int MaxTopRow() const {
        int top = std::max(Count() - 1, 0);
        while (top > 0 && IsWhole(top - 1, Count() - 1))
            --top;
        return top;
    }
    IndexRange Visible(int top) const {
        IndexRange range;
        for (int row = top; row < Count() && TopOf(row) - TopOf(top) < viewHeight; ++row)
            range = {top, row};
        return range;
    }
    int TopRowToShow(int top, int row) const {
        if (row < top)
            return std::min(row, MaxTopRow());
        while (top < row && !IsWhole(top, row))
            ++top;
        return std::min(top, MaxTopRow());
    }
    int PageDown(int focused, int top) const {
        int end = top;
        while (end + 1 < Count() && IsWhole(top, end + 1))
            ++end;
        if (focused < end)
            return end;
        int row = focused + 1;
        while (row + 1 < Count() && IsWhole(focused, row + 1))
            ++row;
        return std::min(row, Count() - 1);
    }
    int PageUp(int focused, int top) const {
        if (focused > top)
            return top;
        int row = focused - 1;
        while (row > 0 && IsWhole(row - 1, focused))
            --row;
        return std::max(row, 0);
    }
};

class RandomRows : public ::testing::Test {
protected:
    int Below(int limit) { return std::uniform_int_distribution<int>(0, limit - 1)(m_random); }

    /// The same rows for both.
    void MakeRows(int count) {
        const std::vector<int> heightOfKind = {1 + Below(30), 1 + Below(50), 1 + Below(90)};
        RowHeights::Kinds kinds;
        m_naive.heights.clear();
        for (int i = 0; i < count; ++i) {
            kinds.push_back(static_cast<std::uint8_t>(Below(3)));
            m_naive.heights.push_back(heightOfKind[kinds.back()]);
        }
        m_heights.Assign(kinds, heightOfKind);
        m_naive.viewHeight = Below(300);
    }

    void Compare() {
        const StackedRows rows(m_heights, m_naive.viewHeight);
        ASSERT_EQ(rows.Count(), m_naive.Count());
        ASSERT_EQ(rows.TotalHeight(), m_naive.TopOf(m_naive.Count()));
        ASSERT_EQ(rows.MaxTopRow(), m_naive.MaxTopRow());
        if (m_naive.Count() == 0)
            return;
        for (int i = 0; i < 20; ++i) {
            const int top = Below(m_naive.Count()), row = Below(m_naive.Count()), y = Below(600) - 100;
            ASSERT_EQ(rows.RowAt(top, y), m_naive.RowAt(top, y));
            ASSERT_EQ(rows.RowTop(top, row), m_naive.TopOf(row) - m_naive.TopOf(top));
            ASSERT_EQ(rows.VisibleRows(top), m_naive.Visible(top));
            ASSERT_EQ(rows.TopRowToShow(top, row), m_naive.TopRowToShow(top, row));
            ASSERT_EQ(rows.NextRow(RowMove::PageDown, row, top), m_naive.PageDown(row, top));
            ASSERT_EQ(rows.NextRow(RowMove::PageUp, row, top), m_naive.PageUp(row, top));
        }
    }

    std::mt19937 m_random{4711};
    RowHeights m_heights;
    NaiveRows m_naive;
};

TEST_F(RandomRows, AnswerAsALoopOverTheirHeights) {
    for (int round = 0; round < 40; ++round) {
        MakeRows(Below(200));
        Compare();
    }
}

TEST_F(RandomRows, AnswerSoWhileRowsAreTakenOut) {
    MakeRows(260); // several blocks, the last of which ends with its rows
    while (m_naive.Count() > 0) {
        const int row = Below(m_naive.Count());
        m_heights.Splice(row, 1, {});
        m_naive.heights.erase(m_naive.heights.begin() + row);
        if (m_naive.Count() % 64 < 2 || Below(16) == 0)
            Compare();
    }
}

TEST_F(RandomRows, AnswerSoWhileRowsComeAndGo) {
    MakeRows(150);
    for (int round = 0; round < 200; ++round) {
        const int first = Below(m_naive.Count() + 1), removed = Below(std::min(m_naive.Count() - first, 90) + 1);
        RowHeights::Kinds kinds;
        std::vector<int> heights;
        for (int i = Below(90); i > 0; --i) {
            kinds.push_back(static_cast<std::uint8_t>(Below(3)));
            heights.push_back(m_heights.HeightOfKind(kinds.back()));
        }
        m_heights.Splice(first, removed, kinds);
        const auto begin = m_naive.heights.begin() + first;
        m_naive.heights.insert(m_naive.heights.erase(begin, begin + removed), heights.begin(), heights.end());
        ASSERT_EQ(m_heights.TotalHeight(), m_naive.TopOf(m_naive.Count()));
        if (round % 8 == 0)
            Compare();
    }
}

TEST_F(RandomRows, OfOneHeightAnswerAsThoseWithoutMemory) {
    for (int round = 0; round < 40; ++round) {
        const int count = Below(100), height = 1 + Below(40), view = Below(300);
        m_heights.Assign(RowHeights::Kinds(static_cast<std::size_t>(count), 0), {height});
        const StackedRows several(m_heights, view), uniform(count, height, view);
        ASSERT_EQ(several.MaxTopRow(), uniform.MaxTopRow());
        for (int i = 0; i < 20 && count > 0; ++i) {
            const int top = Below(count), row = Below(count), y = Below(600) - 100;
            ASSERT_EQ(several.RowAt(top, y), uniform.RowAt(top, y));
            ASSERT_EQ(several.NearestRow(top, y), uniform.NearestRow(top, y));
            ASSERT_EQ(several.RowTop(top, row), uniform.RowTop(top, row));
            ASSERT_EQ(several.FullyVisibleCount(top), uniform.FullyVisibleCount(top));
            ASSERT_EQ(several.RowsInBand(top, y, y + 50), uniform.RowsInBand(top, y, y + 50));
            ASSERT_EQ(several.PageAbove(top), uniform.PageAbove(top));
        }
    }
}

} // namespace
