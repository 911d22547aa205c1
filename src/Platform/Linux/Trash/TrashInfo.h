// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/Linux/Files/FileDescriptor.h"

#include <cstddef>
#include <cstdint>
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

/// The path that such a file's text names, as bytes; empty when it names none. One that is not
/// absolute is relative to `topDirectory`.
[[nodiscard]] std::string originalPathIn(std::string_view text, const std::string& topDirectory);

/// What is known from such a file of where its item was.
enum class InfoSays : std::uint8_t {
    Nothing, ///< there is none that says a path
    ThisPath,
    AnotherPath, ///< it is another item's
    Unknown, ///< it cannot be read
};

/// What the file of the item that is called `name` in the trash says; what is no regular file says
/// nothing and stays unread.
[[nodiscard]] InfoSays infoSays(
    const FileDescriptor& infoFolder,
    const std::string& name,
    std::string_view originalPath,
    const std::string& topDirectory);

/// Removes the file of the item that was called `name` in the trash and has left it for
/// `originalPath`. A file that says another path, or that is no regular one, is of another item by
/// now and stays.
void removeTrashInfoOf(
    const FileDescriptor& infoFolder,
    const std::string& name,
    std::string_view originalPath,
    const std::string& topDirectory);

/// The name with a number before its extension, from number 2 on, and no longer than `maxBytes`: it
/// is cut at the end of its stem, and where it is UTF-8 between two characters.
[[nodiscard]] std::string numberedName(
    std::string_view name, unsigned number, std::size_t maxBytes = 255);

/// The same for an item in the trash: so short that with the suffix above it is no longer than
/// `maxBytes`.
[[nodiscard]] std::string trashName(
    std::string_view name, unsigned number, std::size_t maxBytes = 255);

} // namespace tessera
