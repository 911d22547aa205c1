// SPDX-License-Identifier: MIT
#pragma once

#include "HelperPrograms/Archiver/ArchiveItem.h"

#include <vector>

namespace tessera {

/// Extended attributes, as far as they can be read.
struct UserAttributes {
    int error = 0; ///< why there are more than these; an errno
    std::vector<ExtendedAttribute> attributes;
};

/// The attributes that users give to the open file or folder: those of Linux's namespace "user.",
/// under their names without it, in the order of their names. None where the file system keeps no
/// attributes.
[[nodiscard]] UserAttributes readUserAttributes(int descriptor);

} // namespace tessera
