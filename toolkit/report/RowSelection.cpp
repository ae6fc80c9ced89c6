// A set of row indices as sorted, disjoint ranges.
#include "RowSelection.h"

#include <algorithm>

namespace {

/// The first range that ends at or behind `row`.
template <class Ranges>
auto FirstEndingAtOrBehind(Ranges& ranges, std::int64_t row) {
    return std::lower_bound(ranges.begin(), ranges.end(), row,
                            [](const RowSelection::Range& range, std::int64_t value) { return range.last < value; });
}

} // namespace

bool RowSelection::Contains(int row) const {
    const auto it = FirstEndingAtOrBehind(m_ranges, row);
    return it != m_ranges.end() && it->first <= row;
}

std::int64_t RowSelection::Count() const {
    std::int64_t count = 0;
    for (const Range& range : m_ranges)
        count += static_cast<std::int64_t>(range.last) - range.first + 1;
    return count;
}

int RowSelection::RowAt(std::int64_t index) const {
    if (index < 0)
        return -1;
    for (const Range& range : m_ranges) {
        const std::int64_t length = static_cast<std::int64_t>(range.last) - range.first + 1;
        if (index < length)
            return static_cast<int>(range.first + index);
        index -= length;
    }
    return -1;
}

void RowSelection::Add(int first, int last) {
    first = std::max(first, 0);
    if (last < first)
        return;
    // Neighbours that only touch are merged too, so that equal sets have equal ranges.
    const auto begin = FirstEndingAtOrBehind(m_ranges, static_cast<std::int64_t>(first) - 1);
    auto end = begin;
    while (end != m_ranges.end() && end->first <= static_cast<std::int64_t>(last) + 1) {
        first = std::min(first, end->first);
        last = std::max(last, end->last);
        ++end;
    }
    if (begin == end) {
        m_ranges.insert(begin, {first, last});
    } else {
        *begin = {first, last};
        m_ranges.erase(begin + 1, end);
    }
}

void RowSelection::Remove(int first, int last) {
    first = std::max(first, 0);
    if (last < first)
        return;
    auto begin = FirstEndingAtOrBehind(m_ranges, first);
    if (begin == m_ranges.end() || begin->first > last)
        return;
    if (begin->first < first && begin->last > last) {
        const Range tail{last + 1, begin->last};
        begin->last = first - 1;
        m_ranges.insert(begin + 1, tail);
        return;
    }
    if (begin->first < first) {
        begin->last = first - 1;
        ++begin;
    }
    auto end = begin;
    while (end != m_ranges.end() && end->last <= last)
        ++end;
    if (end != m_ranges.end() && end->first <= last)
        end->first = last + 1;
    m_ranges.erase(begin, end);
}

void RowSelection::Invert(int row) {
    if (Contains(row))
        Remove(row, row);
    else
        Add(row, row);
}

void RowSelection::Splice(int first, int removed, int inserted) {
    if (first < 0 || removed < 0 || inserted < 0)
        return;
    // Rows go first, which needs no memory: ends of ranges come nearer, and what is left of two may touch.
    const std::int64_t end = std::int64_t{first} + removed;
    auto kept = m_ranges.begin();
    for (const Range& range : m_ranges) {
        const int from = range.first < first ? range.first : std::max<std::int64_t>(range.first, end) - removed;
        const int to = range.last < first ? range.last : std::max<std::int64_t>(range.last, end - 1) - removed;
        if (kept != m_ranges.begin() && (kept - 1)->last + 1 >= from)
            (kept - 1)->last = std::max((kept - 1)->last, to);
        else if (from <= to)
            *kept++ = {from, to};
    }
    m_ranges.erase(kept, m_ranges.end());
    if (inserted == 0)
        return;
    auto behind = FirstEndingAtOrBehind(m_ranges, first);
    if (behind != m_ranges.end() && behind->first < first) {
        // New rows part the range into which they come.
        const Range tail{first, behind->last};
        behind = m_ranges.insert(behind + 1, tail);
        (behind - 1)->last = first - 1;
    }
    for (; behind != m_ranges.end(); ++behind) {
        behind->first += inserted;
        behind->last += inserted;
    }
}

void RowSelection::Truncate(int count) {
    count = std::max(count, 0);
    while (!m_ranges.empty() && m_ranges.back().first >= count)
        m_ranges.pop_back();
    if (!m_ranges.empty() && m_ranges.back().last >= count)
        m_ranges.back().last = count - 1;
}

void RowSelection::TakeOut(const RowSelection& gone) {
    std::vector<Range> kept;
    auto next = gone.m_ranges.begin();
    std::int64_t moved = 0; // rows gone above `row`
    for (const Range& range : m_ranges) {
        for (std::int64_t row = range.first; row <= range.last;) {
            for (; next != gone.m_ranges.end() && next->last < row; ++next)
                moved += std::int64_t{next->last} - next->first + 1;
            const bool isGone = next != gone.m_ranges.end() && next->first <= row;
            if (isGone) {
                row = std::int64_t{next->last} + 1;
                continue;
            }
            const std::int64_t last =
                next == gone.m_ranges.end() ? range.last : std::min<std::int64_t>(range.last, next->first - 1);
            const int first = static_cast<int>(row - moved);
            if (kept.empty() || kept.back().last + 1 < first)
                kept.push_back({first, first});
            kept.back().last = static_cast<int>(last - moved);
            row = last + 1;
        }
    }
    m_ranges = std::move(kept);
}

int RowSelection::CountAbove(int row) const {
    std::int64_t count = 0;
    for (auto range = m_ranges.begin(); range != m_ranges.end() && range->first < row; ++range)
        count += std::min<std::int64_t>(row, std::int64_t{range->last} + 1) - range->first;
    return static_cast<int>(count);
}
