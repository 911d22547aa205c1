// SPDX-License-Identifier: MIT
#pragma once

#include "Desktop/OpenFiles.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace tessera {

/// Files that may free less than they take.
struct KeptFiles {
    /// The first one is known for certain, the others make a range.
    enum class Reason : std::uint8_t {
        LinksElsewhere, ///< another name of the same file stays in the tree
        LinksOutsideScan, ///< the file has more names than the tree knows
        SharedExtents, ///< other files, which may be among the items, share what it takes
        Compressed, ///< it takes less than it seems, and nobody tells how much
        HeldOpen, ///< a process has it open, and frees it when it closes it
        NotTold, ///< whether it shares what it takes, the file system or its rights do not tell
        Changed, ///< it is not there any more, or is something else
        NotLookedAt, ///< for want of time, or because there are too many files
    };

    Reason reason = Reason::LinksElsewhere;
    std::size_t count = 0;
    std::string largest = {}; ///< where the largest of them is, absolute, as bytes
    std::vector<FileHolder> holders = {}; ///< of HeldOpen alone: who has that one open

    bool operator==(const KeptFiles& other) const = default;
};

/// What will be free on a disk once items are removed for good: in the trash, which is always on
/// their own disk, they take as much as before. Bytes on disk (st_blocks x 512).
struct FreedSpace {
    std::uint64_t least = 0; ///< so much is certain, as far as anybody told
    std::uint64_t most = 0; ///< equal to that where nothing is uncertain
    std::vector<KeptFiles> kept = {}; ///< each reason at most once, in their order
    /// Whether processes that could not be looked at may have files open.
    bool mayBeHeldOpen = false;

    bool operator==(const FreedSpace& other) const = default;
};

} // namespace tessera
