// The pool from which records and their items come.
#include "report/BlockPool.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <random>
#include <thread>
#include <vector>

namespace {

TEST(BlockPool, BlocksAreAlignedAndDoNotOverlap) {
    BlockPool pool;
    std::vector<unsigned char*> blocks;
    for (int i = 0; i < 5000; ++i) {
        blocks.push_back(static_cast<unsigned char*>(pool.Take(56)));
        std::memset(blocks.back(), i & 0xFF, 56);
        ASSERT_EQ(reinterpret_cast<std::uintptr_t>(blocks.back()) % 16, 0U);
    }
    for (int i = 0; i < 5000; ++i)
        ASSERT_TRUE(std::all_of(blocks[i], blocks[i] + 56, [i](unsigned char c) { return c == (i & 0xFF); })) << i;
    for (auto* block : blocks)
        pool.Return(block, 56);
}

TEST(BlockPool, CountsBlocksInWholeSteps) {
    BlockPool pool;
    void* const small = pool.Take(1);
    void* const none = pool.Take(0);
    void* const medium = pool.Take(17);
    void* const largest = pool.Take(512);
    void* const large = pool.Take(513);
    EXPECT_EQ(pool.GetUsage().blocks, 5U);
    EXPECT_EQ(pool.GetUsage().bytes, 16U + 16U + 32U + 512U + 513U);
    pool.Return(small, 1);
    pool.Return(none, 0);
    pool.Return(medium, 17);
    pool.Return(largest, 512);
    pool.Return(large, 513);
    pool.Return(nullptr, 40);
    EXPECT_EQ(pool.GetUsage().blocks, 0U);
    EXPECT_EQ(pool.GetUsage().bytes, 0U);
}

TEST(BlockPool, AnEmptiedPoolHoldsNoMemory) {
    BlockPool pool;
    std::vector<void*> blocks;
    for (int i = 0; i < 20000; ++i)
        blocks.push_back(pool.Take(64));
    EXPECT_GE(pool.GetUsage().reserved, 20000U * 64U);
    EXPECT_LE(pool.GetUsage().reserved, 20000U * 64U + 64U * 1024U) << "no header per block";
    for (void* block : blocks)
        pool.Return(block, 64);
    EXPECT_EQ(pool.GetUsage().reserved, 0U);
}

TEST(BlockPool, ReturnedBlocksAreHandedOutAgain) {
    BlockPool pool;
    void* const keep = pool.Take(32);
    void* const block = pool.Take(32);
    pool.Return(block, 32);
    EXPECT_EQ(pool.Take(20), block) << "20 and 32 bytes are one size";
    pool.Return(block, 20);
    pool.Return(keep, 32);
}

TEST(BlockPool, BlocksMayBeTakenAndReturnedByAnyThread) {
    BlockPool pool;
    const auto work = [&pool](unsigned seed) {
        std::mt19937 random(seed);
        std::vector<std::pair<unsigned char*, std::size_t>> blocks;
        for (int i = 0; i < 20000; ++i) {
            if (blocks.empty() || random() % 2) {
                const std::size_t size = random() % 200 + 1;
                auto* const block = static_cast<unsigned char*>(pool.Take(size));
                std::memset(block, static_cast<int>(seed), size);
                blocks.emplace_back(block, size);
            } else {
                const auto [block, size] = blocks.back();
                EXPECT_EQ(block[0], seed);
                EXPECT_EQ(block[size - 1], seed);
                pool.Return(block, size);
                blocks.pop_back();
            }
        }
        for (const auto& [block, size] : blocks)
            pool.Return(block, size);
    };
    std::thread other(work, 1);
    work(2);
    other.join();
    EXPECT_EQ(pool.GetUsage().blocks, 0U);
    EXPECT_EQ(pool.GetUsage().reserved, 0U);
}

} // namespace
