// How many bytes a piece of code takes from the heap.
#pragma once

#include <cstddef>

/// Counts what the current thread allocates while it lives; what is given back meanwhile is not taken off. Only the
/// allocator of AddressSanitizer tells: in other builds the count stays 0.
class AllocationMeter {
public:
    AllocationMeter();
    std::size_t Bytes() const;

    static constexpr bool IsReal() {
#if defined(__SANITIZE_ADDRESS__)
        return true;
#elif defined(__has_feature)
        return __has_feature(address_sanitizer);
#else
        return false;
#endif
    }

private:
    std::size_t m_before;
};
