// SPDX-License-Identifier: MIT
#pragma once

#include "Base/FileIdentity.h"
#include "Base/FileTime.h"
#include "Desktop/ItemStates.h"

#include <cstdint>
#include <stop_token>
#include <string>

namespace tessera {

class ItemChanges;

/// An item that was put into an archive. Paths are bytes.
struct ArchivedItem {
    std::string original;
    std::string archive;
    FileIdentity archiveIdentity;
    FileTime begun; ///< when it was begun: whatever changed later may be missing in the archive
};

/// Whether the archive holds what the original is.
struct OriginalCheck {
    enum class Outcome : std::uint8_t {
        Same,
        Changed, ///< or nobody can tell
        Gone,
        ArchiveGone, ///< or it is another file now
    };

    Outcome outcome = Outcome::Changed;
    ItemState state = {}; ///< of the original, where it is the same
};

/// For a worker thread, which may wait for a disk for as long as that likes.
[[nodiscard]] OriginalCheck checkOriginal(
    const ArchivedItem& archived,
    const ItemChanges& changes,
    const ItemStates& states,
    const std::stop_token& stop);

} // namespace tessera
