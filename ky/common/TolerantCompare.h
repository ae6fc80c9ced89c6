// Comparing computed numbers that may differ by rounding.
#pragma once

/// +1 when `a` is greater, -1 when it is smaller, and 0 when the two differ by no more than a single-precision epsilon
/// of the one with the larger magnitude.
int TolerantCompare(double a, double b);

inline bool TolerantEqual(double a, double b) { return TolerantCompare(a, b) == 0; }
