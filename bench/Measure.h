// Clock, medians and memory for the benchmarks.
#pragma once

#include <chrono>
#include <cstddef>
#include <vector>

namespace measure {

/// Microseconds that one of `count` runs of the step takes on average.
template <class Step>
double Microseconds(int count, Step step) {
    const auto begin = std::chrono::steady_clock::now();
    for (int i = 0; i < count; ++i)
        step(i);
    return std::chrono::duration<double, std::micro>(std::chrono::steady_clock::now() - begin).count() / count;
}

/// Of at least one value.
double Median(std::vector<double> values);

/// Memory of this process that is its own, in bytes.
std::size_t PrivateBytes();
/// Memory that this process has in use, in bytes.
std::size_t WorkingBytes();
/// The most memory that this process has had in use so far, in bytes.
std::size_t PeakBytes();

} // namespace measure
