// SPDX-License-Identifier: MIT
#pragma once

#include "Desktop/Workspace.h"
#include "Undo/DiskChanges.h"
#include "Undo/TrashStep.h"
#include "Undo/TrashStepCommand.h"

#include <vector>

namespace tessera {

// The items of a step on their ways to the trash and back.

/// What the disk says of the item that was put back, or what it said before the move.
[[nodiscard]] ItemOnDisk onDisk(const TrashedItem& item, const PutBackResult& result);

[[nodiscard]] ItemMove moveOf(const StepItem& item, const Url& from, const Url& to);

/// The very item that was put back.
[[nodiscard]] ItemToRecycle toRecycleAgain(const StepItem& item);

/// What has moved of that which was asked for.
[[nodiscard]] std::vector<MovedItem> movedItems(
    const std::vector<ItemToRecycle>& asked,
    const AskedStep& step,
    const std::vector<TrashedItem>& trashed);

[[nodiscard]] std::vector<MovedItem> movedItems(const std::vector<StepItem>& items);
[[nodiscard]] std::vector<TrashedItem> itemsInTrash(const std::vector<MovedItem>& items);

/// What a step that was to be done again has done.
struct RedoneStep {
    std::vector<StepItem> moved;
    std::vector<StepItem> left;
    std::vector<ItemMove> moves;
};

[[nodiscard]] RedoneStep redoneStep(
    const std::vector<StepItem>& items, const std::vector<TrashedItem>& allTrashed);

} // namespace tessera
