// The heap of report records: their items, their texts and themselves live here.
#pragma once

#include "../common/Export.h"
#include "BlockPool.h"

#include <cstddef>

/// One pool per process. It is never torn down, so that records may die at any time, even after `main`.
namespace recorditemheap {

KY_TOOLKIT_API void* Take(std::size_t size);
KY_TOOLKIT_API void Return(void* block, std::size_t size) noexcept;

/// Items and records alive now. Tests compare the counts before and after.
KY_TOOLKIT_API std::size_t LiveItems() noexcept;
KY_TOOLKIT_API std::size_t LiveRecords() noexcept;
/// All blocks of the heap: items, records, their texts and lists.
KY_TOOLKIT_API BlockPool::Usage GetUsage();

enum class Kind { Item, Record };
/// As `Take` and `Return`, counted as live objects of that kind.
void* TakeObject(Kind kind, std::size_t size);
void ReturnObject(Kind kind, void* block, std::size_t size) noexcept;

/// Lets a standard container keep its elements in this heap.
template <class T>
struct Allocator {
    using value_type = T;
    Allocator() = default;
    template <class U>
    Allocator(const Allocator<U>&) noexcept {}
    T* allocate(std::size_t count) { return static_cast<T*>(Take(count * sizeof(T))); }
    void deallocate(T* block, std::size_t count) noexcept { Return(block, count * sizeof(T)); }
    bool operator==(const Allocator&) const noexcept { return true; }
};

} // namespace recorditemheap
