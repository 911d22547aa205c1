// SPDX-License-Identifier: MIT
#include "Desktop/OpenFiles.h"

#include <algorithm>
#include <limits>

namespace tessera {

std::uint64_t OpenFilesAnswer::allocatedBytes() const
{
    constexpr std::uint64_t kMost = std::numeric_limits<std::int64_t>::max();
    std::uint64_t sum = 0;
    for (const HeldFile& file : files) {
        sum += std::min(file.allocatedBytes.value_or(0), kMost - sum);
    }
    return sum;
}

bool OpenFilesAnswer::isAtLeast() const
{
    const auto isUnknown = [](const HeldFile& file) { return !file.allocatedBytes; };
    return isCutShort || hidesProcesses || hasFilesInLayers || unreadableProcesses != 0
        || std::ranges::any_of(files, isUnknown);
}

} // namespace tessera
