// SPDX-License-Identifier: MIT
#pragma once

#include "Scanning/ScanWorkers.h"

#include <functional>
#include <memory>
#include <string>

namespace tessera {

class FileManager;
class FileSystemAttributes;
class MainThread;
class ResourceValues;

/// What a scan needs from the system that it runs on. What it refers to must live until its workers
/// have ended.
struct ScanEnvironment {
    const FileManager& fileManager;
    const ResourceValues& resourceValues;
    const FileSystemAttributes& fileSystemAttributes;
    MainThread& mainThread;
    std::function<double()> clock; ///< seconds that never go back; asked once for every item
    /// Absolute path of the user's home, as bytes, without links: its last component is looked for
    /// among what is scanned.
    std::string homeDirectory;
    /// Of all scans with this environment or a copy of it.
    std::shared_ptr<ScanWorkers> workers = std::make_shared<ScanWorkers>();
};

} // namespace tessera
