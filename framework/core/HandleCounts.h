// HandleCounts.h - how many system handles the framework's objects own at this moment.
//
// Tests read the counts before and after an operation to see that it leaks nothing; the system's own count
// (GetGuiResources) is not available everywhere.
#pragma once

#include "Platform.h"

namespace handlecounts {

enum class Kind { GdiObject, DeviceContext, Window, Menu };

/// Notes that an object took (Add) or gave up (Remove) the ownership of a handle. Any thread may call these.
KY_FRAMEWORK_API void Add(Kind kind) noexcept;
KY_FRAMEWORK_API void Remove(Kind kind) noexcept;

/// Handles of that kind that permanent objects own now, in all threads. Temporary objects own nothing.
KY_FRAMEWORK_API long Live(Kind kind) noexcept;

} // namespace handlecounts
