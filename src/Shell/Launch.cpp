// SPDX-License-Identifier: MIT
#include "Shell/Launch.h"

#include "QuickLook/PreviewThreads.h"
#include "QuickLook/QuickLookPanel.h"
#include "Resources/Images.h"
#include "Scanning/ApplicationDockTile.h"
#include "Scanning/ScanningViewController.h"
#include "Shell/AppDelegate.h"
#include "Shell/ApplicationPalette.h"
#include "Shell/FileAccess.h"
#include "Shell/FileDialogOpenPanel.h"
#include "Shell/KnownPlaces.h"
#include "Shell/MainWindowController.h"
#include "Shell/MainWindowScreens.h"
#include "Shell/PictureWriter.h"
#include "Shell/RunningInstance.h"
#include "TreeView/DesktopIconProvider.h"
#include "TreeView/TooltipController.h"
#include "Utils/Log.h"
#include "Utils/MessageBoxAlert.h"
#include "Utils/Util.h"

#include <QApplication>
#include <QMainWindow>

#include <cstdio>
#include <set>
#include <string>

namespace tessera {

namespace {

constexpr int kDone = 0;
constexpr int kFailed = 1;

int fail(const std::string& reason)
{
    logLine("tessera: %s", reason.c_str());
    return kFailed;
}

int writePicture(const CommandLine& commandLine, const LaunchServices& services)
{
    const std::string problem
        = PictureWriter(services.scanEnvironment, services.files).write(commandLine);
    return problem.empty() ? kDone : fail(problem);
}

void setUpPreview(QWidget& mainWindow, const LaunchServices& services, IconProvider& icons)
{
    QuickLookPanel& panel = QuickLookPanel::sharedInstance();
    panel.setFileReader(services.fileReader, PreviewThreads::make());
    panel.setIconProvider(&icons);
    panel.setMainWindow(&mainWindow);
    panel.setMotionPreference(&services.motion);
}

std::string helpAddress(const std::string& folder, HelpPage page)
{
    const std::string name = page == HelpPage::Features ? "/features.html" : "/faq.html";
    return folder.empty() ? std::string() : Url(folder + name, false).absoluteString();
}

/// What the tree screen and the preview share with the rest and that must outlive the window.
struct Desktop {
    explicit Desktop(const LaunchServices& services)
        : dockTile(services.launcherProgress)
        , places(
              services.homeScreen.volumes,
              locationCandidates(
                  Util::realHomeDirectory(services.userAccount),
                  services.homeScreen.standardFolders))
    {
        TooltipController& tooltip = TooltipController::sharedInstance();
        tooltip.setResourceValues(&services.promptResourceValues);
        tooltip.setIconProvider(&icons);
    }
    Desktop(const Desktop&) = delete;
    Desktop& operator=(const Desktop&) = delete;
    ~Desktop()
    {
        TooltipController::sharedInstance().setIconProvider(nullptr);
        QuickLookPanel::sharedInstance().setIconProvider(nullptr);
    }

    DesktopIconProvider icons;
    std::set<std::string> targetsInUse;
    ApplicationDockTile dockTile;
    MessageBoxAlert alert;
    FileDialogOpenPanel openPanel;
    KnownPlaces places;
};

MainWindowServices mainWindowServices(
    const LaunchServices& services, RootModel& model, Desktop& desktop)
{
    const TreeViewServices treeScreen{
        services.scanEnvironment,
        services.promptResourceValues,
        services.promptFileSystemAttributes,
        services.rootModelServices.defaults,
        services.workspace,
        desktop.alert,
        {services.archiver,
         services.makeTask,
         services.workspace,
         services.promptResourceValues,
         desktop.icons,
         desktop.targetsInUse},
        services.motion};
    const ScanningServices scanScreen{
        services.scanEnvironment,
        desktop.dockTile,
        desktop.alert,
        [&desktop](const Url& folder) { return desktop.places.look(folder); },
        [&files = services.promptFiles](const std::string& path) {
            return files.checkFolder(path);
        }};
    return {
        model,
        treeScreen,
        services.rootModelServices.defaults,
        desktop.openPanel,
        services.homeScreen.volumes,
        [&model, homeScreen = services.homeScreen](const std::function<void()>& openFolder) {
            return makeHomeScreen(model, homeScreen, openFolder);
        },
        [&model, scanScreen] { return makeScanScreen(model, scanScreen); }};
}

int showWindow(const Url& folder, const LaunchServices& services)
{
    QGuiApplication::setDesktopFileName(QStringLiteral("tessera"));
    QGuiApplication::setWindowIcon(imageNamed("bullseye"));
    const ApplicationPalette palette(services.colorScheme);
    RootModel::setServices(services.rootModelServices);
    Desktop desktop(services);
    AppDelegate delegate(
        {mainWindowServices(services, RootModel::sharedInstance(), desktop),
         services.userAccount,
         [helpFolder = services.helpFolder](HelpPage page) {
             return helpAddress(helpFolder, page);
         }});
    delegate.applicationDidFinishLaunching();
    QMainWindow& window = delegate.mainWindow()->window();
    desktop.alert.setMainWindow(&window);
    setUpPreview(window, services, desktop.icons);
    services.runningInstance.setHandler(
        [&delegate](const Url& later) { delegate.openFromElsewhere(later); });
    if (!folder.empty()) {
        delegate.openFile(folder.path());
    }
    const int status = QApplication::exec();
    services.runningInstance.setHandler([](const Url&) {});
    return status;
}

int openWindow(const std::string& folder, const LaunchServices& services)
{
    Url url;
    if (!folder.empty()) {
        const std::string path = services.promptFiles.absolutePath(folder);
        const std::error_code error = services.promptFiles.checkFolder(path);
        // A scan of what does not answer now can be watched, and broken off.
        if (error && error != std::errc::timed_out) {
            return fail("cannot read the folder '" + folder + "': " + error.message());
        }
        url = Url(path, true);
    }
    return services.runningInstance.handOver(url) ? kDone : showWindow(url, services);
}

} // namespace

bool printRequestedText(const CommandLine& commandLine)
{
    if (commandLine.action == CommandLine::Action::PrintHelp) {
        (void)std::fputs(commandLineHelp().c_str(), stdout);
        return true;
    }
    if (commandLine.action == CommandLine::Action::PrintVersion) {
        (void)std::fputs("tessera " TESSERA_VERSION "\n", stdout);
        return true;
    }
    return false;
}

void logQtFailuresOnly()
{
    qInstallMessageHandler([](QtMsgType type, const QMessageLogContext&, const QString& text) {
        if (type == QtCriticalMsg || type == QtFatalMsg) {
            logLine("%s", text.toUtf8().constData());
        }
    });
}

int launch(const CommandLine& commandLine, const LaunchServices& services)
{
    if (commandLine.action == CommandLine::Action::WritePicture) {
        return writePicture(commandLine, services);
    }
    return openWindow(commandLine.folder, services);
}

} // namespace tessera
