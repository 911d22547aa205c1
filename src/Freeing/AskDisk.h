// SPDX-License-Identifier: MIT
#pragma once

#include "Freeing/FreedByDisk.h"
#include "Freeing/FreedByScan.h"

#include <chrono>
#include <cstdint>
#include <memory>
#include <stop_token>

namespace tessera {

/// Who is asked; a thread that is stuck keeps them.
struct FreeingServices {
    std::shared_ptr<const ItemStates> itemStates;
    std::shared_ptr<const SharedExtents> sharedExtents;
    std::shared_ptr<const OpenFiles> openFiles;
    /// Its number. It opens files to ask for their extents, and lets go of all by itself: it keeps
    /// nothing.
    std::int64_t thisProcess = 0;
};

/// For a worker thread: what is known when the time is over, or soon after a stop.
[[nodiscard]] FreeingFacts askDisk(
    const FreeingQuestion& question,
    const FreeingServices& services,
    std::chrono::milliseconds patience,
    const std::stop_token& stop);

} // namespace tessera
