// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

namespace tessera {

/// A moment as a file system tells it.
struct FileTime {
    std::int64_t seconds = 0; ///< since 1970-01-01 00:00 UTC
    std::uint32_t nanoseconds = 0;

    bool operator==(const FileTime& other) const = default;
    bool operator<(const FileTime& other) const
    {
        return seconds != other.seconds ? seconds < other.seconds : nanoseconds < other.nanoseconds;
    }
};

/// A moment shortly before now: whatever changes from now on is dated later, on this machine's own
/// disks. The clock that the kernel dates most changes by stands still for a tick, and at a tick it
/// may show the end of the one before: it is up to 20 ms behind (two ticks at the lowest rate that
/// kernels are built for, 100 Hz).
[[nodiscard]] FileTime timeBeforeChanges();

/// A moment right after now: whatever has changed by now is dated earlier, on this machine's own
/// disks. What changes within the same tick of that clock may be dated earlier too.
[[nodiscard]] FileTime timeAfterChanges();

} // namespace tessera
