// Which rows of an outline are shown. Arithmetic only, no window needed.
#pragma once

#include <cstdint>
#include <vector>

/// Rows at the same place before and after a change: from `first` on, `removed` rows have gone and `inserted` others
/// stand in their place; all below have moved along.
struct RowSplice {
    int first = 0;
    int removed = 0;
    int inserted = 0;
    bool IsNothing() const { return removed == 0 && inserted == 0; }
    bool operator==(const RowSplice&) const = default;
};

/// The nodes of a forest in the order in which they stand below each other when everything is expanded, and which of
/// them have a row: those above which every node is expanded. The number of a node is its place in that order and never
/// changes, also when others are removed. A row is found from its node, and the other way round, without any number's
/// being kept up to date, so that an expansion among a million rows is one move of memory.
class RowOutline {
public:
    /// `parents[n]` is the node above node n, less than n; -1 for a root. Below a node that was left stands no further
    /// one. Nothing is shown yet.
    explicit RowOutline(const std::vector<int>& parents);

    int NodeCount() const { return static_cast<int>(m_nodes.size()); } ///< those that were removed counted
    int Parent(int node) const { return m_nodes[node].parent; }        ///< -1 for a root
    /// Behind the last node below it.
    int End(int node) const { return m_nodes[node].end; }
    int Level(int node) const;                                              ///< nodes above it
    bool HasChildren(int node) const { return m_nodes[node].children > 0; } ///< that were not removed
    bool IsRemoved(int node) const { return m_nodes[node].children < 0; }

    int RowCount() const { return static_cast<int>(m_shown.size()); }
    int NodeAt(int row) const { return m_shown[row]; } ///< 0 <= row < count
    int RowOf(int node) const;                         ///< -1 when the node is not shown
    /// The row of the node, else of the nearest node above it that has one; -1 when there is none.
    int RowOfNearest(int node) const;
    bool IsExpanded(int row) const;    ///< rows of nodes below it are shown
    int NextSiblingRow(int row) const; ///< -1 for the last node below a parent
    int BranchEnd(int row) const;      ///< behind the last row below it
    /// Whether another node stands below the same parent behind this one.
    bool HasNextSibling(int node) const { return NextSibling(node) >= 0; }

    /// Shows the roots, and all below those nodes for which `isExpanded(node)` says so.
    template <class IsExpanded>
    void ShowAll(IsExpanded isExpanded) {
        m_shown = Shown(0, NodeCount(), isExpanded);
    }
    /// Shows what is below the row, as far as `isExpanded` says so; nothing when that is shown already.
    template <class IsExpanded>
    RowSplice Expand(int row, IsExpanded isExpanded) {
        const int node = m_shown[row];
        if (this->IsExpanded(row))
            return {};
        const std::vector<int> below = Shown(node + 1, m_nodes[node].end, isExpanded);
        m_shown.insert(m_shown.begin() + row + 1, below.begin(), below.end());
        return {row + 1, 0, static_cast<int>(below.size())};
    }
    /// As `Expand`, and shows anew what is shown already. Nothing changes for want of memory.
    template <class IsExpanded>
    RowSplice ExpandAnew(int row, IsExpanded isExpanded) {
        const int node = m_shown[row];
        const std::vector<int> below = Shown(node + 1, m_nodes[node].end, isExpanded);
        m_shown.reserve(m_shown.size() + below.size());
        const RowSplice former = Collapse(row);
        m_shown.insert(m_shown.begin() + row + 1, below.begin(), below.end());
        return {row + 1, former.removed, static_cast<int>(below.size())};
    }
    RowSplice Collapse(int row); ///< hides all that is below the row
    /// Takes the node out with all below it; the numbers of the others stay. Their rows have to be hidden then. Needs
    /// no memory.
    void Remove(int node);
    void RemoveBelow(int node); ///< the same for all that is below the node
    /// Takes out the rows of the nodes from `firstNode` up to `endNode`.
    RowSplice Hide(int firstNode, int endNode);
    void HideRemoved(); ///< takes out the rows of all nodes that were removed; linear in the rows

private:
    struct Node {
        int parent;
        int end;
        int children; ///< directly below it, without those removed; -1: removed itself
    };
    /// The nodes from `node` up to `end` that are shown when the one above `node` is expanded.
    template <class IsExpanded>
    std::vector<int> Shown(int node, int end, IsExpanded isExpanded) const {
        std::vector<int> shown;
        while (node < end) {
            const bool isThere = !IsRemoved(node);
            if (isThere)
                shown.push_back(node);
            node = isThere && HasChildren(node) && isExpanded(node) ? node + 1 : End(node);
        }
        return shown;
    }
    int NextSibling(int node) const;
    int FirstRowFrom(int node) const; ///< the first row of that node or one behind it
    void MarkRemoved(int firstNode, int endNode);

    std::vector<Node> m_nodes;
    std::vector<int> m_shown; ///< the node of each row
};
