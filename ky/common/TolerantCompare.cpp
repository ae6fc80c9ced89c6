// Comparing computed numbers that may differ by rounding.
#include "TolerantCompare.h"

#include <cmath>
#include <limits>

int TolerantCompare(double a, double b) {
    int exponent = 0;
    std::frexp(std::fabs(a) > std::fabs(b) ? a : b, &exponent);
    const double tolerance = std::ldexp(static_cast<double>(std::numeric_limits<float>::epsilon()), exponent);
    const double difference = a - b;
    if (difference > tolerance)
        return 1;
    return difference < -tolerance ? -1 : 0;
}
