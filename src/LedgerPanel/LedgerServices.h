// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

namespace tessera {

class CoveredFolders;
class FileSystemAttributes;
class OpenFiles;

/// Whom the ledger asks about a disk. Threads that may be stuck with a dead file system for long
/// keep them.
struct LedgerServices {
    std::shared_ptr<const FileSystemAttributes> fileSystemAttributes;
    std::shared_ptr<const OpenFiles> openFiles;
    std::shared_ptr<const CoveredFolders> coveredFolders;
};

} // namespace tessera
