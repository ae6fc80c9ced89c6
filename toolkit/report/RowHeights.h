// How high the rows of a grid are that are not all of one height. Arithmetic only, no window needed.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace gridgeometry {

/// Heights of rows of several kinds: a byte tells the kind of each row, and all rows of a kind are equally high. Sums
/// over blocks of rows make places of rows cheap; taking out a row of a million moves a million bytes. Heights are
/// pixels, places count from the upper edge of the first row.
class RowHeights {
public:
    using Kinds = std::vector<std::uint8_t>;

    /// `heights` has an entry for every kind that occurs, each at least 1. Linear in the rows.
    void Assign(Kinds kinds, std::vector<int> heights);
    /// The kinds stay, their heights are others. Linear in the rows, unless nothing changes.
    void SetHeights(std::vector<int> heights);
    void Clear();
    /// Takes out `removed` rows from `first` on, all of them there, and puts rows of those kinds in their place. A row
    /// that is taken out alone costs a move of memory; else it is linear in the rows below.
    void Splice(int first, int removed, const Kinds& inserted);

    int Count() const { return static_cast<int>(m_kinds.size()); } ///< rows
    int HeightOfKind(int kind) const { return m_heights[static_cast<std::size_t>(kind)]; }
    /// 0 <= row < count.
    int KindOf(int row) const { return m_kinds[static_cast<std::size_t>(row)]; }
    /// The upper edge of the row; that of the row behind the last is the total height. 0 <= row <= count.
    std::int64_t TopOf(int row) const;
    std::int64_t TotalHeight() const { return TopOf(Count()); }
    /// The row in which the place lies. 0 <= place < total height.
    int RowAt(std::int64_t place) const;

private:
    void AddUp(std::size_t firstBlock);
    void Erase(std::size_t row);

    Kinds m_kinds;
    std::vector<int> m_heights;            ///< by kind
    std::vector<std::int64_t> m_blockTops; ///< the upper edge of every 64th row
};

} // namespace gridgeometry
