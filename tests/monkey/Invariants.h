// What holds whatever a user or a message does.
#pragma once

#include "Zoo.h"

namespace invariants {

/// Fails with a sentence when something does not hold.
/// @param isAtRest no button is down, nothing is being dragged
void Check(const Zoo& zoo, bool isAtRest);

/// The layout of every grid can be written and read back, and is the same then.
void CheckLayouts(const Zoo& zoo);

} // namespace invariants
