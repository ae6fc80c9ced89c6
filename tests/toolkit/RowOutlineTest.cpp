// Which rows of an outline are shown, against a naive model.
#include "../../toolkit/report/RowOutline.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <random>

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

std::vector<int> Rows(const RowOutline& outline) {
    std::vector<int> nodes;
    for (int row = 0; row < outline.RowCount(); ++row)
        nodes.push_back(outline.NodeAt(row));
    return nodes;
}

constexpr auto All = [](int) { return true; };
constexpr auto None = [](int) { return false; };

/// 0 with 1 (with 2, 3) and 4; 5; 6 with 7.
RowOutline Sample() { return RowOutline({-1, 0, 1, 1, 0, -1, -1, 6}); }

TEST(RowOutline, KnowsWhatStandsAboveAndBelow) {
    const RowOutline outline = Sample();
    EXPECT_EQ(outline.NodeCount(), 8);
    EXPECT_EQ(outline.Parent(0), -1);
    EXPECT_EQ(outline.Parent(3), 1);
    EXPECT_EQ(outline.Level(0), 0);
    EXPECT_EQ(outline.Level(3), 2);
    EXPECT_EQ(outline.End(0), 5);
    EXPECT_EQ(outline.End(1), 4);
    EXPECT_EQ(outline.End(5), 6);
    EXPECT_TRUE(outline.HasChildren(1));
    EXPECT_FALSE(outline.HasChildren(5));
    EXPECT_TRUE(outline.HasNextSibling(1));
    EXPECT_FALSE(outline.HasNextSibling(4));
    EXPECT_TRUE(outline.HasNextSibling(5));
    EXPECT_FALSE(outline.HasNextSibling(7));
    EXPECT_EQ(outline.RowCount(), 0) << "nothing is shown yet";
}

TEST(RowOutline, ShowsWhatStandsBelowExpandedNodesOnly) {
    RowOutline outline = Sample();
    outline.ShowAll(None);
    EXPECT_THAT(Rows(outline), ElementsAre(0, 5, 6));
    outline.ShowAll([](int node) { return node == 1 || node == 6; });
    EXPECT_THAT(Rows(outline), ElementsAre(0, 5, 6, 7)) << "1 is expanded below a collapsed one";
    outline.ShowAll(All);
    EXPECT_THAT(Rows(outline), ElementsAre(0, 1, 2, 3, 4, 5, 6, 7));
}

TEST(RowOutline, ExpandsAndCollapsesInPlace) {
    RowOutline outline = Sample();
    outline.ShowAll(None);
    EXPECT_EQ(outline.Expand(0, None), (RowSplice{1, 0, 2}));
    EXPECT_THAT(Rows(outline), ElementsAre(0, 1, 4, 5, 6));
    EXPECT_TRUE(outline.Expand(0, None).IsNothing()) << "it is expanded already";
    EXPECT_TRUE(outline.Expand(3, None).IsNothing()) << "5 has nothing below it";
    EXPECT_EQ(outline.Expand(1, None), (RowSplice{2, 0, 2}));
    EXPECT_THAT(Rows(outline), ElementsAre(0, 1, 2, 3, 4, 5, 6));
    EXPECT_EQ(outline.BranchEnd(0), 5);
    EXPECT_EQ(outline.BranchEnd(1), 4);
    EXPECT_EQ(outline.NextSiblingRow(1), 4);
    EXPECT_EQ(outline.NextSiblingRow(4), -1);
    EXPECT_EQ(outline.NextSiblingRow(0), 5);
    EXPECT_EQ(outline.RowOf(3), 3);
    EXPECT_EQ(outline.RowOf(7), -1);
    EXPECT_EQ(outline.RowOfNearest(7), 6);
    EXPECT_EQ(outline.Collapse(0), (RowSplice{1, 4, 0}));
    EXPECT_THAT(Rows(outline), ElementsAre(0, 5, 6));
    EXPECT_TRUE(outline.Collapse(0).IsNothing());
    EXPECT_EQ(outline.Expand(0, [](int node) { return node == 1; }), (RowSplice{1, 0, 4}));
    EXPECT_EQ(outline.ExpandAnew(0, None), (RowSplice{1, 4, 2}));
    EXPECT_THAT(Rows(outline), ElementsAre(0, 1, 4, 5, 6));
}

RowSplice TakeOut(RowOutline& outline, int node) {
    outline.Remove(node);
    return outline.Hide(node, outline.End(node));
}

TEST(RowOutline, RemovedNodesLeaveTheNumbersOfTheOthers) {
    RowOutline outline = Sample();
    outline.ShowAll(All);
    EXPECT_EQ(TakeOut(outline, 1), (RowSplice{1, 3, 0}));
    EXPECT_THAT(Rows(outline), ElementsAre(0, 4, 5, 6, 7));
    EXPECT_TRUE(outline.IsRemoved(2));
    EXPECT_TRUE(TakeOut(outline, 2).IsNothing());
    EXPECT_EQ(TakeOut(outline, 4), (RowSplice{1, 1, 0}));
    EXPECT_FALSE(outline.HasChildren(0)) << "both are gone";
    EXPECT_FALSE(outline.IsExpanded(0));
    outline.RemoveBelow(6);
    EXPECT_EQ(outline.Hide(7, outline.End(6)), (RowSplice{3, 1, 0}));
    EXPECT_FALSE(outline.HasChildren(6));
    EXPECT_THAT(Rows(outline), ElementsAre(0, 5, 6));
    outline.ShowAll(All);
    EXPECT_THAT(Rows(outline), ElementsAre(0, 5, 6));
    for (const int node : {0, 5, 6})
        TakeOut(outline, node);
    EXPECT_THAT(Rows(outline), IsEmpty());
}

TEST(RowOutline, TheRowsOfAllRemovedNodesGoAtOnce) {
    RowOutline outline = Sample();
    outline.ShowAll(All);
    outline.Remove(1);
    outline.RemoveBelow(6);
    outline.Remove(5);
    outline.HideRemoved();
    EXPECT_THAT(Rows(outline), ElementsAre(0, 4, 6));
    EXPECT_TRUE(outline.HasChildren(0));
    EXPECT_FALSE(outline.HasChildren(6));
}

/// Keeps what an outline is about in the plainest way.
struct Model {
    std::vector<int> parents;
    std::vector<bool> removed, expanded;

    bool IsShown(int node) const {
        if (removed[node])
            return false;
        for (int above = parents[node]; above >= 0; above = parents[above])
            if (!expanded[above] || removed[above])
                return false;
        return true;
    }
    bool IsBelow(int node, int above) const {
        while (node >= 0 && node != above)
            node = parents[node];
        return node >= 0;
    }
    std::vector<int> Rows() const {
        std::vector<int> rows;
        for (int node = 0; node < static_cast<int>(parents.size()); ++node)
            if (IsShown(node))
                rows.push_back(node);
        return rows;
    }
};

Model RandomForest(std::mt19937& random) {
    Model model;
    std::vector<int> path;
    for (int node = 0; node < 60; ++node) {
        path.resize(std::uniform_int_distribution<std::size_t>(0, path.size())(random));
        model.parents.push_back(path.empty() ? -1 : path.back());
        path.push_back(node);
    }
    model.removed.assign(60, false);
    model.expanded.assign(60, false);
    return model;
}

TEST(RowOutline, AgreesWithANaiveModelOverRandomOperations) {
    for (unsigned seed = 1; seed <= 60; ++seed) {
        std::mt19937 random(seed);
        Model model = RandomForest(random);
        RowOutline outline(model.parents);
        const auto isExpanded = [&model](int node) { return model.expanded[node]; };
        outline.ShowAll(isExpanded);
        for (int step = 0; step < 80; ++step) {
            const std::vector<int> before = Rows(outline);
            const int node = std::uniform_int_distribution<int>(0, 59)(random);
            const int row = outline.RowOf(node);
            RowSplice splice;
            switch (std::uniform_int_distribution<int>(0, 7)(random)) {
            case 0:
                splice = TakeOut(outline, node);
                for (int below = 0; below < 60; ++below)
                    if (model.IsBelow(below, node))
                        model.removed[below] = true;
                break;
            case 1:
            case 2:
                model.expanded[node] = false;
                if (row >= 0)
                    splice = outline.Collapse(row);
                break;
            default:
                model.expanded[node] = true;
                if (row >= 0)
                    splice = outline.Expand(row, isExpanded);
            }
            const std::vector<int> after = Rows(outline);
            ASSERT_EQ(after, model.Rows()) << "seed " << seed << ", step " << step;
            std::vector<int> spliced = before;
            spliced.erase(spliced.begin() + splice.first, spliced.begin() + splice.first + splice.removed);
            spliced.insert(spliced.begin() + splice.first, after.begin() + splice.first,
                           after.begin() + splice.first + splice.inserted);
            ASSERT_EQ(spliced, after) << "the splice tells what has changed";
        }
    }
}

} // namespace
