// HandleCounts.cpp - see HandleCounts.h.
#include "core/HandleCounts.h"

#include <array>
#include <atomic>

namespace handlecounts {

namespace {

std::atomic<long>& Counter(Kind kind) {
    static std::array<std::atomic<long>, 4> counters{};
    return counters[static_cast<std::size_t>(kind)];
}

} // namespace

void Add(Kind kind) noexcept { ++Counter(kind); }

void Remove(Kind kind) noexcept { --Counter(kind); }

long Live(Kind kind) noexcept { return Counter(kind).load(); }

} // namespace handlecounts
