// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

namespace tessera {

class UserDefaults;

/// What the title of a folder's box says.
enum class FolderTitles : std::uint8_t {
    Names,
    NamesAndSizes, ///< the size only where the whole name leaves room for it
};

/// What the settings ask for.
[[nodiscard]] FolderTitles folderTitles(const UserDefaults& defaults);

} // namespace tessera
