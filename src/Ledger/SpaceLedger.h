// SPDX-License-Identifier: MIT
#pragma once

#include "Model/FileSystemAttributes.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

namespace tessera {

/// What is known of where a file system's space is, each size in bytes. Sizes of files and folders
/// are what they take on the disk (st_blocks x 512).
struct SpaceFacts {
    FileSystemSizes sizes; ///< as they are when the walk has ended
    std::uint64_t files = 0; ///< what was found but folders, each file once whatever names it has
    std::uint64_t folders = 0; ///< the folders' own blocks, without what is in them
    /// By files that no folder names any more, each once; asked when the sizes are, for a file that
    /// is removed in between while it is open counts here and among the files.
    std::uint64_t heldOpen = 0;
    bool isHeldOpenAtLeast = false; ///< whether there may be more of those
    std::size_t unreadableFolders = 0;
    std::size_t coveredFolders = 0; ///< over which something is mounted
    std::size_t foldersLeftOut = 0; ///< that the walk passed by on purpose
};

/// One line of the account of a file system's space.
struct LedgerLine {
    /// In the order in which they are told.
    enum class Kind : std::uint8_t {
        Files,
        Folders,
        HeldOpen,
        UnreadableFolders, ///< how much is in them nobody knows; it is part of the rest
        CoveredFolders, ///< likewise
        FoldersLeftOut, ///< likewise: a store of backups, an encrypted home
        /// The file system's own: journal, records, snapshots, and whatever else is used and was
        /// not found. Below nothing where more was found than is used: files that are compressed,
        /// share what they take, or grew while they were counted, and servers that tell stories.
        Rest,
        Reserved,
        Available,
    };

    Kind kind = Kind::Rest;
    std::int64_t bytes = 0;
    std::size_t count = 0; ///< folders of the three kinds that are counted; 0 of all others
    bool isAtLeast = false; ///< whether it may be more, and the rest less; of HeldOpen alone

    bool operator==(const LedgerLine& other) const = default;
};

/// The account of a file system's space: lines that add up to its size, to the byte. What is not
/// explained is the rest, which is never made to look better than it is:
///
///     rest = total - files - folders - heldOpen - reserved - available
///
/// where total = f_blocks, reserved = f_bfree - f_bavail and available = f_bavail, each x f_frsize
/// (statvfs(3)).
///
/// There are always lines for files, folders, the rest, and what is available; the others are
/// there when they tell something. Sizes are 64-bit numbers with a sign because that is what files,
/// windows and their texts count in. There is no account of facts of which one is kMaxAllocation or
/// more, to which sizes are cut that are larger than any disk is: a line that was cut to fit would
/// be wrong, and the sum with it. Nor is there one where the sizes are not known, or a file system
/// of no size has files nevertheless, as one in memory without a limit.
[[nodiscard]] std::optional<std::vector<LedgerLine>> spaceLedger(const SpaceFacts& facts);

} // namespace tessera
