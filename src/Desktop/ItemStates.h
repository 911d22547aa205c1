// SPDX-License-Identifier: MIT
#pragma once

#include "Base/FileIdentity.h"
#include "Base/FileTime.h"

#include <cstdint>
#include <optional>
#include <stop_token>
#include <string>
#include <vector>

namespace tessera {

/// What the disk says of an item itself, be it a link.
struct ItemState {
    enum class Kind : std::uint8_t { Folder, File, SymbolicLink, Other };

    Kind kind = Kind::Other;
    FileIdentity identity;
    std::uint64_t linkCount = 0; ///< names that it has
    std::uint64_t allocatedBytes = 0; ///< st_blocks x 512
    FileTime modified; ///< its content; anybody may set it to any time
    FileTime changed; ///< its content, names, owner or rights; the system alone sets it
    std::uint32_t owner = 0; ///< the user's number
    /// When it was made, which stays over renames. Missing where the file system does not tell.
    std::optional<FileTime> birth = {};

    bool operator==(const ItemState& other) const = default;
};

struct ItemAnswer {
    enum class Outcome : std::uint8_t {
        NotLookedAt, ///< for want of time or threads, or after an error on the way
        Known,
        Gone, ///< nothing is there, or it would be reached over a link
        MayNotLook, ///< for want of rights
    };

    Outcome outcome = Outcome::NotLookedAt;
    ItemState state = {}; ///< only where it is known

    bool operator==(const ItemAnswer& other) const = default;
};

/// Looks at items without opening them. For a worker thread. The call returns within a few seconds,
/// also when file systems are dead, and soon after a stop was asked for.
class ItemStates {
public:
    ItemStates() = default;
    ItemStates(const ItemStates&) = delete;
    ItemStates& operator=(const ItemStates&) = delete;
    virtual ~ItemStates() = default;

    /// Of absolute paths, of which no part before the last may be a link; in the order of the
    /// question.
    [[nodiscard]] virtual std::vector<ItemAnswer> statesOf(
        const std::vector<std::string>& paths, const std::stop_token& stop) const = 0;
};

} // namespace tessera
