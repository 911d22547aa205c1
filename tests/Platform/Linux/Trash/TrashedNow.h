// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/Linux/Files/FileStatus.h"
#include "Platform/Linux/Trash/TrashJournal.h"

#include <fcntl.h>

#include <optional>
#include <set>
#include <string>
#include <vector>

namespace tessera::test {

/// Whether the disk has that very item there.
inline std::optional<bool> isItemOnDiskAt(const Url& place, const TrashedItem& item)
{
    const StatusResult found = statusAt(AT_FDCWD, place.path().c_str());
    return found && found.status.identity == item.identity;
}

/// What is in the trash, known from the journal and the disk alone; newest first.
inline std::vector<TrashedItem> trashedNow(const TrashJournal& journal)
{
    std::vector<TrashedItem> items;
    std::set<std::string> places;
    for (const TrashRecord& record : journal.records()) {
        // An older entry, of which no return was written down, is of the same item when that has
        // gone to the same place again.
        if (settled(record, isItemOnDiskAt).state == TrashState::Moved
            && places.insert(record.item.to.path()).second) {
            items.push_back(record.item);
        }
    }
    return items;
}

} // namespace tessera::test
