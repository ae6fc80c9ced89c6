// Where a histogram cell draws its bins and in which colours, as pure arithmetic on fractions of the cell width.
#include "HistogramGeometry.h"

#include <algorithm>
#include <cmath>

namespace histogramgeometry {

using plotspan::Clip;
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

/// The bin of a column by the inverse of `Edge`: right but for rounding. A column shows the last bin that begins in it,
/// so it is the bin at the column's right edge; left of 0, where edges are cut the other way, that at its left edge.
std::int64_t BinPlaces::Guess(int column) const {
    const double edge = static_cast<double>(column) + (column >= 0 ? 1.0 : 0.0);
    const double place = (edge - m_left) * m_binsPerPixel + m_binAtLeft;
    const std::int64_t last = m_count - 1;
    return place >= static_cast<double>(last) ? last : place > 0.0 ? static_cast<std::int64_t>(place) : 0;
}

std::size_t BinPlaces::BinInStrip(int column) const {
    std::int64_t bin = Guess(column);
    for (int step = 0; step < 4; ++step) {
        if (Edge(bin) > column)
            --bin;
        else if (Edge(bin + 1) <= column)
            ++bin;
        else
            return static_cast<std::size_t>(bin);
    }
    // Places so large or so close together that the inverse says little.
    std::int64_t first = 0, last = m_count - 1;
    while (first < last) {
        const std::int64_t middle = last - (last - first) / 2;
        if (Edge(middle) <= column)
            first = middle;
        else
            last = middle - 1;
    }
    return static_cast<std::size_t>(first);
}

std::optional<std::size_t> BinPlaces::BinAt(int column) const {
    const Span strip = Strip();
    if (m_count == 0 || strip.begin > column || strip.end <= column)
        return std::nullopt;
    return BinInStrip(column);
}

void PaintBins(plotspan::PixelRow& row, const BinPlaces& places, std::span<const double> counts, double largest,
               std::span<const std::uint32_t> colors, std::uint32_t background) {
    if (!places.CanBeSeen())
        return;
    const auto colorOf = [&](double count) {
        return count == 0.0 ? background : colors[static_cast<std::size_t>(ColorOf(count, largest))];
    };
    if (counts.size() <= row.Colors().size()) {
        int begin = places.Edge(0);
        for (std::size_t bin = 0; bin < counts.size(); ++bin) {
            const int end = places.Edge(static_cast<std::int64_t>(bin) + 1);
            row.Fill({begin, end}, colorOf(counts[bin]));
            begin = end;
        }
        return;
    }
    const Span strip = Clip(places.Strip(), row.Columns().begin, row.Columns().end);
    for (int column = strip.begin; column < strip.end; ++column)
        row.Set(column, colorOf(counts[places.BinInStrip(column)]));
}

} // namespace histogramgeometry
