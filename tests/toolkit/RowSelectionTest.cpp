// Selections as ranges of row indices.
#include "report/RowSelection.h"

#include <gtest/gtest.h>

#include <limits>
#include <random>
#include <set>

namespace {

using Ranges = std::vector<RowSelection::Range>;

RowSelection Of(const Ranges& ranges) {
    RowSelection selection;
    for (const auto& range : ranges)
        selection.Add(range.first, range.last);
    return selection;
}

TEST(RowSelection, StartsEmpty) {
    const RowSelection selection;
    EXPECT_TRUE(selection.IsEmpty());
    EXPECT_EQ(selection.Count(), 0);
    EXPECT_EQ(selection.RowAt(0), -1);
    EXPECT_FALSE(selection.Contains(0));
}

TEST(RowSelection, MergesRangesThatOverlapOrTouch) {
    EXPECT_EQ(Of({{0, 2}, {6, 8}, {3, 5}}).Ranges(), (Ranges{{0, 8}}));
    EXPECT_EQ(Of({{0, 2}, {6, 8}, {2, 6}}).Ranges(), (Ranges{{0, 8}}));
    EXPECT_EQ(Of({{0, 2}, {6, 8}, {4, 4}}).Ranges(), (Ranges{{0, 2}, {4, 4}, {6, 8}}));
    EXPECT_EQ(Of({{5, 3}}).Ranges(), Ranges{}) << "backwards is empty";
    EXPECT_EQ(Of({{-7, 1}}).Ranges(), (Ranges{{0, 1}}));
    EXPECT_EQ(Of({{-7, -1}}).Ranges(), Ranges{});
}

TEST(RowSelection, RemovingFromTheMiddlePartsARange) {
    RowSelection selection = Of({{0, 9}});
    selection.Remove(3, 5);
    EXPECT_EQ(selection.Ranges(), (Ranges{{0, 2}, {6, 9}}));
    selection.Remove(2, 6);
    EXPECT_EQ(selection.Ranges(), (Ranges{{0, 1}, {7, 9}}));
    selection.Remove(0, 100);
    EXPECT_TRUE(selection.IsEmpty());
}

TEST(RowSelection, InvertingTwiceChangesNothing) {
    RowSelection selection = Of({{2, 4}});
    selection.Invert(3);
    EXPECT_EQ(selection.Ranges(), (Ranges{{2, 2}, {4, 4}}));
    selection.Invert(3);
    EXPECT_EQ(selection.Ranges(), (Ranges{{2, 4}}));
}

TEST(RowSelection, CountsAndFindsFromTheTop) {
    const RowSelection selection = Of({{2, 4}, {10, 11}});
    EXPECT_EQ(selection.Count(), 5);
    EXPECT_EQ(selection.RowAt(0), 2);
    EXPECT_EQ(selection.RowAt(2), 4);
    EXPECT_EQ(selection.RowAt(3), 10);
    EXPECT_EQ(selection.RowAt(4), 11);
    EXPECT_EQ(selection.RowAt(5), -1);
    EXPECT_EQ(selection.RowAt(-1), -1);
}

TEST(RowSelection, ARemovedRowTakesItsPlaceOutAndMovesTheOthersUp) {
    RowSelection selection = Of({{2, 4}, {6, 6}, {8, 9}});
    selection.Splice(5, 1, 0);
    EXPECT_EQ(selection.Ranges(), (Ranges{{2, 5}, {7, 8}})) << "what row 5 parted is one range";
    selection.Splice(3, 1, 0);
    EXPECT_EQ(selection.Ranges(), (Ranges{{2, 4}, {6, 7}}));
    selection.Splice(0, 1, 0);
    EXPECT_EQ(selection.Ranges(), (Ranges{{1, 3}, {5, 6}}));
    selection.Splice(100, 1, 0);
    EXPECT_EQ(selection.Ranges(), (Ranges{{1, 3}, {5, 6}}));
}

TEST(RowSelection, InsertedRowsAreNotSelectedAndMoveTheOthersDown) {
    RowSelection selection = Of({{2, 4}, {6, 6}});
    selection.Splice(3, 0, 2);
    EXPECT_EQ(selection.Ranges(), (Ranges{{2, 2}, {5, 6}, {8, 8}})) << "they part the range into which they come";
    selection.Splice(5, 0, 1);
    EXPECT_EQ(selection.Ranges(), (Ranges{{2, 2}, {6, 7}, {9, 9}}));
    selection.Splice(2, 5, 1);
    EXPECT_EQ(selection.Ranges(), (Ranges{{3, 3}, {5, 5}})) << "row 7 comes behind the new one";
    selection.Splice(-1, 1, 1);
    EXPECT_EQ(selection.Ranges(), (Ranges{{3, 3}, {5, 5}}));
}

TEST(RowSelection, TruncatingDropsTheRowsFromThere) {
    RowSelection selection = Of({{2, 4}, {6, 9}});
    selection.Truncate(8);
    EXPECT_EQ(selection.Ranges(), (Ranges{{2, 4}, {6, 7}}));
    selection.Truncate(5);
    EXPECT_EQ(selection.Ranges(), (Ranges{{2, 4}}));
    selection.Truncate(0);
    EXPECT_TRUE(selection.IsEmpty());
}

TEST(RowSelection, TheLargestIndexNeedsNoSpecialCare) {
    constexpr int last = std::numeric_limits<int>::max();
    RowSelection selection = Of({{0, last}});
    EXPECT_EQ(selection.Count(), static_cast<std::int64_t>(last) + 1);
    selection.Remove(last, last);
    EXPECT_EQ(selection.Ranges(), (Ranges{{0, last - 1}}));
    selection.Invert(last);
    EXPECT_EQ(selection.Ranges(), (Ranges{{0, last}}));
    EXPECT_EQ(selection.RowAt(last), last);
}

/// Does the same to a selection and to a plain set.
class Twin {
public:
    void Step(std::mt19937& random) {
        const int a = Row(random);
        const int b = a + std::uniform_int_distribution<int>(-2, 12)(random);
        switch (std::uniform_int_distribution<int>(0, 6)(random)) {
        case 0:
        case 1:
            m_selection.Add(a, b);
            for (int row = a; row <= b; ++row)
                m_set.insert(row);
            break;
        case 2:
            m_selection.Remove(a, b);
            for (int row = a; row <= b; ++row)
                m_set.erase(row);
            break;
        case 3:
            m_selection.Invert(a);
            if (m_set.erase(a) == 0)
                m_set.insert(a);
            break;
        case 4: {
            std::uniform_int_distribution<int> few(0, 5);
            const int removed = few(random), inserted = few(random);
            m_selection.Splice(a, removed, inserted);
            SpliceSet(a, removed, inserted);
            break;
        }
        case 5: {
            RowSelection gone;
            std::set<int> goneRows;
            for (int i = 0; i < 4; ++i)
                for (int row = Row(random), end = row + i; row < end; ++row) {
                    gone.Add(row, row);
                    goneRows.insert(row);
                }
            m_selection.TakeOut(gone);
            std::set<int> kept;
            for (const int row : m_set)
                if (goneRows.count(row) == 0)
                    kept.insert(row - gone.CountAbove(row));
            m_set = kept;
            ASSERT_EQ(gone.CountAbove(a), std::distance(goneRows.begin(), goneRows.lower_bound(a)));
            break;
        }
        default:
            m_selection.Truncate(a + 40);
            m_set.erase(m_set.lower_bound(a + 40), m_set.end());
        }
    }

    void Compare() const {
        std::vector<int> fromRanges;
        int previousLast = -2;
        for (const auto& range : m_selection.Ranges()) {
            ASSERT_LE(range.first, range.last);
            ASSERT_GT(range.first, previousLast + 1) << "ranges are sorted and neither overlap nor touch";
            previousLast = range.last;
            for (int row = range.first; row <= range.last; ++row)
                fromRanges.push_back(row);
        }
        ASSERT_EQ(fromRanges, std::vector<int>(m_set.begin(), m_set.end()));
        ASSERT_EQ(m_selection.Count(), static_cast<std::int64_t>(m_set.size()));
        for (int row = 0; row < 120; ++row)
            ASSERT_EQ(m_selection.Contains(row), m_set.count(row) == 1) << row;
        for (int i = 0; i < static_cast<int>(fromRanges.size()); ++i)
            ASSERT_EQ(m_selection.RowAt(i), fromRanges[i]);
    }

private:
    static int Row(std::mt19937& random) { return std::uniform_int_distribution<int>(0, 100)(random); }
    void SpliceSet(int first, int removed, int inserted) {
        std::set<int> moved;
        for (const int row : m_set)
            if (row < first || row >= first + removed)
                moved.insert(row < first ? row : row - removed + inserted);
        m_set = moved;
    }

    RowSelection m_selection;
    std::set<int> m_set;
};

TEST(RowSelection, AgreesWithAPlainSetOverRandomOperations) {
    for (unsigned seed = 1; seed <= 40; ++seed) {
        std::mt19937 random(seed);
        Twin twin;
        for (int step = 0; step < 100; ++step) {
            twin.Step(random);
            ASSERT_NO_FATAL_FAILURE(twin.Compare()) << "seed " << seed << ", step " << step;
        }
    }
}

} // namespace
