// SPDX-License-Identifier: MIT
#pragma once

#include "About/LibraryVersion.h"
#include "DeadMounts/WithTimeLimit.h"
#include "HomeScreen/HomeViewServices.h"
#include "Model/RootModel.h"
#include "Scanning/ScanEnvironment.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace tessera {

class ColorSchemePreference;
class CoveredFolders;
class EndRequests;
class FileAccess;
class FileReader;
class HiddenFilesPreference;
class ItemChanges;
class ItemStates;
class LauncherProgress;
class MotionPreference;
class Notifications;
class OpenFiles;
class OtherPrograms;
class RasterDecoder;
class RunningInstance;
class SharedExtents;
class Task;
class TrashHistory;
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
    const HiddenFilesPreference* hiddenFiles = nullptr; ///< null where nobody says
    Workspace& workspace;
    OtherPrograms& otherPrograms;
    TrashHistory& trashHistory;
    std::shared_ptr<const FileReader> fileReader;
    std::shared_ptr<const RasterDecoder> rasterDecoder;
    std::shared_ptr<const CoveredFolders> coveredFolders;
    std::shared_ptr<const OpenFiles> openFiles;
    std::shared_ptr<const SharedExtents> sharedExtents;
    std::shared_ptr<const ItemStates> itemStates;
    std::shared_ptr<const ItemChanges> itemChanges;
    std::function<std::unique_ptr<Task>()> makeTask;
    std::string archiver; ///< path of the program that makes archives; bytes
    const UserAccount& userAccount;
    LauncherProgress& launcherProgress;
    Notifications& notifications;
    RunningInstance& runningInstance;
    EndRequests& endRequests;
    std::string helpFolder; ///< path of the folder with the help pages; empty when missing
    std::vector<LibraryVersion> libraries; ///< that the platform uses
    std::uint64_t availableMemory; ///< bytes
    bool hasTerminal; ///< somebody reads the standard error
    /// Takes what the desktop lets a window come to the front by.
    std::function<void(const std::string&)> adoptActivationToken = nullptr;
};

} // namespace tessera
