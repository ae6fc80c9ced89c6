// The scale of a plot cell: values, fractions of the cell width, and the pointer's place among them.
#include "PlotScale.h"

#include "../common/MissingValue.h"

#include <cmath>
#include <cstdint>

namespace plotscale {

double ToFraction(double value, const Scale& scale) {
    if (IsMissing(value))
        return KyMissingValue;
    return (value - scale.min) / (scale.max - scale.min) * (1.0 - 2.0 * scale.margin) + scale.margin;
}

double ToValue(double fraction, const Scale& scale) {
    return (fraction - scale.margin) / (1.0 - 2.0 * scale.margin) * (scale.max - scale.min) + scale.min;
}

double PointerFraction(int x, int left, int right) {
    const auto distance = static_cast<float>(std::int64_t{x} - left);
    const auto width = static_cast<float>(std::int64_t{right} - left);
    return distance / width;
}

double ExactPointerFraction(int x, int left, int right) {
    return (static_cast<double>(x) - left) / (static_cast<double>(right) - left);
}

bool IsNear(double mark, double pointer) { return !IsMissing(mark) && std::fabs(mark - pointer) < NearDistance; }

std::optional<double> ValueUnderPointer(double fraction, const Scale& scale) {
    if (!(fraction >= 0.0 && fraction <= 1.0))
        return std::nullopt;
    return ToValue(fraction, scale);
}

} // namespace plotscale
