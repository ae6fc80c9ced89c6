// Moving limits and target.
#include "statistics/Limits.h"

#include <gtest/gtest.h>

namespace {

using statistics::Limits;

void Expect(const Limits& limits, double lower, double target, double upper) {
    EXPECT_EQ(limits.lower, lower);
    EXPECT_EQ(limits.target, target);
    EXPECT_EQ(limits.upper, upper);
}

TEST(Limits, EachMovesAlone) {
    Limits limits{3, 5, 7};
    limits.MoveLower(2);
    Expect(limits, 2, 5, 7);
    limits.MoveUpper(9);
    Expect(limits, 2, 5, 9);
    limits.MoveTarget(4);
    Expect(limits, 2, 4, 9);
}

TEST(Limits, ALimitEndsAtTheTarget) {
    Limits limits{3, 5, 7};
    limits.MoveLower(6);
    Expect(limits, 5, 5, 7);
    limits.MoveUpper(1);
    Expect(limits, 5, 5, 5);
}

TEST(Limits, TheTargetPushesTheLimitsAlong) {
    Limits limits{3, 5, 7};
    limits.MoveTarget(8);
    Expect(limits, 3, 8, 8);
    limits.MoveTarget(1);
    Expect(limits, 1, 1, 8);
}

} // namespace
