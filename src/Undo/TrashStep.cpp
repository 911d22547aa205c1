// SPDX-License-Identifier: MIT
#include "Undo/TrashStep.h"

#include "Model/Allocation.h"

#include <algorithm>

namespace tessera {

/// Null unless the items are all that were asked for together: steps only ever fall apart.
const AskedTogether* TrashStep::whole() const
{
    if (items.empty() || !items.front().together) {
        return nullptr;
    }
    const AskedTogether& together = *items.front().together;
    return together.count == items.size() ? &together : nullptr;
}

std::optional<std::uint64_t> TrashStep::bytes() const
{
    if (const AskedTogether* const all = whole()) {
        return all->bytes;
    }
    std::uint64_t sum = 0;
    for (const MovedItem& moved : items) {
        if (!moved.bytes) {
            return std::nullopt;
        }
        sum = saturatingSum(sum, *moved.bytes);
    }
    return sum;
}

OtherNames TrashStep::otherNames() const
{
    if (const AskedTogether* const all = whole()) {
        return all->otherNames;
    }
    if (items.size() == 1) {
        return items.front().otherNames;
    }
    const bool haveSome = std::ranges::any_of(
        items, [](const MovedItem& moved) { return moved.otherNames != OtherNames::None; });
    return haveSome ? OtherNames::OfFilesInside : OtherNames::None;
}

} // namespace tessera
