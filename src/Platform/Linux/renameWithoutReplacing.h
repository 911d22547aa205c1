// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/Linux/FileDescriptor.h"

#include <string>

namespace tessera {

/// An item's place: its name in an open folder.
struct FolderEntry {
    const FileDescriptor& folder;
    const std::string& name;
};

/// Moves an item within a mount. 0, or the errno that says why it is where it was: EEXIST when
/// something has the new name already, whatever it is.
[[nodiscard]] int renameWithoutReplacing(const FolderEntry& from, const FolderEntry& to);

/// The same for file systems that cannot do it in one step, some network ones among them: the new
/// name is first taken by an empty file or folder, which alone is then replaced.
[[nodiscard]] int renameOntoPlaceholder(const FolderEntry& from, const FolderEntry& to);

} // namespace tessera
