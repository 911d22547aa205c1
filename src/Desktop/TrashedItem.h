// SPDX-License-Identifier: MIT
#pragma once

#include "Base/FileIdentity.h"
#include "Base/Url.h"

#include <cstdint>
#include <optional>

namespace tessera {

/// An item that was moved to the trash, and all it takes to put that very item back.
struct TrashedItem {
    Url from; ///< where it was
    Url to; ///< where it is in the trash
    FileIdentity identity; ///< of the item; another one may have it once the item is destroyed
    std::uint64_t number = 0; ///< of its entry in the journal; 0 when it has none
    /// When the item was made, as a number of the platform's: what has another one is another item.
    /// Missing where the file system does not tell.
    std::optional<std::uint64_t> birth = {};

    bool operator==(const TrashedItem& other) const = default;
};

/// Whether they are the same move of an item: what is read from a journal may say less of it.
[[nodiscard]] inline bool isSameMove(const TrashedItem& a, const TrashedItem& b)
{
    return a.identity == b.identity && a.to.path() == b.to.path();
}

} // namespace tessera
