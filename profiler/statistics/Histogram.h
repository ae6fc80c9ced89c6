// Histograms of a column's values, and its most frequent texts.
#pragma once

#include "csv/Table.h"
#include "statistics/Summary.h"

#include <cstddef>
#include <span>
#include <string>
#include <vector>

namespace statistics {

/// Bins of equal width side by side from `minimum` to `maximum`, and how many values are in each. A value on the edge
/// of two bins is in the right one, the maximum in the last. No bins when there are no values.
struct Histogram {
    double minimum = 0;
    double maximum = 0;
    std::vector<double> counts;

    /// The left edge of a bin; `counts.size()` gives the right edge of the last one.
    double Edge(std::size_t bin) const;
    /// The bin that a value from minimum to maximum is in. There must be bins.
    std::size_t BinOf(double value) const;
};

/// The most bins that a histogram has.
inline constexpr std::size_t kMostBins = 200;

/// The number of bins for the values that the summary tells of, by the rule of Freedman and Diaconis: bins are
/// 2 (q75 - q25) / n^(1/3) wide. When half of the values are the same, that is no width, and Sturges' rule takes its
/// place: log2(n) + 1 bins. From 1 to `kMostBins`; 1 when all values are the same.
std::size_t BinCount(const Summary& summary);

/// Counts the values; NaN takes no part. `summary` is that of the same values.
Histogram MakeHistogram(std::span<const double> values, const Summary& summary);

struct FrequentText {
    std::string text; ///< UTF-8
    std::size_t count = 0;

    bool operator==(const FrequentText&) const = default;
};

/// The `most` texts that come most often, the most frequent first; of equally frequent ones the one that came first.
std::vector<FrequentText> MostFrequent(const csv::TextPool& texts, std::size_t most);

} // namespace statistics
