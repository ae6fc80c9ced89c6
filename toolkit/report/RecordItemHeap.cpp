// The heap of report records: their items, their texts and themselves live here.
#include "RecordItemHeap.h"

#include <atomic>

namespace recorditemheap {

namespace {

BlockPool& Pool() {
    // Kept by a plain reference on purpose: no destructor runs while records may still be alive.
    static BlockPool& pool = *new BlockPool;
    return pool;
}

std::atomic<std::size_t> liveObjects[2];

std::atomic<std::size_t>& LiveOf(Kind kind) { return liveObjects[static_cast<int>(kind)]; }

} // namespace

void* Take(std::size_t size) { return Pool().Take(size); }

void Return(void* block, std::size_t size) noexcept { Pool().Return(block, size); }

std::size_t LiveItems() noexcept { return LiveOf(Kind::Item); }

std::size_t LiveRecords() noexcept { return LiveOf(Kind::Record); }

BlockPool::Usage GetUsage() { return Pool().GetUsage(); }

void* TakeObject(Kind kind, std::size_t size) {
    void* const block = Take(size);
    LiveOf(kind).fetch_add(1, std::memory_order_relaxed);
    return block;
}

void ReturnObject(Kind kind, void* block, std::size_t size) noexcept {
    if (!block)
        return;
    LiveOf(kind).fetch_sub(1, std::memory_order_relaxed);
    Return(block, size);
}

} // namespace recorditemheap
