// Descriptive statistics, computed so that neither large offsets nor extreme magnitudes spoil them.
#include "statistics/Summary.h"

#include <algorithm>
#include <cmath>

namespace statistics {

namespace {

/// A sum that carries along what rounding cuts off (Neumaier's compensated summation).
class CompensatedSum {
public:
    void Add(double value) {
        const double sum = m_sum + value;
        m_lost += std::abs(m_sum) >= std::abs(value) ? (m_sum - sum) + value : (value - sum) + m_sum;
        m_sum = sum;
    }

    double Value() const { return m_sum + m_lost; }

private:
    double m_sum = 0;
    double m_lost = 0;
};

/// The power of two by which to divide so that numbers up to `largest` come near 1. Scaling by it loses no digit, and
/// neither sums nor squares leave the range of double.
double ScaleFor(double largest) {
    int exponent = 0;
    std::frexp(largest, &exponent);
    return std::ldexp(1.0, std::clamp(exponent, -1000, 1000));
}

double Mean(std::span<const double> numbers, double largest) {
    const double scale = ScaleFor(largest);
    CompensatedSum sum;
    for (const double number : numbers)
        sum.Add(number / scale);
    return sum.Value() / static_cast<double>(numbers.size()) * scale;
}

double StandardDeviation(std::span<const double> numbers, double mean, double minimum, double maximum) {
    // Halved, because the distance between the two ends of the range of double is none itself.
    const double scale = ScaleFor(std::max(maximum / 2 - mean / 2, mean / 2 - minimum / 2));
    CompensatedSum squares;
    CompensatedSum deviations;
    for (const double number : numbers) {
        const double deviation = (number / 2 - mean / 2) / scale;
        squares.Add(deviation * deviation);
        deviations.Add(deviation);
    }
    // The deviations sum up to 0 but for the rounding of the mean, which is taken out here.
    const double count = static_cast<double>(numbers.size());
    const double variance = (squares.Value() - deviations.Value() * deviations.Value() / count) / (count - 1);
    return std::sqrt(std::max(variance, 0.0)) * scale * 2;
}

} // namespace

Summary Summarize(std::span<const double> numbers) {
    std::vector<double> present;
    present.reserve(numbers.size());
    std::copy_if(numbers.begin(), numbers.end(), std::back_inserter(present),
                 [](double number) { return !std::isnan(number); });
    Summary summary;
    summary.count = present.size();
    if (present.empty())
        return summary;

    const auto [minimum, maximum] = std::minmax_element(present.begin(), present.end());
    summary.minimum = *minimum;
    summary.maximum = *maximum;
    const double mean = Mean(present, std::max(std::abs(summary.minimum), std::abs(summary.maximum)));
    // Rounding must not carry the mean of equal numbers beyond them.
    summary.mean = std::clamp(mean, summary.minimum, summary.maximum);
    if (present.size() >= 2)
        summary.standardDeviation = StandardDeviation(present, summary.mean, summary.minimum, summary.maximum);
    const std::vector<double> quantiles = Quantiles(present, {0.05, 0.25, 0.5, 0.75, 0.95});
    summary.quantile5 = quantiles[0];
    summary.quantile25 = quantiles[1];
    summary.median = quantiles[2];
    summary.quantile75 = quantiles[3];
    summary.quantile95 = quantiles[4];
    return summary;
}

std::vector<double> Quantiles(std::span<double> numbers, std::initializer_list<double> fractions) {
    std::vector<double> quantiles;
    auto from = numbers.begin(); // no number before it is greater than one behind it
    for (const double fraction : fractions) {
        const double h = static_cast<double>(numbers.size() - 1) * std::clamp(fraction, 0.0, 1.0);
        const std::size_t below = static_cast<std::size_t>(h);
        const auto place = numbers.begin() + static_cast<std::ptrdiff_t>(below);
        std::nth_element(from, place, numbers.end());
        from = place;
        const double upper = below + 1 == numbers.size() ? *place : *std::min_element(place + 1, numbers.end());
        quantiles.push_back(std::lerp(*place, upper, h - static_cast<double>(below)));
    }
    return quantiles;
}

std::optional<double> ShareInside(std::span<const double> numbers, double lower, double upper) {
    std::size_t present = 0;
    std::size_t inside = 0;
    for (const double number : numbers) {
        // NaN is not equal to itself and lies in no interval.
        present += number == number ? 1 : 0;
        inside += number >= lower && number <= upper ? 1 : 0;
    }
    if (present == 0)
        return std::nullopt;
    return static_cast<double>(inside) / static_cast<double>(present);
}

} // namespace statistics
