// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace tessera {

/// Where an item's archive goes, beside the item: "X.zip" for the number 1, "X 2.zip" for 2 and so
/// on. A name too long to be followed by that is shortened. Paths are bytes.
std::string archivePath(std::string_view sourcePath, unsigned number);

/// The name that an archive has until it is complete: its own with ".part" behind it, shortened
/// and marked where that would be too long.
std::string partName(std::string_view archiveName);

/// The same for a path.
std::string partPath(std::string_view archivePath);

} // namespace tessera
