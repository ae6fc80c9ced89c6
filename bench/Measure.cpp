// Clock, medians and memory for the benchmarks.
#include "Measure.h"

#include <windows.h>

#include <psapi.h>

#include <algorithm>

namespace measure {

namespace {

PROCESS_MEMORY_COUNTERS Counters() {
    PROCESS_MEMORY_COUNTERS counters = {};
    ::GetProcessMemoryInfo(::GetCurrentProcess(), &counters, sizeof(counters));
    return counters;
}

} // namespace

double Median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

std::size_t PrivateBytes() { return Counters().PagefileUsage; }

std::size_t WorkingBytes() { return Counters().WorkingSetSize; }

std::size_t PeakBytes() { return Counters().PeakWorkingSetSize; }

} // namespace measure
