// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/Linux/Files/FileDescriptor.h"

#include <string>

namespace tessera {

/// An item as its name in an open folder.
struct NamedPlace {
    int error = 0; ///< errno; 0 when the folder is open
    FileDescriptor folder; ///< opened for reaching what is in it, not for listing
    std::string name; ///< neither empty nor "." nor ".."
};

/// Opens the folder that holds the item at `path`, which need not exist. Paths may be longer than
/// the system takes in one call. Slashes at the end mean nothing: of a link to a folder it is the
/// link that is named. The root folder, being in no other, is an error.
[[nodiscard]] NamedPlace openFolderOf(const std::string& path);

/// The same for an absolute path of which no part may be a link, so that nobody who may rename
/// something on the way can lead it elsewhere: a link that is met is ELOOP. The item itself may be
/// one. A name of dots and the root folder are EINVAL.
[[nodiscard]] NamedPlace openFolderOfWithoutLinks(const std::string& path);

} // namespace tessera
