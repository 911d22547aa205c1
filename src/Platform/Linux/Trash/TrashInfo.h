// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/Linux/Files/FileDescriptor.h"

#include <cstddef>
#include <ctime>
#include <string>
#include <string_view>

namespace tessera {

/// What a trashed item's file is called in the folder "info": the item's name and this.
inline constexpr std::string_view kTrashInfoSuffix = ".trashinfo";

/// The content of that file: where the item was, as the bytes of a path, and when it went, in local
/// time. https://specifications.freedesktop.org/trash-spec/1.0/
[[nodiscard]] std::string trashInfoText(std::string_view originalPath, std::time_t deletionTime);

/// Makes that file for an item that goes now, in the open folder "info", and so takes the name for
/// the item: whoever makes the info file owns the name. 0, or the errno.
[[nodiscard]] int makeTrashInfo(
    const FileDescriptor& infoFolder, const std::string& name, std::string_view originalPath);

/// Gives the name back, when the item did not come.
void removeTrashInfo(const FileDescriptor& infoFolder, const std::string& name);

/// The name for an item in the trash: from number 2 on with that number before the extension, and
/// so short that with the suffix above it is no longer than `maxBytes`. A name is cut at the end
/// of its stem, and where it is UTF-8 between two characters.
[[nodiscard]] std::string trashName(
    std::string_view name, unsigned number, std::size_t maxBytes = 255);

} // namespace tessera
