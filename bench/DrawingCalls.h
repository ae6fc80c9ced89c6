// Counts the calls that draw.
#pragma once

#include <cstdint>

namespace drawingcalls {

/// Puts a counter in front of every drawing operation of the system that a module of this process imports. Call it once
/// all modules are loaded; it holds until the end of the process and costs a few instructions a call.
void StartCounting();

/// How many drawing operations were called since.
std::uint64_t Count();

} // namespace drawingcalls
