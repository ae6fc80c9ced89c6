// How high the rows of a grid are that are not all of one height.
#include "RowHeights.h"

#include <algorithm>
#include <utility>

namespace gridgeometry {

namespace {

/// Small enough that adding up a part of a block costs as little as the search for the block.
constexpr std::size_t Block = 64;

} // namespace

void RowHeights::Assign(Kinds kinds, std::vector<int> heights) {
    m_blockTops.reserve(kinds.size() / Block + 1); // nothing changes when there is no memory for it
    m_kinds = std::move(kinds);
    m_heights = std::move(heights);
    AddUp(0);
}

void RowHeights::SetHeights(std::vector<int> heights) {
    if (heights == m_heights)
        return;
    m_heights = std::move(heights);
    AddUp(0);
}

void RowHeights::Clear() {
    m_kinds = Kinds();
    m_heights.clear();
    m_blockTops = std::vector<std::int64_t>();
}

/// The blocks before the first one are right.
void RowHeights::AddUp(std::size_t firstBlock) {
    const std::size_t first = firstBlock * Block;
    std::int64_t top = first > 0 ? m_blockTops[firstBlock - 1] : 0;
    for (std::size_t row = first > 0 ? first - Block : 0; row < first; ++row)
        top += m_heights[m_kinds[row]];
    m_blockTops.resize(firstBlock);
    for (std::size_t row = first; row < m_kinds.size(); ++row) {
        if (row % Block == 0)
            m_blockTops.push_back(top);
        top += m_heights[m_kinds[row]];
    }
}

void RowHeights::Splice(int first, int removed, const Kinds& inserted) {
    if (removed == 1 && inserted.empty()) {
        Erase(static_cast<std::size_t>(first));
        return;
    }
    const std::size_t rows = m_kinds.size() + inserted.size();
    m_kinds.reserve(rows); // nothing changes when there is no memory for it
    m_blockTops.reserve(rows / Block + 1);
    const auto begin = m_kinds.begin() + first;
    m_kinds.insert(m_kinds.erase(begin, begin + removed), inserted.begin(), inserted.end());
    AddUp(std::min(static_cast<std::size_t>(first) / Block, m_kinds.size() / Block));
}

void RowHeights::Erase(std::size_t row) {
    const int gone = m_heights[m_kinds[row]];
    // Every later block loses the row that stood first in it to the block before.
    for (std::size_t block = row / Block + 1; block < m_blockTops.size(); ++block)
        m_blockTops[block] += m_heights[m_kinds[block * Block]] - gone;
    m_kinds.erase(m_kinds.begin() + static_cast<std::ptrdiff_t>(row));
    m_blockTops.resize((m_kinds.size() + Block - 1) / Block);
}

std::int64_t RowHeights::TopOf(int row) const {
    if (m_kinds.empty())
        return 0;
    const auto end = static_cast<std::size_t>(row);
    const std::size_t block = std::min(end / Block, m_blockTops.size() - 1);
    std::int64_t top = m_blockTops[block];
    for (std::size_t i = block * Block; i < end; ++i)
        top += m_heights[m_kinds[i]];
    return top;
}

int RowHeights::RowAt(std::int64_t place) const {
    const auto behind = std::upper_bound(m_blockTops.begin(), m_blockTops.end(), place);
    const auto block = static_cast<std::size_t>(behind - m_blockTops.begin()) - 1;
    std::size_t row = block * Block;
    for (std::int64_t bottom = m_blockTops[block]; row + 1 < m_kinds.size(); ++row) {
        bottom += m_heights[m_kinds[row]];
        if (place < bottom)
            break;
    }
    return static_cast<int>(row);
}

} // namespace gridgeometry
