// The limits that a user sets on a column.
#include "statistics/Limits.h"

#include <algorithm>

namespace statistics {

void Limits::MoveLower(double value) { lower = std::min(value, target); }

void Limits::MoveTarget(double value) {
    target = value;
    lower = std::min(lower, value);
    upper = std::max(upper, value);
}

void Limits::MoveUpper(double value) { upper = std::max(value, target); }

} // namespace statistics
