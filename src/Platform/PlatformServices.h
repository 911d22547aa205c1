// SPDX-License-Identifier: MIT
#pragma once

#include "About/LibraryVersion.h"
#include "Desktop/ColorSchemePreference.h"
#include "Desktop/CoveredFolders.h"
#include "Desktop/EndRequests.h"
#include "Desktop/FileAccess.h"
#include "Desktop/HiddenFilesPreference.h"
#include "Desktop/ItemChanges.h"
#include "Desktop/ItemStates.h"
#include "Desktop/LauncherProgress.h"
#include "Desktop/MotionPreference.h"
#include "Desktop/MountedVolumes.h"
#include "Desktop/Notifications.h"
#include "Desktop/OpenFiles.h"
#include "Desktop/OtherPrograms.h"
#include "Desktop/RecentDocuments.h"
#include "Desktop/RunningInstance.h"
#include "Desktop/SharedExtents.h"
#include "Desktop/StandardFolders.h"
#include "Desktop/Task.h"
#include "Desktop/UserAccount.h"
#include "Desktop/Workspace.h"
#include "History/TrashHistory.h"
#include "Model/FileSystemAttributes.h"
#include "Model/UserDefaults.h"
#include "Platform/Qt/QtMainThread.h"
#include "QuickLook/Reading/FileReader.h"
#include "QuickLook/Reading/RasterDecoder.h"
#include "Scanning/DirectoryEnumerator.h"
#include "Scanning/ResourceValues.h"

#include <QTranslator>

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace tessera {

/// File systems as the main thread may ask them: what does not answer before anybody notices counts
/// as not readable.
struct FileSystemsWithTimeLimit {
    std::unique_ptr<ResourceValues> resourceValues;
    std::unique_ptr<FileSystemAttributes> fileSystemAttributes;
    std::unique_ptr<FileAccess> fileAccess;
};

/// Everything that the program takes from the system it runs on. Each system's folder defines
/// makePlatformServices(); the rest of the program sees the interfaces alone.
struct PlatformServices {
    std::unique_ptr<FileManager> fileManager;
    std::shared_ptr<const ResourceValues> resourceValues; ///< a question that is stuck keeps it
    std::shared_ptr<const FileSystemAttributes> fileSystemAttributes; ///< likewise
    FileSystemsWithTimeLimit withTimeLimit;
    std::unique_ptr<MountedVolumes> mountedVolumes;
    std::shared_ptr<const CoveredFolders> coveredFolders; ///< a worker keeps it
    std::shared_ptr<const OpenFiles> openFiles; ///< likewise
    std::shared_ptr<const SharedExtents> sharedExtents; ///< likewise
    std::shared_ptr<const ItemStates> itemStates; ///< likewise
    std::shared_ptr<const ItemChanges> itemChanges; ///< likewise
    std::unique_ptr<FileAccess> fileAccess; ///< waits as long as it takes
    std::shared_ptr<const FileReader> fileReader; ///< a look that is stuck keeps it
    std::shared_ptr<const RasterDecoder> rasterDecoder; ///< likewise
    std::unique_ptr<StandardFolders> standardFolders;
    std::unique_ptr<UserAccount> userAccount;
    std::unique_ptr<UserDefaults> userDefaults;
    std::unique_ptr<RecentDocuments> recentDocuments;
    std::unique_ptr<ColorSchemePreference> colorSchemePreference;
    std::unique_ptr<MotionPreference> motionPreference;
    std::unique_ptr<HiddenFilesPreference> hiddenFilesPreference;
    std::unique_ptr<LauncherProgress> launcherProgress;
    std::unique_ptr<Notifications> notifications;
    std::unique_ptr<RunningInstance> runningInstance;
    std::unique_ptr<EndRequests> endRequests;
    std::unique_ptr<QtMainThread> mainThread;
    std::unique_ptr<Workspace> workspace; ///< uses mainThread
    std::unique_ptr<OtherPrograms> otherPrograms; ///< likewise
    std::vector<LibraryVersion> libraries; ///< that the platform uses
    std::unique_ptr<TrashHistory> trashHistory; ///< likewise
    std::function<std::unique_ptr<Task>()> makeTask; ///< a child process, not yet started
    std::string archiver; ///< path of the archiving program, as bytes
    std::string helpFolder; ///< of features.html and faq.html, as bytes; empty when missing
    std::function<double()> clock;
    std::uint64_t availableMemory = 0; ///< bytes that the program may take, at its start
    std::unique_ptr<QTranslator> words; ///< what this system calls its parts; in use already

    /// Whether windows can be shown; asked before there is an application object.
    static bool hasDisplay();
    /// Whether somebody reads what the program writes to its standard error.
    static bool hasTerminal();
};

/// Whether the program takes part in the user's session on the desktop. One that stays out has
/// nothing to do with the session's bus, which might have to be started first.
enum class Session : std::uint8_t { TakePart, StayOut };

/// To be called once the application object exists, on the main thread.
PlatformServices makePlatformServices(Session session = Session::TakePart);

} // namespace tessera
