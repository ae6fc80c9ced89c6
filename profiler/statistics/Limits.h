// The limits that a user sets on a column.
#pragma once

namespace statistics {

/// A lower and an upper limit with a target between them, in the column's unit. Moving the target pushes a limit along
/// that it would pass; a limit goes no further than the target.
struct Limits {
    double lower = 0;
    double target = 0;
    double upper = 0;

    void MoveLower(double value);
    void MoveTarget(double value);
    void MoveUpper(double value);
};

} // namespace statistics
