// Which rows of an outline are shown.
#include "RowOutline.h"

#include <algorithm>

RowOutline::RowOutline(const std::vector<int>& parents) {
    m_nodes.reserve(parents.size());
    for (int node = 0; node < static_cast<int>(parents.size()); ++node) {
        m_nodes.push_back({parents[node], node + 1, 0});
        if (parents[node] >= 0)
            ++m_nodes[parents[node]].children;
    }
    // From the last one: the end of a node is known before that of the one above it.
    for (int node = NodeCount() - 1; node >= 0; --node)
        if (const int parent = m_nodes[node].parent; parent >= 0)
            m_nodes[parent].end = std::max(m_nodes[parent].end, m_nodes[node].end);
}

int RowOutline::Level(int node) const {
    int level = 0;
    for (node = Parent(node); node >= 0; node = Parent(node))
        ++level;
    return level;
}

int RowOutline::FirstRowFrom(int node) const {
    return static_cast<int>(std::lower_bound(m_shown.begin(), m_shown.end(), node) - m_shown.begin());
}

int RowOutline::RowOf(int node) const {
    const int row = FirstRowFrom(node);
    return row < RowCount() && m_shown[row] == node ? row : -1;
}

int RowOutline::RowOfNearest(int node) const {
    int row = -1;
    for (; node >= 0 && row < 0; node = Parent(node))
        row = RowOf(node);
    return row;
}

bool RowOutline::IsExpanded(int row) const { return row + 1 < RowCount() && m_shown[row + 1] < End(m_shown[row]); }

int RowOutline::NextSibling(int node) const {
    const int end = Parent(node) >= 0 ? End(Parent(node)) : NodeCount();
    int next = End(node);
    while (next < end && IsRemoved(next))
        next = End(next);
    return next < end ? next : -1;
}

int RowOutline::NextSiblingRow(int row) const {
    const int next = NextSibling(m_shown[row]);
    return next >= 0 ? RowOf(next) : -1;
}

int RowOutline::BranchEnd(int row) const { return FirstRowFrom(End(m_shown[row])); }

RowSplice RowOutline::Hide(int firstNode, int endNode) {
    const int first = FirstRowFrom(firstNode), end = FirstRowFrom(endNode);
    m_shown.erase(m_shown.begin() + first, m_shown.begin() + end);
    return {first, end - first, 0};
}

RowSplice RowOutline::Collapse(int row) {
    const int node = m_shown[row];
    return Hide(node + 1, End(node));
}

void RowOutline::Remove(int node) {
    if (IsRemoved(node))
        return;
    if (const int parent = Parent(node); parent >= 0)
        --m_nodes[parent].children;
    MarkRemoved(node, End(node));
}

void RowOutline::RemoveBelow(int node) {
    if (!IsRemoved(node))
        m_nodes[node].children = 0;
    MarkRemoved(node + 1, End(node));
}

void RowOutline::HideRemoved() {
    std::erase_if(m_shown, [this](int node) { return IsRemoved(node); });
}

void RowOutline::MarkRemoved(int firstNode, int endNode) {
    for (int node = firstNode; node < endNode; ++node)
        m_nodes[node].children = -1;
}
