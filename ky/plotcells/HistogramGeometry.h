// Where a histogram cell draws its bins and in which colours, as pure arithmetic on fractions of the cell width. No
// window needed.
#pragma once

#include "PixelRow.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>

namespace histogramgeometry {

/// How many colours there are from the least full to the fullest bin.
inline constexpr int GradientColors = 200;

/// The largest count, the first of equals; what is no number takes no part. 0 without any.
double LargestCount(std::span<const double> counts);

/// The index of a count's colour, 0 for the least full to `GradientColors` - 1. A count that cannot be placed (it is
/// negative or no number) has the nearest end.
int ColorOf(double count, double largest);

/// The pixels of a scale that has no extent, unclipped: everything between the margins.
plotspan::Span WholeScale(plotspan::Extent cell, double margin);

/// The pixels of a bin that is alone, unclipped. One narrower than 4 pixels is drawn 3 wide about its middle.
plotspan::Span SingleBin(plotspan::Extent cell, double minFraction, double maxFraction);

/// Bins of equal width, side by side from one fraction to another.
class BinPlaces {
public:
    BinPlaces(plotspan::Extent cell, double minFraction, double maxFraction, std::size_t count)
        : m_left(cell.left), m_width(cell.Width()), m_min(minFraction),
          m_binWidth((maxFraction - minFraction) / static_cast<double>(count)),
          m_count(static_cast<std::int64_t>(count)), m_binsPerPixel(1.0 / (m_width * m_binWidth)),
          m_binAtLeft(-m_min / m_binWidth) {}

    /// Whether any bin can have an extent: their places run from left to right.
    bool CanBeSeen() const { return m_binWidth > 0.0; }
    /// The left edge of a bin, which is the right edge of the one before; unclipped. For bins that can be seen, no edge
    /// is left of the one before, so that no two of them share a pixel.
    int Edge(std::int64_t bin) const {
        return Truncate((static_cast<double>(bin) * m_binWidth + m_min) * m_width + m_left);
    }
    /// All bins together.
    plotspan::Span Strip() const { return {Edge(0), Edge(m_count)}; }
    /// The bin in which a pixel column of the strip lies. Its cost does not depend on the number of bins.
    std::size_t BinInStrip(int column) const;
    /// The bin in which the pixel column lies, if it is one of the strip.
    std::optional<std::size_t> BinAt(int column) const;

private:
    std::int64_t Guess(int column) const;

    int m_left;
    double m_width;
    double m_min;
    double m_binWidth;
    std::int64_t m_count;
    double m_binsPerPixel; ///< these two only serve guesses
    double m_binAtLeft;
};

/// Paints the bins into the row; one without any count gets the background's colour. Takes as long as there are bins or
/// pixel columns, whichever are fewer.
/// @param colors  `GradientColors` of them
void PaintBins(plotspan::PixelRow& row, const BinPlaces& places, std::span<const double> counts, double largest,
               std::span<const std::uint32_t> colors, std::uint32_t background);

} // namespace histogramgeometry
