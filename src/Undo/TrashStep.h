// SPDX-License-Identifier: MIT
#pragma once

#include "Desktop/TrashedItem.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

namespace tessera {

/// Names outside the trash, as far as they are known, that keep an item's space in use when the
/// trash is emptied.
enum class OtherNames : std::uint8_t {
    None,
    OfTheFile, ///< the item is a file that has some
    OfFilesInside, ///< files have some that are in the item, or are among several items
};

/// What is known of items that were asked for together, when all of them have moved. Names of one
/// file may be among them: then it says more than what is known of each.
struct AskedTogether {
    std::size_t count = 0;
    std::optional<std::uint64_t> bytes = {};
    OtherNames otherNames = OtherNames::None; ///< outside of all of them

    bool operator==(const AskedTogether& other) const = default;
};

/// What is known of items that are to become one step.
struct AskedStep {
    std::vector<OtherNames> otherNames = {}; ///< as MovedItem has them; of none where it is empty
    std::optional<AskedTogether> together = {};
};

/// An item in the trash, with its size as far as it is known.
struct MovedItem {
    TrashedItem item;
    std::optional<std::uint64_t> bytes = {};
    OtherNames otherNames = OtherNames::None; ///< when nothing else moves
    std::optional<AskedTogether> together = {}; ///< where it was asked for with others

    bool operator==(const MovedItem& other) const = default;
};

/// Items that the user moved to the trash together, and that come back together.
struct TrashStep {
    std::vector<MovedItem> items; ///< one at least

    /// The sum of the items' sizes; nothing when one is not known.
    [[nodiscard]] std::optional<std::uint64_t> bytes() const;
    /// Outside of the items. Where only some have moved of those that were asked for, it may be a
    /// name that is among the items: then nobody promises space that does not get free.
    [[nodiscard]] OtherNames otherNames() const;

    bool operator==(const TrashStep& other) const = default;

private:
    [[nodiscard]] const AskedTogether* whole() const;
};

/// An item that has left the trash.
struct ReturnedItem {
    MovedItem moved; ///< as it was in the trash
    Url place; ///< where it is now, perhaps under another name than before
};

} // namespace tessera
