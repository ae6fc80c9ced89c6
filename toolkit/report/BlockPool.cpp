// Memory for millions of small objects: a pool with one free list per size.
#include "BlockPool.h"

#include <new>
#include <thread>

namespace {

constexpr std::size_t ChunkSize = 64 * 1024;

} // namespace

class BlockPool::Lock {
public:
    explicit Lock(const BlockPool& pool) : m_flag(pool.m_busy) {
        while (m_flag.test_and_set(std::memory_order_acquire))
            std::this_thread::yield();
    }
    ~Lock() { m_flag.clear(std::memory_order_release); }
    Lock(const Lock&) = delete;
    Lock& operator=(const Lock&) = delete;

private:
    std::atomic_flag& m_flag;
};

BlockPool::~BlockPool() {
    for (SizeClass& sizeClass : m_classes)
        ReleaseChunks(sizeClass);
}

void* BlockPool::Take(std::size_t size) {
    if (size > LargestBlock) {
        void* const block = ::operator new(size);
        const Lock lock(*this);
        ++m_largeBlocks;
        m_largeBytes += size;
        return block;
    }
    const std::size_t index = ClassOf(size);
    const std::size_t blockSize = (index + 1) * Step;
    SizeClass& sizeClass = m_classes[index];
    const Lock lock(*this);
    void* block = sizeClass.free;
    if (block) {
        sizeClass.free = sizeClass.free->next;
    } else {
        if (static_cast<std::size_t>(sizeClass.freshEnd - sizeClass.fresh) < blockSize)
            Refill(sizeClass, blockSize);
        block = sizeClass.fresh;
        sizeClass.fresh += blockSize;
    }
    ++sizeClass.used;
    return block;
}

void BlockPool::Return(void* block, std::size_t size) noexcept {
    if (!block)
        return;
    if (size > LargestBlock) {
        ::operator delete(block);
        const Lock lock(*this);
        --m_largeBlocks;
        m_largeBytes -= size;
        return;
    }
    SizeClass& sizeClass = m_classes[ClassOf(size)];
    const Lock lock(*this);
    sizeClass.free = new (block) FreeBlock{sizeClass.free};
    if (--sizeClass.used == 0)
        ReleaseChunks(sizeClass);
}

BlockPool::Usage BlockPool::GetUsage() const {
    const Lock lock(*this);
    Usage usage{m_largeBlocks, m_largeBytes, m_largeBytes + m_chunkCount * ChunkSize};
    for (std::size_t i = 0; i < m_classes.size(); ++i) {
        usage.blocks += m_classes[i].used;
        usage.bytes += m_classes[i].used * (i + 1) * Step;
    }
    return usage;
}

void BlockPool::Refill(SizeClass& sizeClass, std::size_t blockSize) {
    sizeClass.chunks.push_back(nullptr); // first, so that running out of memory loses no chunk
    auto* const chunk = static_cast<std::byte*>(::operator new(ChunkSize));
    sizeClass.chunks.back() = chunk;
    sizeClass.fresh = chunk;
    sizeClass.freshEnd = chunk + ChunkSize / blockSize * blockSize;
    ++m_chunkCount;
}

void BlockPool::ReleaseChunks(SizeClass& sizeClass) noexcept {
    for (std::byte* const chunk : sizeClass.chunks)
        ::operator delete(chunk);
    m_chunkCount -= sizeClass.chunks.size();
    sizeClass = SizeClass();
}
