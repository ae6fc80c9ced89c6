/// @file
/// A set of row indices as sorted, disjoint ranges. No window needed.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

/// Row indices from 0 on. All operations take half the ranges' count at most as time; none allocates per row.
/// @ingroup toolkit_report
class RowSelection {
public:
    /// Rows `first`…`last`, both inclusive.
    struct Range {
        int first; ///< the upper row
        int last;  ///< the lower row, at least `first`
        /// The same rows.
        bool operator==(const Range&) const = default;
    };

    bool Contains(int row) const;                     ///< false for negative rows
    bool IsEmpty() const { return m_ranges.empty(); } ///< O(1)
    std::int64_t Count() const;                       ///< rows, not ranges
    /// The index-th row from the top, −1 when there are fewer.
    int RowAt(std::int64_t index) const;

    void Clear() { m_ranges.clear(); } ///< no row is in it then
    /// Adds the rows `first`…`last`, both inclusive; neighbouring ranges become one. Nothing when `last` is less.
    void Add(int first, int last);
    /// Takes out the rows `first`…`last`, both inclusive, which may cut a range in two.
    void Remove(int first, int last);
    void Invert(int row); ///< in when it was out, out when it was in
    /// From `first` on, `removed` rows go away and leave the set, and `inserted` others, which are not in it, come in
    /// their place; all rows below move along.
    void Splice(int first, int removed, int inserted);
    /// The rows of the other set go away and leave this one; those below them move up. Linear in the ranges of both.
    void TakeOut(const RowSelection& gone);
    /// How many rows of the set stand above the row.
    int CountAbove(int row) const;
    /// Drops everything from `count` on.
    void Truncate(int count);

    /// From the top; they neither overlap nor touch.
    const std::vector<Range>& Ranges() const { return m_ranges; }
    /// The same rows: a set of rows has one form as ranges.
    bool operator==(const RowSelection&) const = default;

private:
    std::vector<Range> m_ranges;
};
