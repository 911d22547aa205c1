// SPDX-License-Identifier: MIT
#pragma once

#include "Desktop/TrashedItem.h"

#include <cstdint>
#include <functional>
#include <optional>

namespace tessera {

/// What became of an item that was to go to the trash.
enum class TrashState : std::uint8_t {
    Begun, ///< nobody knows: the program ended in the middle, or the disk broke off
    Moved, ///< it is in the trash
    NotMoved, ///< it has stayed where it was
    PutBack, ///< it was in the trash and has come back
    Gone, ///< it was in the trash, and neither is there any more nor has come back
};

/// One move to the trash, as the journal tells of it.
struct TrashRecord {
    TrashedItem item;
    std::int64_t time = 0; ///< of the move, in seconds since 1970-01-01 00:00 UTC
    std::optional<std::uint64_t> bytes; ///< the item's size as far as it was known
    TrashState state = TrashState::Begun;
    Url place; ///< with PutBack: where it was put; with Moved: where it may have been put since

    bool operator==(const TrashRecord& other) const = default;
};

/// Whether that very item is at that place now; nothing when nobody can tell.
using IsItemAt = std::function<std::optional<bool>(const Url& place, const TrashedItem& item)>;

/// The record with the state that the disk shows: a journal may have been cut off before it could
/// tell, and other programs empty the trash and restore from it. What nobody can tell stays.
[[nodiscard]] TrashRecord settled(TrashRecord record, const IsItemAt& isItemAt);

} // namespace tessera
