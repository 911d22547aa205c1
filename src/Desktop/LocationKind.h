// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

namespace tessera {

/// The folders that most users have or know.
enum class LocationKind : std::uint8_t {
    Home,
    Applications,
    Desktop,
    Documents,
    Downloads,
    Library, ///< what programs keep for the user
    Movies,
    Music,
    Pictures,
    Public, ///< shared with the computer's other users
    Sites, ///< the user's web pages
    Trash
};

} // namespace tessera
