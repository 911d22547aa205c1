// SPDX-License-Identifier: MIT
#include "Model/NodePool.h"

#include <atomic>
#include <cassert>
#include <cstdint>
#include <new>

namespace tessera {

#ifdef TESSERA_SEPARATE_NODES

void* NodePool::allocate(std::size_t bytes)
{
    return ::operator new(bytes);
}

void NodePool::release(void* block) noexcept
{
    ::operator delete(block);
}

#else

namespace {

constexpr std::size_t kChunkBytes = std::size_t{256} * 1024;
constexpr std::size_t kBlockAlignment = alignof(void*);

/// While a thread still cuts blocks from a chunk the count is kept this much too high, so that
/// nobody frees the chunk under it and the blocks need not be counted one atomic step at a time.
constexpr std::uint32_t kOpenBias = std::uint32_t{1} << 31U;

struct alignas(kBlockAlignment) Chunk {
    std::atomic<std::uint32_t> liveBlocks{kOpenBias};
};

Chunk* chunkOf(void* block)
{
    // Chunks are aligned to their size, so what an address has beyond a multiple of that is the
    // block's distance from the start of its chunk.
    const std::uintptr_t distance = reinterpret_cast<std::uintptr_t>(block) % kChunkBytes;
    return reinterpret_cast<Chunk*>(static_cast<std::byte*>(block) - distance);
}

void dropBlocks(Chunk* chunk, std::uint32_t count) noexcept
{
    if (chunk->liveBlocks.fetch_sub(count, std::memory_order_acq_rel) == count) {
        chunk->~Chunk();
        ::operator delete (chunk, std::align_val_t{kChunkBytes});
    }
}

/// The chunk from which one thread is cutting blocks.
class OpenChunk {
public:
    OpenChunk() = default;
    OpenChunk(const OpenChunk&) = delete;
    OpenChunk& operator=(const OpenChunk&) = delete;
    ~OpenChunk() { close(); }

    void* allocate(std::size_t bytes)
    {
        const std::size_t rounded = (bytes + kBlockAlignment - 1) & ~(kBlockAlignment - 1);
        assert(rounded <= kChunkBytes - sizeof(Chunk));
        if (m_chunk == nullptr || m_used + rounded > kChunkBytes) {
            close();
            // NOLINTNEXTLINE(cppcoreguidelines-owning-memory): its blocks own it together
            m_chunk = new (::operator new (kChunkBytes, std::align_val_t{kChunkBytes})) Chunk;
            m_used = sizeof(Chunk);
        }
        void* block = reinterpret_cast<std::byte*>(m_chunk) + m_used;
        m_used += rounded;
        ++m_blocks;
        return block;
    }

private:
    void close() noexcept
    {
        if (m_chunk != nullptr) {
            dropBlocks(m_chunk, kOpenBias - m_blocks);
        }
        m_chunk = nullptr;
        m_blocks = 0;
    }

    Chunk* m_chunk = nullptr;
    std::size_t m_used = 0;
    std::uint32_t m_blocks = 0;
};

thread_local OpenChunk openChunk;

} // namespace

void* NodePool::allocate(std::size_t bytes)
{
    return openChunk.allocate(bytes);
}

void NodePool::release(void* block) noexcept
{
    dropBlocks(chunkOf(block), 1);
}

#endif

} // namespace tessera
