// SPDX-License-Identifier: MIT
#pragma once

#include "DeadMounts/WithTimeLimit.h"
#include "HomeScreen/HomeViewServices.h"
#include "Model/RootModel.h"
#include "Scanning/ScanEnvironment.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <string>

namespace tessera {

class ColorSchemePreference;
class EndRequests;
class FileAccess;
class FileReader;
class LauncherProgress;
class MotionPreference;
class RasterDecoder;
class RunningInstance;
class Task;
class UserAccount;
class Workspace;

/// What the program's screens need from the system. Everything must outlive the program's run.
struct LaunchServices {
    ScanEnvironment scanEnvironment;
    WithTimeLimit<ResourceValues> resourceValues;
    WithTimeLimit<FileSystemAttributes> fileSystemAttributes;
    WithTimeLimit<FileAccess> filesWithTimeLimit;
    RootModelServices rootModelServices;
    HomeViewServices homeScreen;
    const FileAccess& files; ///< waits as long as it takes
    ColorSchemePreference& colorScheme;
    const MotionPreference& motion;
    Workspace& workspace;
    std::shared_ptr<const FileReader> fileReader;
    std::shared_ptr<const RasterDecoder> rasterDecoder;
    std::function<std::unique_ptr<Task>()> makeTask;
    std::string archiver; ///< path of the program that makes archives; bytes
    const UserAccount& userAccount;
    LauncherProgress& launcherProgress;
    RunningInstance& runningInstance;
    EndRequests& endRequests;
    std::string helpFolder; ///< path of the folder with the help pages; empty when missing
    std::uint64_t availableMemory; ///< bytes
    bool hasTerminal; ///< somebody reads the standard error
    /// Takes what the desktop lets a window come to the front by.
    std::function<void(const std::string&)> adoptActivationToken = nullptr;
};

} // namespace tessera
