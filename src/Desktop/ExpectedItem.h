// SPDX-License-Identifier: MIT
#pragma once

#include "Desktop/ItemStates.h"

#include <cstdint>
#include <optional>

namespace tessera {

/// What stood at a place when the user chose it, by what a scan had shown of it.
struct ExpectedItem {
    ItemState state; ///< when it was chosen
    /// When the scan began, by the clock that the kernel sets file times by.
    FileTime scanned;
    /// When the program itself last moved the file by another of its names, which dates it as a
    /// change does: by that clock, not before the move.
    std::optional<FileTime> movedByOtherName = {};
};

enum class ItemChange : std::uint8_t {
    None,
    /// Something was added to the folder, taken from it or renamed in it, or its owner or rights
    /// have changed. It is the same folder.
    FolderChanged,
    Changed, ///< the file's content, names, owner or rights, since the scan or since it was chosen
    OtherItem, ///< another item stands there, or one of another kind
    MadeSinceScan, ///< a folder that the scan cannot have shown, or shown only in the making
};

/// Whether both tell of one item, as far as they say: an inode number is given again to what is
/// made next, often at once, and then the time of birth is another one.
[[nodiscard]] bool isSameItem(const ItemState& a, const ItemState& b);

/// What has become of the item. `now` is the time by that clock: what was modified later than that
/// was dated by somebody, which says nothing.
[[nodiscard]] ItemChange changeOf(
    const ExpectedItem& expected, const ItemState& found, const FileTime& now);

} // namespace tessera
