// How columns share a view.
#include "ColumnGeometry.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <limits>

namespace gridgeometry {

namespace {

/// Products of two lengths, summed up over very many columns, stay within 64 bits.
constexpr int MaxLength = 1 << 20;

int Bounded(std::int64_t length) { return static_cast<int>(std::clamp<std::int64_t>(length, 0, MaxLength)); }

int Sum(const std::vector<int>& widths) {
    std::int64_t sum = 0;
    for (const int width : widths)
        sum += std::max(width, 0);
    return static_cast<int>(std::min<std::int64_t>(sum, std::numeric_limits<int>::max()));
}

/// Divides a room among the columns that share. First each gets its part of it; those of which it is too little or too
/// much are settled at that limit, the side that is more wrong first, until the rest can have what it is due.
class Division {
public:
    Division(const std::vector<SharedColumn>& columns, std::vector<int>& widths, std::int64_t room)
        : m_columns(columns), m_widths(widths), m_room(room) {
        for (std::size_t i = 0; i < columns.size(); ++i) {
            if (columns[i].shares)
                m_open.push_back(i);
        }
    }

    void Run() {
        for (;;) {
            m_shares = 0;
            for (const std::size_t i : m_open)
                m_shares += Share(i);
            std::int64_t wrong = 0; // as everything here, in pixels times the sum of the shares
            for (const std::size_t i : m_open)
                wrong += Limited(i) - Due(i);
            const auto settled = std::stable_partition(m_open.begin(), m_open.end(), [&](std::size_t i) {
                const std::int64_t limited = Limited(i), due = Due(i);
                return !((wrong >= 0 && limited > due) || (wrong <= 0 && limited < due));
            });
            if (settled == m_open.end())
                break;
            std::int64_t settledWidth = 0;
            for (auto it = settled; it != m_open.end(); ++it) {
                m_widths[*it] = static_cast<int>(Limited(*it) / m_shares);
                settledWidth += m_widths[*it];
            }
            m_room -= settledWidth;
            m_open.erase(settled, m_open.end());
        }
        // Rounding the edges and not the widths leaves no pixel over, and no width a pixel beyond its limits.
        std::int64_t before = 0, edge = 0;
        for (const std::size_t i : m_open) {
            before += Share(i);
            const std::int64_t next = m_room * before / m_shares;
            m_widths[i] = static_cast<int>(next - edge);
            edge = next;
        }
    }

private:
    std::int64_t Share(std::size_t i) const { return std::clamp(m_columns[i].width, 1, MaxLength); }
    std::int64_t Due(std::size_t i) const { return m_room * Share(i); }
    std::int64_t Limited(std::size_t i) const {
        return std::clamp(Due(i), Bounded(m_columns[i].least) * m_shares, Bounded(m_columns[i].most) * m_shares);
    }

    const std::vector<SharedColumn>& m_columns;
    std::vector<int>& m_widths;
    std::vector<std::size_t> m_open; ///< the columns that have no width yet
    std::int64_t m_room;             ///< for them
    std::int64_t m_shares = 0;       ///< theirs
};

} // namespace

// --- Frozen columns -------------------------------------------------------------------------------------------------

int FrozenCount(const std::vector<int>& widths, int asked, int viewWidth) {
    const int wanted = std::clamp(asked, 0, static_cast<int>(widths.size()));
    if (Sum(widths) <= viewWidth)
        return wanted;
    const int room = viewWidth - viewWidth / 4;
    std::int64_t width = 0;
    for (int i = 0; i < wanted; ++i) {
        width += std::max(widths[i], 0);
        if (width > room)
            return i;
    }
    return wanted;
}

std::vector<ColumnExtent> LayOutFrozenColumns(const std::vector<int>& widths, int frozen, int x, int offset) {
    std::vector<ColumnExtent> columns = LayOutColumns(widths, x);
    for (std::size_t i = static_cast<std::size_t>(std::max(frozen, 0)); i < columns.size(); ++i) {
        columns[i].left -= offset;
        columns[i].right -= offset;
    }
    return columns;
}

std::vector<ColumnExtent> CutAtFrozen(std::vector<ColumnExtent> columns, int frozen) {
    if (frozen <= 0 || columns.empty())
        return columns;
    const int count = static_cast<int>(columns.size());
    const int edge = columns[std::min(frozen, count) - 1].right;
    for (int i = frozen; i < count; ++i) {
        columns[i].resizable = columns[i].resizable && columns[i].right > edge;
        columns[i].left = std::max(columns[i].left, edge);
        columns[i].right = std::max(columns[i].right, edge);
    }
    return columns;
}

// --- Columns that fill the view -------------------------------------------------------------------------------------

std::vector<int> ShareWidth(const std::vector<SharedColumn>& columns, int viewWidth) {
    std::vector<int> widths;
    std::int64_t room = Bounded(viewWidth), own = 0, least = 0, most = 0;
    bool isWithinLimits = true;
    for (const SharedColumn& column : columns) {
        widths.push_back(column.width);
        if (!column.shares) {
            room -= std::max(column.width, 0);
            continue;
        }
        own += column.width;
        least += Bounded(column.least);
        most += Bounded(column.most);
        isWithinLimits = isWithinLimits && column.width >= column.least && column.width <= column.most;
    }
    if (own == room && isWithinLimits)
        return widths;
    if (room > least && room < most) {
        Division(columns, widths, room).Run();
        return widths;
    }
    for (std::size_t i = 0; i < columns.size(); ++i) {
        if (columns[i].shares)
            widths[i] = Bounded(room <= least ? columns[i].least : columns[i].most);
    }
    return widths;
}

int LeastWidth(const std::vector<SharedColumn>& columns) {
    std::vector<int> widths;
    for (const SharedColumn& column : columns)
        widths.push_back(column.shares ? Bounded(column.least) : column.width);
    return Sum(widths);
}

int MovableBy(const SharedColumn& left, const SharedColumn& right, int delta) {
    // Columns that are beyond their limits already may stay there.
    const int lowest = -std::max(std::min(left.width - left.least, right.most - right.width), 0);
    const int highest = std::max(std::min(left.most - left.width, right.width - right.least), 0);
    return std::clamp(delta, lowest, highest);
}

// --- The group-by box -----------------------------------------------------------------------------------------------

std::vector<ColumnExtent> LayOutButtons(const std::vector<int>& widths, int left, int right, int gap) {
    if (widths.empty())
        return {};
    std::vector<SharedColumn> buttons;
    for (const int width : widths)
        buttons.push_back({width, 0, width, true});
    const int gaps = gap * static_cast<int>(widths.size() - 1);
    std::vector<ColumnExtent> places;
    int x = left;
    for (const int width : ShareWidth(buttons, right - left - gaps)) {
        places.push_back({x, x + width});
        x += width + gap;
    }
    return places;
}

int ButtonMarkX(const std::vector<ColumnExtent>& buttons, int position, int left, int gap) {
    if (!buttons.empty() && position >= static_cast<int>(buttons.size()))
        return buttons.back().right + gap / 2;
    return (buttons.empty() ? left : buttons[std::max(position, 0)].left) - (gap - gap / 2);
}

} // namespace gridgeometry
