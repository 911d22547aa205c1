// SPDX-License-Identifier: MIT
#pragma once

#include "Freeing/ChosenItems.h"
#include "Model/LinkedNames.h"
#include "Undo/TrashStep.h"

#include <cstdint>
#include <optional>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace tessera {

class File;

/// Files of several names in items that are to go to the trash, told by the tree alone. Valid while
/// the tree does not change. Takes as long as there are such names.
class LinkedInItems {
public:
    /// None of the items lies in another one.
    explicit LinkedInItems(const std::vector<const File*>& items);

    /// Names that keep space in use when all the items are gone.
    OtherNames otherNames() const;

    /// The same when that item alone is gone. Of several items a folder with all names of a file
    /// counts as one that has some outside.
    OtherNames otherNamesOf(const File& item) const;

    /// What goes with that item. A name whose file goes with another one of the items has no size
    /// of its own.
    std::optional<std::uint64_t> bytesOf(const File& item) const;

private:
    ChosenItems m_items;
    std::unordered_set<const File*> m_withNames; ///< items in which there are such files
    std::vector<LinkedNames::Share> m_shares;
    /// What the files take, by the names that it goes with: those at which the tree counts them, or
    /// the first inside where that one stays.
    std::unordered_map<const File*, std::uint64_t> m_bytes;
};

} // namespace tessera
