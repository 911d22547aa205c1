// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>

namespace tessera {

class FileManager;
class FileSystemAttributes;
class MainThread;
class ResourceValues;

/// What a scan needs from the system that it runs on.
struct ScanEnvironment {
    const FileManager& fileManager;
    const ResourceValues& resourceValues;
    const FileSystemAttributes& fileSystemAttributes;
    MainThread& mainThread;
    std::function<double()> clock; ///< seconds that never go back; asked once for every item
    std::string homeDirectory; ///< absolute path of the user's home, as bytes
};

} // namespace tessera
