// Where rows and columns of a grid stand, and which one a point means.
#include "GridGeometry.h"

#include <algorithm>
#include <cstdlib>
#include <limits>

namespace gridgeometry {

namespace {

constexpr int WheelNotch = 120;

// Windows keeps coordinates of rectangles well only while sums of two of them fit; a quarter of the range leaves room.
int ToCoordinate(std::int64_t value) {
    constexpr std::int64_t limit = std::numeric_limits<int>::max() / 4;
    return static_cast<int>(std::clamp(value, -limit, limit));
}

std::int64_t FloorDivide(std::int64_t value, std::int64_t divisor) {
    const std::int64_t quotient = value / divisor;
    return value % divisor < 0 ? quotient - 1 : quotient;
}

} // namespace

StackedRows::StackedRows(int count, int rowHeight, int viewHeight)
    : m_count(std::max(count, 0)), m_rowHeight(std::max(rowHeight, 1)), m_viewHeight(std::max(viewHeight, 0)) {}

StackedRows::StackedRows(const RowHeights& heights, int viewHeight)
    : m_heights(&heights), m_count(heights.Count()), m_rowHeight(m_count > 0 ? heights.HeightOfKind(0) : 1),
      m_viewHeight(std::max(viewHeight, 0)) {}

// --- Places from the upper edge of the first row ---------------------------------------------------------------------

std::int64_t StackedRows::TopOf(std::int64_t row) const {
    if (!m_heights || row <= 0)
        return row * m_rowHeight;
    const std::int64_t behind = std::max<std::int64_t>(row - m_count, 0);
    return m_heights->TopOf(static_cast<int>(row - behind)) + behind * m_rowHeight;
}

/// Also beyond the rows, where those of the ordinary height would go on.
std::int64_t StackedRows::RowOfPlace(std::int64_t place) const {
    if (!m_heights || place < 0)
        return FloorDivide(place, m_rowHeight);
    const std::int64_t total = m_heights->TotalHeight();
    return place < total ? m_heights->RowAt(place) : m_count + (place - total) / m_rowHeight;
}

/// The last row that is whole in a view that begins with `row`; at least `row` itself.
std::int64_t StackedRows::LastWholeFrom(std::int64_t row) const {
    return std::max(RowOfPlace(TopOf(row) + m_viewHeight) - 1, row);
}

/// The first row that is whole in a view that ends with `row`; at most `row` itself.
std::int64_t StackedRows::FirstWholeUpTo(std::int64_t row) const {
    const std::int64_t viewTop = TopOf(row + 1) - m_viewHeight;
    return std::min(RowOfPlace(viewTop - 1) + 1, row);
}

// --- The view --------------------------------------------------------------------------------------------------------

int StackedRows::FullyVisibleCount(int topRow) const { return static_cast<int>(LastWholeFrom(topRow) - topRow + 1); }

int StackedRows::MaxTopRow() const {
    return static_cast<int>(std::max<std::int64_t>(FirstWholeUpTo(std::int64_t{m_count} - 1), 0));
}

int StackedRows::ClampTopRow(std::int64_t topRow) const {
    return static_cast<int>(std::clamp<std::int64_t>(topRow, 0, MaxTopRow()));
}

std::int64_t StackedRows::PageAbove(int topRow) const { return FirstWholeUpTo(std::int64_t{topRow} - 1); }

int StackedRows::RowAt(int topRow, int y) const {
    if (y < 0)
        return -1;
    const std::int64_t row = RowOfPlace(TopOf(topRow) + y);
    return row >= 0 && row < m_count ? static_cast<int>(row) : -1;
}

int StackedRows::NearestRow(int topRow, int y) const {
    if (m_count == 0)
        return -1;
    return static_cast<int>(std::clamp<std::int64_t>(RowOfPlace(TopOf(topRow) + y), 0, m_count - 1));
}

int StackedRows::RowTop(int topRow, int row) const { return ToCoordinate(TopOf(row) - TopOf(topRow)); }

IndexRange StackedRows::RowsInBand(int topRow, int yBegin, int yEnd) const {
    yBegin = std::max(yBegin, 0);
    yEnd = std::min(yEnd, m_viewHeight);
    if (yBegin >= yEnd || m_count == 0)
        return {};
    const std::int64_t top = TopOf(topRow);
    const std::int64_t first = RowOfPlace(top + yBegin);
    const std::int64_t last = RowOfPlace(top + yEnd - 1);
    if (first >= m_count || last < 0)
        return {};
    return {static_cast<int>(std::max<std::int64_t>(first, 0)),
            static_cast<int>(std::min<std::int64_t>(last, m_count - 1))};
}

int StackedRows::TopRowToShow(int topRow, int row) const {
    if (row < 0 || row >= m_count)
        return ClampTopRow(topRow);
    return ClampTopRow(row < topRow ? row : std::max<std::int64_t>(topRow, FirstWholeUpTo(row)));
}

int StackedRows::NextRow(RowMove move, int focused, int topRow) const {
    if (m_count == 0)
        return -1;
    const std::int64_t pageEnd = LastWholeFrom(topRow);
    std::int64_t row = focused;
    switch (move) {
    case RowMove::Up:
        row = focused < 0 ? 0 : row - 1;
        break;
    case RowMove::Down:
        row = row + 1;
        break;
    case RowMove::PageUp:
        row = row > topRow ? topRow : std::min(FirstWholeUpTo(row), row - 1);
        break;
    case RowMove::PageDown:
        row = row < pageEnd ? pageEnd : std::max(LastWholeFrom(row), row + 1);
        break;
    case RowMove::Home:
        row = 0;
        break;
    case RowMove::End:
        row = m_count - 1;
        break;
    }
    return static_cast<int>(std::clamp<std::int64_t>(row, 0, m_count - 1));
}

std::vector<ColumnExtent> LayOutColumns(const std::vector<int>& widths, int x) {
    std::vector<ColumnExtent> columns;
    columns.reserve(widths.size());
    std::int64_t left = x;
    for (const int width : widths) {
        const std::int64_t right = left + std::max(width, 0);
        columns.push_back({ToCoordinate(left), ToCoordinate(right)});
        left = right;
    }
    return columns;
}

int ColumnAt(const std::vector<ColumnExtent>& columns, int x) {
    // Columns stand side by side, so the first one that ends behind x is the only candidate.
    const auto it = std::upper_bound(columns.begin(), columns.end(), x,
                                     [](int value, const ColumnExtent& column) { return value < column.right; });
    return it != columns.end() && it->left <= x ? static_cast<int>(it - columns.begin()) : -1;
}

IndexRange ColumnsInBand(const std::vector<ColumnExtent>& columns, int xBegin, int xEnd) {
    IndexRange range;
    if (xBegin >= xEnd)
        return range;
    const auto first = std::upper_bound(columns.begin(), columns.end(), xBegin,
                                        [](int value, const ColumnExtent& column) { return value < column.right; });
    const auto end = std::lower_bound(first, columns.end(), xEnd,
                                      [](const ColumnExtent& column, int value) { return column.left < value; });
    range.first = static_cast<int>(first - columns.begin());
    range.last = static_cast<int>(end - columns.begin()) - 1;
    return range.IsEmpty() ? IndexRange{} : range;
}

int DividerAt(const std::vector<ColumnExtent>& columns, int x, int reach) {
    int found = -1;
    int foundDistance = 0;
    for (int i = 0; i < static_cast<int>(columns.size()); ++i) {
        if (!columns[i].resizable)
            continue;
        const int edge = columns[i].right;
        const int distance = std::abs(x - edge);
        if (distance > reach)
            continue;
        const bool isNearer = found < 0 || distance < foundDistance;
        const bool isLaterOfSameEdge = found >= 0 && edge == columns[found].right && x >= edge;
        if (isNearer || isLaterOfSameEdge) {
            found = i;
            foundDistance = distance;
        }
    }
    return found;
}

int DropPosition(const std::vector<ColumnExtent>& columns, int x) {
    int position = 0;
    for (const ColumnExtent& column : columns) {
        if (x < column.left + column.Width() / 2)
            break;
        ++position;
    }
    return position;
}

int DropMarkX(const std::vector<ColumnExtent>& columns, int position) {
    if (columns.empty())
        return 0;
    if (position >= static_cast<int>(columns.size()))
        return columns.back().right;
    return columns[std::max(position, 0)].left;
}

bool DropMoves(int draggedColumn, int position) {
    return position >= 0 && position != draggedColumn && position != draggedColumn + 1;
}

int MaxLeftOffset(int totalWidth, int viewWidth) { return std::max(totalWidth - std::max(viewWidth, 0), 0); }

int ClampLeftOffset(int offset, int totalWidth, int viewWidth) {
    return std::clamp(offset, 0, MaxLeftOffset(totalWidth, viewWidth));
}

int LeftOffsetToShow(int offset, const ColumnExtent& column, int viewWidth) {
    if (column.left < offset || column.Width() >= viewWidth)
        return column.left;
    return std::max(offset, column.right - viewWidth);
}

ScrollBars FitScrollBars(int viewWidth, int viewHeight, int contentWidth, std::int64_t contentHeight, int barWidth,
                         int barHeight) {
    ScrollBars bars;
    bars.horizontal = contentWidth > viewWidth;
    bars.vertical = contentHeight > viewHeight - (bars.horizontal ? barHeight : 0);
    // The vertical bar may push the content over the edge that it had just kept.
    if (bars.vertical && !bars.horizontal && contentWidth > viewWidth - barWidth)
        bars.horizontal = true;
    return bars;
}

int WheelAccumulator::Turn(int delta, int linesPerNotch) {
    const std::int64_t movement = -static_cast<std::int64_t>(delta) * linesPerNotch;
    if ((movement > 0 && m_rest < 0) || (movement < 0 && m_rest > 0))
        m_rest = 0;
    m_rest += movement;
    const std::int64_t lines = m_rest / WheelNotch;
    m_rest -= lines * WheelNotch;
    return static_cast<int>(
        std::clamp<std::int64_t>(lines, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()));
}

} // namespace gridgeometry
