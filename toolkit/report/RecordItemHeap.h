/// @file
/// The heap of report records: their items, their texts and themselves live here.
#pragma once

#include "../common/Export.h"
#include "BlockPool.h"

#include <cstddef>

/// One pool per process. It is never torn down, so that records may die at any time, even after `main`.
/// @ingroup toolkit_report
namespace recorditemheap {

/// A block of at least `size` bytes, aligned to 16; throws std::bad_alloc. Any thread may call.
KY_TOOLKIT_API void* Take(std::size_t size);
/// Takes a block back; `size` is what it was taken with. Null is ignored. Any thread may call.
KY_TOOLKIT_API void Return(void* block, std::size_t size) noexcept;

/// Items alive now, in all grids of the process. Who looks for leaks compares the counts before and after.
KY_TOOLKIT_API std::size_t LiveItems() noexcept;
/// The same for records.
KY_TOOLKIT_API std::size_t LiveRecords() noexcept;
/// All blocks of the heap: items, records, their texts and lists.
KY_TOOLKIT_API BlockPool::Usage GetUsage();

/// What a block holds, where blocks are counted by it.
enum class Kind {
    Item,  ///< a record item
    Record ///< a record itself
};
/// As `Take`, counted as a live object of that kind.
void* TakeObject(Kind kind, std::size_t size);
/// As `Return`, for a block from `TakeObject` with the same kind and size.
void ReturnObject(Kind kind, void* block, std::size_t size) noexcept;

/// Lets a standard container keep its elements in this heap.
template <class T>
struct Allocator {
    using value_type = T; ///< what the container holds
    Allocator() = default;
    /// Containers make allocators for types of their own this way; there is nothing to copy.
    template <class U>
    Allocator(const Allocator<U>&) noexcept {}
    /// Room for `count` elements, not constructed; throws std::bad_alloc.
    T* allocate(std::size_t count) { return static_cast<T*>(Take(count * sizeof(T))); }
    /// Takes the room back, with the count it was taken with.
    void deallocate(T* block, std::size_t count) noexcept { Return(block, count * sizeof(T)); }
    /// All are equal: what one took any other may return.
    bool operator==(const Allocator&) const noexcept { return true; }
};

} // namespace recorditemheap
