// A row of pixels that stands for all rows of a plot. No window needed.
#pragma once

#include "PlotSpans.h"

#include <cstdint>
#include <vector>

namespace plotspan {

/// The colours (0x00BBGGRR) of neighbouring pixel columns. Painting many narrow spans here and showing them once costs
/// less than filling each of them on the screen.
class PixelRow {
public:
    /// The columns that it consists of; without any it is empty. All are of the one colour at first.
    PixelRow(Span columns, std::uint32_t color)
        : m_columns(columns.IsEmpty() ? Span{columns.begin, columns.begin} : columns),
          m_colors(static_cast<std::size_t>(m_columns.end) - m_columns.begin, color) {}

    Span Columns() const { return m_columns; }
    const std::vector<std::uint32_t>& Colors() const { return m_colors; }

    /// Paints the part of the span that is in the row.
    void Fill(Span span, std::uint32_t color) {
        const Span visible = Clip(span, m_columns.begin, m_columns.end);
        for (int x = visible.begin; x < visible.end; ++x)
            Set(x, color);
    }
    /// Paints one column, which must be in the row.
    void Set(int x, std::uint32_t color) { m_colors[static_cast<std::size_t>(x) - m_columns.begin] = color; }

private:
    Span m_columns;
    std::vector<std::uint32_t> m_colors;
};

} // namespace plotspan
