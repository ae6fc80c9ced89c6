// Histograms of a column's values, and its most frequent texts.
#include "statistics/Histogram.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace statistics {

double Histogram::Edge(std::size_t bin) const {
    return std::lerp(minimum, maximum, static_cast<double>(bin) / static_cast<double>(counts.size()));
}

std::size_t Histogram::BinOf(double value) const {
    // Halved, because the distance between the two ends of the range of double is none itself.
    const double place = (value / 2 - minimum / 2) / (maximum / 2 - minimum / 2) * static_cast<double>(counts.size());
    const double last = static_cast<double>(counts.size() - 1);
    return place > 0 ? static_cast<std::size_t>(std::min(place, last)) : 0;
}

std::size_t BinCount(const Summary& summary) {
    if (summary.count == 0 || !(summary.minimum < summary.maximum))
        return 1;
    const double count = static_cast<double>(summary.count);
    const double halfRange = summary.maximum / 2 - summary.minimum / 2;
    const double halfWidth = 2 * (summary.quantile75 / 2 - summary.quantile25 / 2) / std::cbrt(count);
    const double bins = halfWidth > 0 ? std::ceil(halfRange / halfWidth) : std::ceil(std::log2(count)) + 1;
    return static_cast<std::size_t>(std::clamp(bins, 1.0, static_cast<double>(kMostBins)));
}

Histogram MakeHistogram(std::span<const double> values, const Summary& summary) {
    Histogram histogram;
    if (summary.count == 0)
        return histogram;
    histogram.minimum = summary.minimum;
    histogram.maximum = summary.maximum;
    histogram.counts.assign(BinCount(summary), 0);
    for (const double value : values) {
        if (!std::isnan(value))
            ++histogram.counts[histogram.BinOf(value)];
    }
    return histogram;
}

std::vector<FrequentText> MostFrequent(const csv::TextPool& texts, std::size_t most) {
    std::vector<std::uint32_t> ids(texts.Size());
    std::iota(ids.begin(), ids.end(), 0u);
    const std::size_t wanted = std::min(most, ids.size());
    std::partial_sort(ids.begin(), ids.begin() + static_cast<std::ptrdiff_t>(wanted), ids.end(),
                      [&texts](std::uint32_t a, std::uint32_t b) {
                          return texts[a].count != texts[b].count ? texts[a].count > texts[b].count : a < b;
                      });
    std::vector<FrequentText> frequent;
    for (std::size_t i = 0; i < wanted; ++i)
        frequent.push_back({std::string(texts[ids[i]].text), texts[ids[i]].count});
    return frequent;
}

} // namespace statistics
