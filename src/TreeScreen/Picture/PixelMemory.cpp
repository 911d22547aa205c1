// SPDX-License-Identifier: MIT
#include "TreeScreen/Picture/PixelMemory.h"

#include <cstddef>
#include <mutex>
#include <utility>

namespace tessera {

/// Keeps the last released block: a view holds one picture while the next is painted.
class PixelMemory::Pool {
public:
    struct Block {
        // Left uninitialised on purpose: painting writes every pixel.
        // NOLINTNEXTLINE(modernize-avoid-c-arrays): the one owner of a run of raw bytes
        std::unique_ptr<std::byte[]> bytes;
        std::size_t size = 0;
    };

    Block take(std::size_t size)
    {
        const std::lock_guard lock(m_mutex);
        if (m_spare.size >= size && m_spare.size / 2 <= size) {
            return std::exchange(m_spare, {});
        }
        // Room for a window that is being resized to grow into.
        const std::size_t capacity = size + size / 8;
        // NOLINTNEXTLINE(modernize-avoid-c-arrays): as above
        return {std::unique_ptr<std::byte[]>(new std::byte[capacity]), capacity};
    }

    void giveBack(Block block)
    {
        const std::lock_guard lock(m_mutex);
        std::swap(m_spare, block);
    }

private:
    std::mutex m_mutex;
    Block m_spare;
};

/// An image's hold on its block. The pool lives on while an image does.
struct PixelMemory::Lease {
    std::shared_ptr<Pool> pool;
    Pool::Block block;
};

PixelMemory::PixelMemory()
    : m_pool(std::make_shared<Pool>())
{
}

PixelMemory::~PixelMemory() = default;

void PixelMemory::endLease(void* address)
{
    const std::unique_ptr<Lease> lease(static_cast<Lease*>(address));
    lease->pool->giveBack(std::move(lease->block));
}

QImage PixelMemory::makeImage(int width, int height)
{
    const auto bytesPerRow = static_cast<std::size_t>(width) * sizeof(QRgb);
    auto lease = std::make_unique<Lease>(
        Lease{m_pool, m_pool->take(bytesPerRow * static_cast<std::size_t>(height))});
    auto* bytes = reinterpret_cast<uchar*>(lease->block.bytes.get());
    return {
        bytes,
        width,
        height,
        static_cast<qsizetype>(bytesPerRow),
        QImage::Format_RGB32,
        &endLease,
        lease.release()};
}

} // namespace tessera
