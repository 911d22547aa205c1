// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/Linux/Files/FileDescriptor.h"

#include <cerrno>
#include <string>

namespace tessera {

/// An item's place: its name in an open folder.
struct FolderEntry {
    const FileDescriptor& folder;
    const std::string& name;
};

/// Nobody can tell whether the item was moved: the file system broke off, and what it shows since
/// may be what it remembers. Then nothing was removed, neither the item nor what may be in its new
/// place.
inline constexpr int kMoveUncertain = EINPROGRESS;

/// Moves an item within a mount. 0, or the errno that says why it is where it was: EEXIST when
/// something has the new name already, whatever it is. A server may carry a move out and be cut off
/// before it can say so: what was moved by then counts as moved, or it is kMoveUncertain.
[[nodiscard]] int renameWithoutReplacing(const FolderEntry& from, const FolderEntry& to);

/// The same for file systems that cannot do it in one step, some network ones among them: the new
/// name is first taken by a small file or an empty folder, which alone is then replaced.
[[nodiscard]] int renameOntoPlaceholder(const FolderEntry& from, const FolderEntry& to);

} // namespace tessera
