// SPDX-License-Identifier: MIT
#include "LedgerPanel/LedgerAccount.h"

#include "Model/Volume.h"

#include <utility>

namespace tessera {

std::optional<LedgerAccount> ledgerAccount(
    const Volume& disk, const FoundSpace& found, DiskAnswer answer)
{
    if (!answer.sizes) {
        return std::nullopt;
    }
    UnseenFolders unseen = unseenFolders(disk);
    auto lines = spaceLedger(
        {.sizes = *answer.sizes,
         .files = found.files,
         .folders = found.folders,
         .heldOpen = answer.open.allocatedBytes(),
         .isHeldOpenAtLeast = answer.open.isAtLeast(),
         .unreadableFolders = unseen.unreadableCount,
         .coveredFolders = answer.covered ? answer.covered->size() : 0,
         .foldersLeftOut = unseen.leftOutCount});
    if (!lines) {
        return std::nullopt;
    }
    return LedgerAccount{
        .lines = std::move(*lines),
        .sizes = *std::move(answer.sizes),
        .open = std::move(answer.open),
        .covered = std::move(answer.covered),
        .unseen = std::move(unseen)};
}

} // namespace tessera
