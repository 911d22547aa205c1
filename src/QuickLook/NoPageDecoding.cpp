// SPDX-License-Identifier: MIT
#include "QuickLook/PageDecoding.h"

namespace tessera {

bool canDecodePages()
{
    return false;
}

PreviewPages decodedPages(
    QIODevice& /*device*/, int /*width*/, const std::atomic<bool>& /*isCancelled*/)
{
    return {};
}

} // namespace tessera
