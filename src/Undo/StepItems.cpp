// SPDX-License-Identifier: MIT
#include "Undo/StepItems.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <limits>
#include <optional>
#include <string>
#include <unordered_map>

namespace tessera {

ItemOnDisk onDisk(const TrashedItem& item, const PutBackResult& result)
{
    ItemOnDisk told = result.item;
    if (told.identity == FileIdentity()) {
        told.identity = item.identity;
        told.birth = item.birth;
    }
    return told;
}

ItemMove moveOf(const StepItem& item, const Url& from, const Url& to)
{
    constexpr std::uint64_t kMaxLinks = std::numeric_limits<std::int32_t>::max();
    ItemMove move;
    move.from = from;
    move.to = to;
    move.identity = item.onDisk.identity;
    move.linkCount = static_cast<std::uint32_t>(std::min(item.onDisk.linkCount, kMaxLinks));
    move.bytes = item.onDisk.bytes.value_or(item.moved.bytes.value_or(0));
    return move;
}

ItemToRecycle toRecycleAgain(const StepItem& item)
{
    ItemToRecycle again(item.place, item.moved.bytes);
    again.identity = item.onDisk.identity;
    again.birth = item.onDisk.birth;
    return again;
}

std::vector<MovedItem> movedItems(
    const std::vector<ItemToRecycle>& asked,
    const AskedStep& step,
    const std::vector<TrashedItem>& trashed)
{
    std::unordered_map<std::string, std::size_t> numbers;
    for (std::size_t i = 0; i < asked.size(); ++i) {
        numbers.emplace(asked[i].url.path(), i);
    }
    std::vector<MovedItem> moved;
    for (const TrashedItem& item : trashed) {
        moved.push_back({.item = item, .together = step.together});
        const auto found = numbers.find(item.from.path());
        if (found != numbers.end()) {
            moved.back().bytes = asked[found->second].bytes;
            moved.back().otherNames
                = step.otherNames.empty() ? OtherNames::None : step.otherNames.at(found->second);
        }
    }
    return moved;
}

std::vector<TrashedItem> itemsInTrash(const std::vector<MovedItem>& items)
{
    std::vector<TrashedItem> inTrash;
    std::ranges::transform(items, std::back_inserter(inTrash), &MovedItem::item);
    return inTrash;
}

std::vector<MovedItem> movedItems(const std::vector<StepItem>& items)
{
    std::vector<MovedItem> moved;
    std::ranges::transform(items, std::back_inserter(moved), &StepItem::moved);
    return moved;
}

RedoneStep redoneStep(
    const std::vector<StepItem>& items, const std::vector<TrashedItem>& allTrashed)
{
    std::unordered_map<std::string, const TrashedItem*> byPlace;
    for (const TrashedItem& trashed : allTrashed) {
        byPlace.emplace(trashed.from.path(), &trashed);
    }
    RedoneStep step;
    for (const StepItem& item : items) {
        const auto found = byPlace.find(item.place.path());
        if (found == byPlace.end()) {
            step.left.push_back(item);
            continue;
        }
        const TrashedItem& trashed = *found->second;
        step.moves.push_back(moveOf(item, item.place, trashed.to));
        step.moved.push_back({.moved = item.moved});
        step.moved.back().moved.item = trashed;
    }
    return step;
}

} // namespace tessera
