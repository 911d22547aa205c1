// SPDX-License-Identifier: MIT
#include "Model/NodePool.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <random>
#include <thread>
#include <vector>

namespace tessera {
namespace {

struct Block {
    void* memory;
    std::size_t bytes;
    unsigned char mark;
};

std::vector<Block> allocateMarked(std::size_t count)
{
    std::vector<Block> blocks;
    blocks.reserve(count);
    for (std::size_t i = 0; i < count; ++i) {
        const std::size_t bytes = 20 + i % 260;
        const auto mark = static_cast<unsigned char>(i);
        blocks.push_back({NodePool::allocate(bytes), bytes, mark});
        std::memset(blocks.back().memory, mark, bytes);
    }
    return blocks;
}

bool isIntact(const Block& block)
{
    const auto* bytes = static_cast<const unsigned char*>(block.memory);
    return std::all_of(
        bytes, bytes + block.bytes, [&](unsigned char b) { return b == block.mark; });
}

TEST(NodePool, BlocksDoNotOverlap)
{
    const std::vector<Block> blocks = allocateMarked(20'000);
    EXPECT_TRUE(std::all_of(blocks.begin(), blocks.end(), isIntact));
    for (const Block& block : blocks) {
        NodePool::release(block.memory);
    }
}

TEST(NodePool, BlocksAreAlignedForPointers)
{
    const std::vector<Block> blocks = allocateMarked(100);
    for (const Block& block : blocks) {
        EXPECT_EQ(reinterpret_cast<std::uintptr_t>(block.memory) % alignof(void*), 0U);
        NodePool::release(block.memory);
    }
}

TEST(NodePool, BlocksSurviveTheThreadThatMadeThemAndDieInAnyOrder)
{
    std::vector<Block> blocks;
    std::thread([&] { blocks = allocateMarked(20'000); }).join();
    std::shuffle(blocks.begin(), blocks.end(), std::minstd_rand(1));
    for (const Block& block : blocks) {
        ASSERT_TRUE(isIntact(block));
        NodePool::release(block.memory);
    }
}

TEST(NodePool, ThreadsAllocateAndReleaseAtTheSameTime)
{
    std::vector<std::thread> threads;
    threads.reserve(4);
    for (int t = 0; t < 4; ++t) {
        threads.emplace_back([] {
            for (int round = 0; round < 20; ++round) {
                const std::vector<Block> blocks = allocateMarked(2'000);
                for (const Block& block : blocks) {
                    ASSERT_TRUE(isIntact(block));
                    NodePool::release(block.memory);
                }
            }
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
}

} // namespace
} // namespace tessera
