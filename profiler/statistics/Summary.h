// Descriptive statistics of a set of numbers.
#pragma once

#include <cstddef>
#include <initializer_list>
#include <optional>
#include <span>
#include <vector>

namespace statistics {

/// What is told of a column of numbers. Missing numbers (NaN) take no part in anything.
struct Summary {
    std::size_t count = 0; ///< numbers that are not missing
    double minimum = 0;    ///< this and the following hold only when `count` > 0
    double maximum = 0;
    double mean = 0;      ///< arithmetic mean
    double quantile5 = 0; ///< the quantiles by the rule of `Quantiles`
    double quantile25 = 0;
    double median = 0;
    double quantile75 = 0;
    double quantile95 = 0;
    std::optional<double> standardDeviation; ///< of the sample, divided by count - 1; none for fewer than two numbers
};

/// Needs one copy of the numbers for the time of the call. The numbers must be finite or NaN. The mean and the standard
/// deviation are good to nearly the last digit whatever the size of the numbers and however far from 0 they lie.
Summary Summarize(std::span<const double> numbers);

/// The quantiles at `fractions` (0 to 1, none less than the one before) of n numbers. With h = (n - 1) * fraction each
/// lies between the sorted numbers at the places floor(h) and floor(h) + 1 (counted from 0), at the fraction of h of
/// the way. This linear interpolation between order statistics is known as type 7 and is what spreadsheets compute.
/// Reorders `numbers`, which must hold no NaN and at least one number.
std::vector<double> Quantiles(std::span<double> numbers, std::initializer_list<double> fractions);

/// The share of the numbers that lie in the closed interval from `lower` to `upper`, of those that are not missing;
/// none when all are missing. An interval with `lower` above `upper` holds nothing.
std::optional<double> ShareInside(std::span<const double> numbers, double lower, double upper);

} // namespace statistics
