// Turning computed positions into whole pixels.
#pragma once

#include <limits>

/// The whole number next to `value` towards zero. What int cannot hold becomes its nearest end, and NaN its lowest
/// value: a scale without extent or with huge values gives such positions, and clipping then removes them.
constexpr int Truncate(double value) {
    constexpr int lowest = std::numeric_limits<int>::min();
    constexpr int highest = std::numeric_limits<int>::max();
    if (!(value > lowest))
        return lowest;
    return value >= highest ? highest : static_cast<int>(value);
}
