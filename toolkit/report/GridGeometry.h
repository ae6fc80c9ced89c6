// Where rows and columns of a grid stand, and which one a point means. Arithmetic only, no window needed.
#pragma once

#include "RowHeights.h"

#include <cstdint>
#include <vector>

namespace gridgeometry {

/// How near to a divider, in pixels at 96 DPI, the pointer has to be to take hold of it.
constexpr int DividerReach = 4;

/// Indices `first`…`last`, both inclusive; empty when `last` is less than `first`.
struct IndexRange {
    int first = 0;
    int last = -1;
    bool IsEmpty() const { return last < first; }
    bool operator==(const IndexRange&) const = default;
};

/// Which way the keyboard moves the focus among rows.
enum class RowMove { Up, Down, PageUp, PageDown, Home, End };

/// Rows under each other, seen through a view that always begins at the top of a row. Rows of one height take no memory
/// and every operation on them is O(1), for up to 2^31 - 1 rows; for rows of several heights it is logarithmic. Heights
/// are pixels and `y` counts from the upper edge of the view.
class StackedRows {
public:
    /// Rows of one height. Negative counts and heights count as 0, a row height below 1 as 1.
    StackedRows(int count, int rowHeight, int viewHeight);
    /// Rows of the heights given, which must live as long as this. Room above the first and below the last row counts
    /// as rows of kind 0.
    StackedRows(const RowHeights& heights, int viewHeight);

    int Count() const { return m_count; }
    std::int64_t TotalHeight() const { return TopOf(m_count); }

    /// Whole rows that fit into the view below and with the top row, at least 1 so that paging always moves.
    int FullyVisibleCount(int topRow) const;
    /// The largest top row: with it the last row stands whole at the lower end of the view.
    int MaxTopRow() const;
    int ClampTopRow(std::int64_t topRow) const;
    /// The top row a page above: the present one would be the first below the view. May be negative.
    std::int64_t PageAbove(int topRow) const;

    /// The row at `y`; -1 above the view and below the last row. Rows below the view's lower edge count as well.
    int RowAt(int topRow, int y) const;
    /// As `RowAt`, with the first or last row for points beyond them; -1 only when there are no rows.
    int NearestRow(int topRow, int y) const;
    /// The upper edge of the row, in the view's pixels; held within what a 32-bit rectangle can carry. The lower edge
    /// is the upper one of the next row, also of the last.
    int RowTop(int topRow, int row) const;
    /// The rows that meet the view, the last one perhaps cut off.
    IndexRange VisibleRows(int topRow) const { return RowsInBand(topRow, 0, m_viewHeight); }
    /// The rows of the view that meet the pixels `yBegin` <= y < `yEnd`.
    IndexRange RowsInBand(int topRow, int yBegin, int yEnd) const;
    /// The top row that shows `row` whole with the least scrolling; `topRow` when it is whole already. A row higher
    /// than the view begins at its upper edge.
    int TopRowToShow(int topRow, int row) const;

    /// The row that gets the focus from `focused` (-1: none yet). Page keys go to the end of the visible page first and
    /// then on by a page, as in a list box. -1 when there are no rows.
    int NextRow(RowMove move, int focused, int topRow) const;

private:
    std::int64_t TopOf(std::int64_t row) const;
    std::int64_t RowOfPlace(std::int64_t place) const;
    std::int64_t LastWholeFrom(std::int64_t row) const;
    std::int64_t FirstWholeUpTo(std::int64_t row) const;

    const RowHeights* m_heights = nullptr; ///< null: all rows are of `m_rowHeight`
    int m_count;
    int m_rowHeight;
    int m_viewHeight;
};

/// Where a visible column stands: pixels `left` <= x < `right`.
struct ColumnExtent {
    int left = 0;
    int right = 0;
    bool resizable = true;
    int Width() const { return right - left; }
    bool operator==(const ColumnExtent&) const = default;
};

/// Columns of these widths side by side, the first beginning at `x`. Negative widths count as 0.
std::vector<ColumnExtent> LayOutColumns(const std::vector<int>& widths, int x);

/// The index of the column at `x`; -1 for none.
int ColumnAt(const std::vector<ColumnExtent>& columns, int x);
/// The columns that meet the pixels `xBegin` <= x < `xEnd`.
IndexRange ColumnsInBand(const std::vector<ColumnExtent>& columns, int xBegin, int xEnd);

/// The resizable column whose right edge is nearest to `x`, at most `reach` pixels away; -1 for none. Where several
/// edges coincide, as after a column was shrunk to nothing, a pointer on or right of them means the last of these
/// columns, one left of them the first, so that each can be had again.
int DividerAt(const std::vector<ColumnExtent>& columns, int x, int reach = DividerReach);

/// The place 0…n before which a column dropped at `x` lands: left half of a column, before it; right half, behind it.
int DropPosition(const std::vector<ColumnExtent>& columns, int x);
/// Where the mark of that place stands: the left edge of the column there, or the right edge of the last.
int DropMarkX(const std::vector<ColumnExtent>& columns, int position);
/// False for the two places next to the dragged column, where a drop changes nothing.
bool DropMoves(int draggedColumn, int position);

/// The largest useful sideways scroll, and an offset brought into 0…that.
int MaxLeftOffset(int totalWidth, int viewWidth);
int ClampLeftOffset(int offset, int totalWidth, int viewWidth);
/// The offset that shows `column` whole with the least scrolling, its left edge when it is wider than the view. The
/// extent is that of unscrolled columns, the first of which begins at 0.
int LeftOffsetToShow(int offset, const ColumnExtent& column, int viewWidth);

/// Which scroll bars a view needs.
struct ScrollBars {
    bool horizontal = false;
    bool vertical = false;
    bool operator==(const ScrollBars&) const = default;
};
/// Decides for content in a view whose size is given without bars; each bar takes room from the other direction.
ScrollBars FitScrollBars(int viewWidth, int viewHeight, int contentWidth, std::int64_t contentHeight, int barWidth,
                         int barHeight);

/// Turns wheel movement into whole lines and keeps the rest, so that a fine wheel scrolls as far as a coarse one.
class WheelAccumulator {
public:
    /// `delta` as the wheel message has it (120 is a notch, positive is away from the user); `linesPerNotch` may be 0.
    /// Returns the lines to scroll down (negative: up). A change of direction drops the rest.
    int Turn(int delta, int linesPerNotch);
    void Reset() { m_rest = 0; }

private:
    std::int64_t m_rest = 0; ///< delta times lines, not yet worth a line
};

} // namespace gridgeometry
