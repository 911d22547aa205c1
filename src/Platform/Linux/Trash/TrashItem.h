// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Url.h"
#include "Platform/Linux/Files/HeldItem.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace tessera {

/// An item that is to be moved to the trash, held by the folder it lies in: whatever is renamed or
/// linked above it meanwhile, what is looked at here is what is moved in the end.
struct TrashItem {
    FileDescriptor parent;
    FileStatus parentStatus;
    std::string name; ///< in `parent`
    std::string path; ///< where it is; nothing above it is a link
    FileStatus status; ///< of the item itself, be it a link
    FileDescriptor held; ///< the item, so that nothing else can pass for it
    std::optional<std::uint64_t> birth; ///< as birthTimeOf()
};

/// An item, or one sentence for the user that says why there is none.
struct TrashItemResult {
    std::string error;
    TrashItem item;

    explicit operator bool() const { return error.empty(); }
};

/// Whether the path is absolute, names something in a folder and says where that lies without
/// anybody having to resolve it.
[[nodiscard]] bool isPlainPath(std::string_view path);

/// Looks the item up, which must still be a folder or no folder as the URL says, and be reached
/// over no link.
[[nodiscard]] TrashItemResult findTrashItem(const Url& url);

/// One sentence for the user that says why the item of that name stays where it is, for an errno
/// met while moving it. The name's bytes are in it as they are.
[[nodiscard]] std::string trashErrorSentence(const std::string& name, int error);

/// The same for an errno met while opening or making the trash.
[[nodiscard]] std::string noTrashSentence(const std::string& name, int error);

/// The path of an open folder or file; empty when it has none any more.
[[nodiscard]] std::string pathOf(const FileDescriptor& opened);

} // namespace tessera
