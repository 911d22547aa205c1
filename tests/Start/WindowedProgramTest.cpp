// SPDX-License-Identifier: MIT
#include "Start/WindowedProgram.h"

#include "Desktop/ColorSchemePreference.h"
#include "Desktop/EndRequests.h"
#include "Desktop/FileAccess.h"
#include "Desktop/LauncherProgress.h"
#include "Desktop/RunningInstance.h"
#include "MainWindow/MainWindowController.h"
#include "Model/RootModel.h"
#include "QuickLook/QuickLookPanel.h"
#include "QuickLook/Reading/FileReader.h"
#include "QuickLook/Reading/RasterDecoder.h"
#include "Start/AppDelegate.h"
#include "Start/LaunchServices.h"
#include "support/BecomesActive.h"
#include "support/Fakes/FakeFreeingServices.h"
#include "support/Fakes/FakeLedgerServices.h"
#include "support/Fakes/FakeNotifications.h"
#include "support/Fakes/FakePlaces.h"
#include "support/Fakes/FakeRootModelServices.h"
#include "support/Fakes/FakeTrashHistory.h"
#include "support/Fakes/FakeTreeViewServices.h"

#include <QCoreApplication>
#include <QMainWindow>
#include <QPointer>
#include <QWidget>

#include <gtest/gtest.h>

#include <optional>

namespace tessera {
namespace {

/// Every folder can be read, and none can be written.
class ReadableFolders final : public FileAccess {
public:
    [[nodiscard]] std::error_code checkFolder(const std::string& /*path*/) const override
    {
        return {};
    }
    [[nodiscard]] std::error_code checkFolderWithoutLinks(
        const std::string& /*path*/) const override
    {
        return {};
    }
    [[nodiscard]] std::string absolutePath(const std::string& path) const override { return path; }
    [[nodiscard]] std::error_code writeFile(
        const std::string& /*path*/, std::string_view /*bytes*/) const override
    {
        return std::make_error_code(std::errc::permission_denied);
    }
};

class NoColorScheme final : public ColorSchemePreference {
public:
    [[nodiscard]] ColorScheme colorScheme() const override { return ColorScheme::NoPreference; }
    void setHandler(Handler /*handler*/) override { }
};

class NoLauncher final : public LauncherProgress {
public:
    void show(double /*fraction*/) override { }
    void hide() override { }
};

class NoEndRequests final : public EndRequests {
public:
    void setHandler(std::function<void()> /*handler*/) override { }
};

/// Remembers whether the window's place had been kept when this was given up first.
class WatchfulInstance final : public RunningInstance {
public:
    explicit WatchfulInstance(const test::FakeUserDefaults& defaults)
        : m_defaults(defaults)
    {
    }

    [[nodiscard]] bool handOver(const Url& /*folder*/) override { return false; }
    void setHandler(Handler /*handler*/) override { }
    void giveUp() override
    {
        if (!hadKeptThePlace) {
            hadKeptThePlace = m_defaults.texts.contains("MainWindowFrame");
        }
    }

    std::optional<bool> hadKeptThePlace; ///< nothing while it is not given up

private:
    const test::FakeUserDefaults& m_defaults;
};

struct FakeLaunchServices {
    test::FakeTreeViewServices treeScreen;
    test::FakeRootModelServices rootModel;
    test::FakeMountedVolumes volumes;
    test::FakeUserAccount account;
    test::FakeTrashHistory history;
    ReadableFolders files;
    NoColorScheme colorScheme;
    NoLauncher launcher;
    test::FakeNotifications notifications;
    NoEndRequests endRequests;
    WatchfulInstance runningInstance{rootModel.defaults};

    LaunchServices get()
    {
        const TreeViewServices tree = treeScreen.get();
        return {
            .scanEnvironment = tree.scanEnvironment,
            .resourceValues = tree.resourceValues,
            .fileSystemAttributes = tree.fileSystemAttributes,
            .filesWithTimeLimit = WithTimeLimit<FileAccess>(files),
            .rootModelServices = rootModel.get(),
            .homeScreen
            = {.volumes = volumes,
               .standardFolders = rootModel.folders,
               .account = account,
               .defaults = rootModel.defaults,
               .homeDirectory = "/home/me",
               .fileSystemAttributes
               = std::make_shared<test::FixedFileSystem>(FileSystemSizes{1000, 250}),
               .resourceValues = std::make_shared<test::FakeResourceValues>()},
            .files = files,
            .colorScheme = colorScheme,
            .motion = treeScreen.motion,
            .workspace = treeScreen.workspace,
            .otherPrograms = treeScreen.otherPrograms,
            .trashHistory = history,
            .fileReader = nullptr,
            .rasterDecoder = nullptr,
            .coveredFolders = std::make_shared<test::FakeCoveredFolders>(),
            .openFiles = std::make_shared<test::FakeOpenFiles>(),
            .sharedExtents = std::make_shared<test::FakeSharedExtents>(),
            .itemStates = std::make_shared<test::FakeItemStates>(),
            .itemChanges = std::make_shared<test::FakeItemChanges>(),
            .makeTask = [this] { return test::FakeTask::make(treeScreen.archiver); },
            .archiver = "/archiver",
            .userAccount = account,
            .launcherProgress = launcher,
            .notifications = notifications,
            .runningInstance = runningInstance,
            .endRequests = endRequests,
            .helpFolder = {},
            .libraries = {},
            .availableMemory = 1000,
            .hasTerminal = false};
    }
};

/// The program's one model keeps them for good.
FakeLaunchServices& launchServices()
{
    static FakeLaunchServices services;
    return services;
}

TEST(WindowedProgram, AtTheEndGivesTheNameBackBeforeAnythingElseIsDone)
{
    FakeLaunchServices& services = launchServices();
    services.rootModel.defaults.texts.erase("MainWindowFrame");
    services.runningInstance.hadKeptThePlace.reset();
    const WindowedProgram program(services.get());
    emit qApp->aboutToQuit({});
    EXPECT_EQ(services.runningInstance.hadKeptThePlace, false);
    EXPECT_TRUE(services.rootModel.defaults.texts.contains("MainWindowFrame"));
}

TEST(WindowedProgram, AClickOnANotificationBringsTheWindowBack)
{
    FakeLaunchServices& services = launchServices();
    const WindowedProgram program(services.get());
    QMainWindow& window = program.delegate().mainWindow()->window();
    window.showMinimized();
    services.notifications.clicked("");
    EXPECT_FALSE(window.isMinimized());
    EXPECT_TRUE(test::becomesActive(window));
}

TEST(WindowedProgram, TakesThePreviewPanelAlong)
{
    QPointer<QWidget> panel;
    {
        const WindowedProgram program(launchServices().get());
        panel = &QuickLookPanel::sharedInstance();
    }
    EXPECT_TRUE(panel.isNull());
}

} // namespace
} // namespace tessera
