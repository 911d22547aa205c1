// SPDX-License-Identifier: MIT
#include "Platform/PlatformServices.h"

#include "DeadMounts/DeadMountLimits.h"
#include "Platform/Linux/Desktop/DBusNotifications.h"
#include "Platform/Linux/Desktop/DBusRunningInstance.h"
#include "Platform/Linux/Desktop/DBusWorkspace.h"
#include "Platform/Linux/Desktop/DesktopColorSchemePreference.h"
#include "Platform/Linux/Desktop/DesktopHiddenFilesPreference.h"
#include "Platform/Linux/Desktop/DesktopMotionPreference.h"
#include "Platform/Linux/Desktop/LinuxStandardFolders.h"
#include "Platform/Linux/Desktop/LinuxWords.h"
#include "Platform/Linux/Desktop/UnityLauncherProgress.h"
#include "Platform/Linux/Desktop/XbelRecentDocuments.h"
#include "Platform/Linux/Files/LinuxItemChanges.h"
#include "Platform/Linux/Files/LinuxItemStates.h"
#include "Platform/Linux/Files/LinuxSharedExtents.h"
#include "Platform/Linux/Mounts/LinuxCoveredFolders.h"
#include "Platform/Linux/Mounts/LinuxFileAccess.h"
#include "Platform/Linux/Mounts/LinuxFileSystemAttributes.h"
#include "Platform/Linux/Mounts/LinuxMountedVolumes.h"
#include "Platform/Linux/Mounts/LinuxResourceValues.h"
#include "Platform/Linux/Preview/ChildRasterDecoder.h"
#include "Platform/Linux/Preview/LinuxFileReader.h"
#include "Platform/Linux/Process/AvailableMemory.h"
#include "Platform/Linux/Process/ChildProcessTask.h"
#include "Platform/Linux/Process/ExecutableFolder.h"
#include "Platform/Linux/Process/HelpFolder.h"
#include "Platform/Linux/Process/LinuxOpenFiles.h"
#include "Platform/Linux/Process/LinuxUserAccount.h"
#include "Platform/Linux/Process/PreviewerPath.h"
#include "Platform/Linux/Process/SignalEndRequests.h"
#include "Platform/Linux/Programs/GioPrograms.h"
#include "Platform/Linux/Programs/LinuxOtherPrograms.h"
#include "Platform/Linux/Trash/DiskTrashHistory.h"
#include "Platform/Linux/Trash/TrashJournal.h"
#include "Platform/Linux/Walk/HeapMemory.h"
#include "Platform/Linux/Walk/LinuxFileManager.h"
#include "Platform/Qt/SettingsUserDefaults.h"

#include <QCoreApplication>
#include <QDBusConnection>

#include <unistd.h>

#include <cstdlib>
#include <ctime>

namespace tessera {

namespace {

constexpr double kNanosecondsPerSecond = 1e9;

/// The kernel's tick, a few milliseconds long: the scanner asks for every item, and a tenth of a
/// second is all that it has to tell.
double coarseSeconds()
{
    timespec now{};
    ::clock_gettime(CLOCK_MONOTONIC_COARSE, &now);
    return static_cast<double>(now.tv_sec)
        + static_cast<double>(now.tv_nsec) / kNanosecondsPerSecond;
}

bool isSet(const char* variable)
{
    const char* value = std::getenv(variable); // NOLINT(concurrency-mt-unsafe): before any thread
    return value != nullptr && *value != '\0';
}

/// Workers wait longer for a file system than the main thread.
void askFileSystems(PlatformServices& services)
{
    const auto patient = std::make_shared<const FileSystemQuestions>(kWorkerPatience);
    const auto limited = std::make_shared<const FileSystemQuestions>(kMainThreadPatience);
    services.fileManager = std::make_unique<LinuxFileManager>();
    services.resourceValues = std::make_shared<const LinuxResourceValues>(patient);
    services.fileSystemAttributes = std::make_shared<const LinuxFileSystemAttributes>(patient);
    services.fileAccess = std::make_unique<LinuxFileAccess>();
    services.withTimeLimit
        = {.resourceValues = std::make_unique<LinuxResourceValues>(limited),
           .fileSystemAttributes = std::make_unique<LinuxFileSystemAttributes>(limited),
           .fileAccess = std::make_unique<LinuxFileAccess>(limited)};
    services.mountedVolumes = std::make_unique<LinuxMountedVolumes>(limited);
    services.coveredFolders = std::make_shared<const LinuxCoveredFolders>();
    services.openFiles = std::make_shared<const LinuxOpenFiles>();
    services.itemStates = std::make_shared<const LinuxItemStates>();
    services.itemChanges = std::make_shared<const LinuxItemChanges>();
    services.sharedExtents = std::make_shared<const LinuxSharedExtents>();
    services.recentDocuments = std::make_unique<XbelRecentDocuments>(
        XbelRecentDocuments::defaultFilePath(), *services.userDefaults, limited);
}

void joinDesktop(PlatformServices& services, const QDBusConnection& bus)
{
    services.standardFolders = std::make_unique<LinuxStandardFolders>();
    services.colorSchemePreference = std::make_unique<DesktopColorSchemePreference>(bus);
    services.motionPreference = std::make_unique<DesktopMotionPreference>();
    services.hiddenFilesPreference
        = std::make_unique<DesktopHiddenFilesPreference>(DesktopHiddenFilesPreference::Sources{
            .kdeFile = DesktopMotionPreference::defaultKdeFile(),
            .isKde = qgetenv("XDG_CURRENT_DESKTOP").split(':').contains("KDE")});
    services.launcherProgress = std::make_unique<UnityLauncherProgress>(bus);
    services.notifications = std::make_unique<DBusNotifications>(bus);
    services.runningInstance = std::make_unique<DBusRunningInstance>(bus);
    services.helpFolder = findHelpFolder(executableFolder());
    services.words = std::make_unique<LinuxWords>();
    QCoreApplication::installTranslator(services.words.get());
}

/// What moves items to the trash, and what tells of it later.
void keepHistory(PlatformServices& services, const QDBusConnection& bus, Session session)
{
    const auto questions = std::make_shared<const FileSystemQuestions>(kWorkerPatience);
    const auto journal
        = std::make_shared<TrashJournal>(TrashJournal::defaultStateHome(), questions);
    services.workspace = std::make_unique<DBusWorkspace>(bus, *services.mainThread, journal);
    auto history = std::make_unique<DiskTrashHistory>(journal, questions, *services.mainThread);
    if (session == Session::TakePart) {
        history->shortenJournal();
    }
    services.trashHistory = std::move(history);
}

void startPrograms(PlatformServices& services, const QDBusConnection& bus)
{
    services.otherPrograms = std::make_unique<LinuxOtherPrograms>(
        bus,
        *services.mainThread,
        terminalCommands(qgetenv("XDG_CURRENT_DESKTOP").toStdString()),
        kItemPatience);
    services.libraries = {{"GLib", gio_programs::libraryVersion()}};
    services.makeTask = [] { return std::make_unique<ChildProcessTask>(); };
    services.archiver = executableFolder() + "/tessera-ditto";
    services.fileReader = std::make_shared<LinuxFileReader>();
    services.rasterDecoder
        = std::make_shared<ChildRasterDecoder>(findPreviewer(executableFolder()));
}

} // namespace

bool PlatformServices::hasDisplay()
{
    // A Qt platform that the user asked for may need neither.
    return isSet("DISPLAY") || isSet("WAYLAND_DISPLAY") || isSet("QT_QPA_PLATFORM");
}

bool PlatformServices::hasTerminal()
{
    return ::isatty(STDERR_FILENO) == 1;
}

PlatformServices makePlatformServices(Session session)
{
    returnLargeBlocksAtOnce();
    PlatformServices services;
    services.mainThread = std::make_unique<QtMainThread>();
    services.userDefaults
        = std::make_unique<SettingsUserDefaults>(SettingsUserDefaults::defaultFilePath());
    askFileSystems(services);
    const QDBusConnection bus
        = session == Session::TakePart ? QDBusConnection::sessionBus() : QDBusConnection(QString());
    joinDesktop(services, bus);
    keepHistory(services, bus, session);
    startPrograms(services, bus);
    services.userAccount = std::make_unique<LinuxUserAccount>();
    services.endRequests = std::make_unique<SignalEndRequests>();
    services.clock = coarseSeconds;
    services.availableMemory = availableMemory();
    return services;
}

} // namespace tessera
