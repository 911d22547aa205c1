// SPDX-License-Identifier: MIT
#pragma once

#include "Desktop/TrashedItem.h"
#include "Platform/Linux/Files/HeldItem.h"
#include "Platform/Linux/Files/LongPath.h"

#include <cstdint>
#include <string>

namespace tessera {

/// What has become of an item that was moved to a trash.
enum class TrashPlace : std::uint8_t {
    Holds, ///< the very item
    HoldsNothing, ///< or another item
    HoldsSomething, ///< of which nobody can tell whether it is the item
    Missing, ///< the trash itself cannot be found
    Unreadable,
};

/// The item where it is in the trash, and its info file, each as its name in an open folder.
struct ItemInTrash {
    TrashPlace place = TrashPlace::Missing;
    int error = 0; ///< the errno, of what is Unreadable at least
    NamedPlace item;
    NamedPlace info; ///< its name without the suffix; not open where there is no such folder
    FileStatus folderStatus; ///< of the folder that holds the item
    std::string topDirectory; ///< what a path in the info file is relative to
    FileDescriptor held; ///< the item, where it is the very one
};

/// Looks for the item where it was moved to, over no link. It is the one whose identity, time of
/// birth and name are the same, unless its info file says that it was somewhere else. A disk that
/// was connected anew may have another number: then inode and info file tell. Blocks for as long as
/// the file systems take; any thread.
[[nodiscard]] ItemInTrash findInTrash(const TrashedItem& wanted);

/// Whether the item is the one that was moved, when it has left the trash: told by its identity and
/// its time of birth.
[[nodiscard]] bool isVeryItem(const HeldItem& found, const TrashedItem& wanted);

} // namespace tessera
