// SPDX-License-Identifier: MIT
#pragma once

#include "Desktop/CoveredFolders.h"
#include "Desktop/OpenFiles.h"
#include "Ledger/FoundSpace.h"
#include "Ledger/SpaceLedger.h"
#include "Ledger/UnseenFolders.h"
#include "Model/FileSystemAttributes.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace tessera {

class Volume;

/// What the system says of a disk, asked at one go.
struct DiskAnswer {
    std::optional<FileSystemSizes> sizes; ///< nothing when the disk gives no answer
    OpenFilesAnswer open; ///< what is deleted and still open
    std::optional<std::vector<CoveredFolder>> covered; ///< nothing where the system does not tell
};

/// The account of a disk's space with what its lines are about.
struct LedgerAccount {
    std::vector<LedgerLine> lines; ///< they add up to the size, to the byte
    FileSystemSizes sizes;
    OpenFilesAnswer open;
    std::optional<std::vector<CoveredFolder>> covered;
    UnseenFolders unseen;
};

/// The account of the disk that was scanned, in which that was found. Nothing when the disk gave no
/// answer, or one that makes no account (spaceLedger).
[[nodiscard]] std::optional<LedgerAccount> ledgerAccount(
    const Volume& disk, const FoundSpace& found, DiskAnswer answer);

} // namespace tessera
