// The scale of a plot cell: values, fractions of the cell width, and the pointer's place among them. No window needed.
#pragma once

#include <optional>

namespace plotscale {

/// A scale as a cell shows it: `min` and `max` are values, `margin` is the fraction of the width kept free at each end.
struct Scale {
    double min;
    double max;
    double margin;
};

/// How near the pointer has to be to a mark, as a fraction of the cell width (exclusive).
inline constexpr double NearDistance = 0.02;

/// The fraction of the cell width at which a value stands; the missing-value mark stays itself. A scale without extent
/// (min = max) is not guarded and gives an infinite or NaN fraction, which nothing is near to and which is not drawn.
double ToFraction(double value, const Scale& scale);

/// The value at a fraction; fractions outside 0…1 give values beyond the scale.
double ToValue(double fraction, const Scale& scale);

/// The fraction of the width at which the x coordinate lies, in single precision as the marks' distances are judged by;
/// not clamped. A rectangle without width gives an infinite or NaN fraction.
double PointerFraction(int x, int left, int right);

/// The same in double precision.
double ExactPointerFraction(int x, int left, int right);

/// True when a mark at fraction `mark` is near the pointer's fraction. A missing mark is near to nothing, also not to
/// the missing pointer fraction of a cell that the pointer has not been over yet.
bool IsNear(double mark, double pointer);

/// The value to tell about under the pointer; none while the pointer is outside the cell (a fraction outside 0…1).
std::optional<double> ValueUnderPointer(double fraction, const Scale& scale);

} // namespace plotscale
