// Where a histogram cell draws its bins and in which colours, as pure arithmetic on fractions of the cell width.
#include "HistogramGeometry.h"

#include <algorithm>
#include <cmath>
#include <ranges>

namespace histogramgeometry {

using plotspan::Extent;
using plotspan::Span;

double LargestCount(std::span<const double> counts) {
    std::optional<double> largest;
    for (const double count : counts) {
        if (!std::isnan(count) && (!largest || count > *largest))
            largest = count;
    }
    return largest.value_or(0.0);
}

int ColorOf(double count, double largest) {
    return std::clamp(Truncate(count * GradientColors / largest), 0, GradientColors - 1);
}

Span WholeScale(Extent cell, double margin) {
    return {Truncate(cell.left + cell.Width() * margin), Truncate(cell.right - cell.Width() * margin)};
}

Span SingleBin(Extent cell, double minFraction, double maxFraction) {
    double begin = cell.At(minFraction);
    double end = cell.At(maxFraction);
    if (end - begin < 4.0) {
        const double middle = (begin + end) / 2.0;
        begin = middle - 1.0;
        end = middle + 2.0;
    }
    return {Truncate(begin), Truncate(end)};
}

/// The bin of a column by the inverse of `Edge`: right but for rounding.
std::size_t BinPlaces::Guess(int column) const {
    const double place = ((static_cast<double>(column) - m_left) / m_width - m_min) / m_binWidth;
    const double last = static_cast<double>(m_count - 1);
    return place >= last ? m_count - 1 : place > 0.0 ? static_cast<std::size_t>(place) : 0;
}

std::optional<std::size_t> BinPlaces::BinAt(int column) const {
    if (m_count == 0 || Edge(0) > column || Edge(m_count) <= column)
        return std::nullopt;
    std::size_t bin = Guess(column);
    for (int step = 0; step < 4; ++step) {
        if (Edge(bin) > column)
            --bin;
        else if (Edge(bin + 1) <= column)
            ++bin;
        else
            return bin;
    }
    // Places so large or so close together that the inverse says little.
    const auto bins = std::views::iota(std::size_t{1}, m_count);
    const auto beyond = std::ranges::partition_point(bins, [&](std::size_t at) { return Edge(at) <= column; });
    return static_cast<std::size_t>(beyond - bins.begin());
}

void PaintBins(plotspan::PixelRow& row, const BinPlaces& places, std::span<const double> counts, double largest,
               std::span<const std::uint32_t> colors, std::uint32_t background) {
    if (!places.CanBeSeen())
        return;
    const auto colorOf = [&](double count) {
        return count == 0.0 ? background : colors[static_cast<std::size_t>(ColorOf(count, largest))];
    };
    const Span columns = row.Columns();
    if (counts.size() <= row.Colors().size()) {
        int begin = places.Edge(0);
        for (std::size_t bin = 0; bin < counts.size(); ++bin) {
            const int end = places.Edge(bin + 1);
            row.Fill({begin, end}, colorOf(counts[bin]));
            begin = end;
        }
        return;
    }
    for (int column = columns.begin; column < columns.end; ++column) {
        if (const auto bin = places.BinAt(column))
            row.Set(column, colorOf(counts[*bin]));
    }
}

} // namespace histogramgeometry
