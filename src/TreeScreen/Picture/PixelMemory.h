// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>

#include <memory>

namespace tessera {

/// Makes images of which one is usually released when the next is made. Main thread; the images may
/// be used and released on any, and outlive it.
class PixelMemory final {
public:
    PixelMemory();
    PixelMemory(const PixelMemory&) = delete;
    PixelMemory& operator=(const PixelMemory&) = delete;
    ~PixelMemory();

    /// An opaque image with undefined pixels. Its memory comes from an image that is no longer
    /// used, where there is one: getting as many fresh pages from the system would cost as much
    /// time as painting them.
    QImage makeImage(int width, int height);

private:
    class Pool;
    struct Lease;

    static void endLease(void* address);

    std::shared_ptr<Pool> m_pool;
};

} // namespace tessera
