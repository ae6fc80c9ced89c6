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

UniformRows::UniformRows(int count, int rowHeight, int viewHeight)
    : m_count(std::max(count, 0)), m_rowHeight(std::max(rowHeight, 1)), m_viewHeight(std::max(viewHeight, 0)) {}

int UniformRows::FullyVisibleCount() const { return std::max(m_viewHeight / m_rowHeight, 1); }

int UniformRows::MaxTopRow() const { return std::max(m_count - FullyVisibleCount(), 0); }

int UniformRows::ClampTopRow(std::int64_t topRow) const {
    return static_cast<int>(std::clamp<std::int64_t>(topRow, 0, MaxTopRow()));
}

int UniformRows::RowAt(int topRow, int y) const {
    if (y < 0)
        return -1;
    const std::int64_t row = static_cast<std::int64_t>(topRow) + y / m_rowHeight;
    return row >= 0 && row < m_count ? static_cast<int>(row) : -1;
}

int UniformRows::NearestRow(int topRow, int y) const {
    if (m_count == 0)
        return -1;
    const std::int64_t row = topRow + FloorDivide(y, m_rowHeight);
    return static_cast<int>(std::clamp<std::int64_t>(row, 0, m_count - 1));
}

int UniformRows::RowTop(int topRow, int row) const {
    return ToCoordinate((static_cast<std::int64_t>(row) - topRow) * m_rowHeight);
}

IndexRange UniformRows::RowsInBand(int topRow, int yBegin, int yEnd) const {
    yBegin = std::max(yBegin, 0);
    yEnd = std::min(yEnd, m_viewHeight);
    if (yBegin >= yEnd || m_count == 0)
        return {};
    const std::int64_t first = static_cast<std::int64_t>(topRow) + yBegin / m_rowHeight;
    const std::int64_t last = static_cast<std::int64_t>(topRow) + (yEnd - 1) / m_rowHeight;
    if (first >= m_count || last < 0)
        return {};
    return {static_cast<int>(std::max<std::int64_t>(first, 0)),
            static_cast<int>(std::min<std::int64_t>(last, m_count - 1))};
}

int UniformRows::TopRowToShow(int topRow, int row) const {
    if (row < 0 || row >= m_count)
        return ClampTopRow(topRow);
    if (row < topRow)
        return ClampTopRow(row);
    const std::int64_t lastWhole = static_cast<std::int64_t>(topRow) + FullyVisibleCount() - 1;
    return ClampTopRow(row > lastWhole ? row - FullyVisibleCount() + 1 : topRow);
}

int UniformRows::NextRow(RowMove move, int focused, int topRow) const {
    if (m_count == 0)
        return -1;
    const std::int64_t page = FullyVisibleCount();
    const std::int64_t pageEnd = topRow + page - 1;
    std::int64_t row = focused;
    switch (move) {
    case RowMove::Up:
        row = focused < 0 ? 0 : row - 1;
        break;
    case RowMove::Down:
        row = row + 1;
        break;
    case RowMove::PageUp:
        row = row > topRow ? topRow : row - std::max<std::int64_t>(page - 1, 1);
        break;
    case RowMove::PageDown:
        row = row < pageEnd ? pageEnd : row + std::max<std::int64_t>(page - 1, 1);
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
