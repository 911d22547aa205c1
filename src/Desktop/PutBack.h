// SPDX-License-Identifier: MIT
#pragma once

#include "Base/FileIdentity.h"
#include "Base/Url.h"
#include "Desktop/TrashedItem.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

namespace tessera {

/// What is to be done when the folder that an item was in, or folders around it, are gone.
enum class MissingFolders : std::uint8_t { Refuse, Make };

/// An item that is to leave the trash for the folder that it was in.
struct PutBackRequest {
    TrashedItem item;
    std::string name = {}; ///< what it is to be called there, as bytes; empty: what it was called
    MissingFolders missingFolders = MissingFolders::Refuse;
};

/// What stands in the way of putting an item back. With any but ItemGone and Uncertain the item is
/// where it was before, and the desktop can restore it still.
enum class PutBackObstacle : std::uint8_t {
    None,
    NameTaken, ///< way on: the same with PutBackResult::freeName
    FolderGone, ///< way on: the same with MissingFolders::Make
    FolderReplaced, ///< what was a folder on the way is none any more
    LinkOnTheWay, ///< what was a folder on the way is a link now
    ItemGone, ///< the trash was emptied, or another item is in its place
    ItemInDoubt, ///< nobody can tell whether what is in its place in the trash is the item still
    TrashGone, ///< the trash itself cannot be found: its disk may not be connected
    OtherDisk, ///< the item's place is on another disk than the trash by now
    ReadOnly,
    NoPermission,
    DiskFull,
    Uncertain, ///< nobody can tell where the item is; nothing was removed
    Failed, ///< anything else
};

/// What the disk says of an item that was put back.
struct ItemOnDisk {
    FileIdentity identity; ///< some file systems count an item anew when it moves
    std::optional<std::uint64_t> birth = {}; ///< as TrashedItem has it
    std::uint64_t linkCount = 1; ///< names that it has, be it no folder
    std::optional<std::uint64_t> bytes = {}; ///< that it occupies; missing for a folder
};

/// What became of an item that was to be put back.
struct PutBackResult {
    Url place; ///< where it is now; empty unless it was put back
    PutBackObstacle obstacle = PutBackObstacle::None;
    std::string error; ///< one sentence for the user, names in it as bytes; empty with no obstacle
    /// With NameTaken: a name like it that nothing had there, as bytes; empty when none was found.
    std::string freeName = {};
    ItemOnDisk item = {}; ///< with no obstacle, where the disk told
    Url madeFolder = {}; ///< the outermost of the folders made for it; empty when none was
};

using PutBackCompletion = std::function<void(const PutBackResult&)>;

} // namespace tessera
