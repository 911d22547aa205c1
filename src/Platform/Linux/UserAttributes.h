// SPDX-License-Identifier: MIT
#pragma once

#include "Archiver/ArchiveItem.h"

#include <vector>

namespace tessera {

/// Extended attributes, or the errno that says why they could not be read.
struct UserAttributes {
    int error = 0;
    std::vector<ExtendedAttribute> attributes;
};

/// The attributes that users give to the open file or folder: those of Linux's namespace "user.",
/// under their names without it, in the order of their names. None where the file system keeps no
/// attributes.
[[nodiscard]] UserAttributes readUserAttributes(int descriptor);

} // namespace tessera
