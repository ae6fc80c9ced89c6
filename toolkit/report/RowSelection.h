// A set of row indices as sorted, disjoint ranges. No window needed.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

/// Row indices from 0 on. All operations take half the ranges' count at most as time; none allocates per row.
class RowSelection {
public:
    /// Rows `first`…`last`, both inclusive.
    struct Range {
        int first;
        int last;
        bool operator==(const Range&) const = default;
    };

    bool Contains(int row) const;
    bool IsEmpty() const { return m_ranges.empty(); }
    std::int64_t Count() const;
    /// The index-th row from the top, −1 when there are fewer.
    int RowAt(std::int64_t index) const;

    void Clear() { m_ranges.clear(); }
    void Add(int first, int last);
    void Remove(int first, int last);
    void Invert(int row);
    /// The row at `row` goes away: it leaves the set and all rows below move up by one.
    void RowRemoved(int row);
    /// Drops everything from `count` on.
    void Truncate(int count);

    const std::vector<Range>& Ranges() const { return m_ranges; }
    bool operator==(const RowSelection&) const = default;

private:
    std::vector<Range> m_ranges;
};
