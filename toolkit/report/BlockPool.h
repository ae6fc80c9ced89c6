/// @file
/// Memory for millions of small objects: a pool with one free list per size. No window needed.
#pragma once

#include <array>
#include <atomic>
#include <cstddef>
#include <memory>
#include <vector>

/// Hands out blocks in steps of 16 bytes without a header of its own; blocks above `LargestBlock` come from the heap of
/// the runtime. Any thread may take and return blocks. When the last block of a size is returned, the memory of that
/// size goes back to the heap, so that a grid that was emptied holds nothing.
/// @ingroup toolkit_report
class BlockPool {
public:
    static constexpr std::size_t Step = 16;          ///< bytes by which the sizes of blocks grow
    static constexpr std::size_t LargestBlock = 512; ///< bytes; larger ones come from the runtime's heap

    BlockPool() = default;
    ~BlockPool();
    BlockPool(const BlockPool&) = delete;
    BlockPool& operator=(const BlockPool&) = delete;

    /// A block of at least `size` bytes, aligned to 16; throws std::bad_alloc. 0 bytes give a block, too.
    void* Take(std::size_t size);
    /// Takes a block back; `size` is what it was taken with. Null is ignored.
    void Return(void* block, std::size_t size) noexcept;

    /// What the pool holds now; large blocks are counted too.
    struct Usage {
        std::size_t blocks = 0;   ///< blocks in use
        std::size_t bytes = 0;    ///< bytes in them, rounded up to whole steps
        std::size_t reserved = 0; ///< bytes taken from the runtime's heap
    };
    /// A picture of one moment: other threads may have taken blocks meanwhile.
    Usage GetUsage() const;

private:
    struct FreeBlock {
        FreeBlock* next;
    };
    struct SizeClass {
        FreeBlock* free = nullptr;
        std::byte* fresh = nullptr; ///< the part of the newest chunk that was never handed out
        std::byte* freshEnd = nullptr;
        std::size_t used = 0;
        std::vector<std::byte*> chunks;
    };
    class Lock;

    static std::size_t ClassOf(std::size_t size) { return size == 0 ? 0 : (size - 1) / Step; }
    void Refill(SizeClass& sizeClass, std::size_t blockSize);
    void ReleaseChunks(SizeClass& sizeClass) noexcept;

    // Held for a few instructions only, and hardly ever wanted by two threads.
    mutable std::atomic_flag m_busy = ATOMIC_FLAG_INIT;
    std::array<SizeClass, LargestBlock / Step> m_classes;
    std::size_t m_chunkCount = 0;
    std::size_t m_largeBlocks = 0;
    std::size_t m_largeBytes = 0;
};
