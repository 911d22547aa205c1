// SPDX-License-Identifier: MIT
#include "Start/WindowedProgram.h"

#include "Basket/BasketKeeper.h"
#include "DeadMounts/QuestionThreads.h"
#include "Desktop/EndRequests.h"
#include "Desktop/FileAccess.h"
#include "Desktop/UserAccount.h"
#include "HomeScreen/Places/KnownPlaces.h"
#include "MainWindow/MainWindowController.h"
#include "MainWindow/MainWindowScreens.h"
#include "Notices/EndNotices.h"
#include "QuickLook/QuickLookPanel.h"
#include "QuickLook/QuickLookServices.h"
#include "ScanScreen/ApplicationDockTile.h"
#include "ScanScreen/ScanningViewController.h"
#include "Start/AppDelegate.h"
#include "Start/LaunchServices.h"
#include "Start/SessionEnd.h"
#include "TreeScreen/Tooltip/TooltipController.h"
#include "Undo/DiskChanges.h"
#include "Undo/TrashUndo.h"
#include "Widgets/ApplicationPalette.h"
#include "Widgets/DesktopIconProvider.h"
#include "Widgets/FileDialogOpenPanel.h"
#include "Widgets/Images.h"
#include "Widgets/MessageBoxAlert.h"

#include <QGuiApplication>
#include <QMainWindow>

#include <set>
#include <string>

namespace tessera {

namespace {

void setUpPreview(QWidget& mainWindow, const LaunchServices& services, IconProvider& icons)
{
    QuickLookPanel::makeSharedInstance(
        {.files = services.fileReader,
         .decoder = services.rasterDecoder,
         .threads = QuestionThreads::make(),
         .icons = &icons,
         .motion = &services.motion,
         .mainWindow = &mainWindow});
}

std::string helpAddress(const std::string& folder, HelpPage page)
{
    const std::string name = page == HelpPage::Features ? "/features.html" : "/faq.html";
    return folder.empty() ? std::string() : Url(folder + name, false).absoluteString();
}

} // namespace

/// What the tree screen and the preview share with the rest and that must outlive the window.
struct WindowedProgram::Desktop {
    explicit Desktop(const LaunchServices& services)
        : dockTile(services.launcherProgress)
        , notices(services.notifications, services.scanEnvironment.clock)
        , openPanel(services.hiddenFiles)
        , places(
              services.homeScreen.volumes,
              locationCandidates(
                  realHomeDirectory(services.userAccount), services.homeScreen.standardFolders))
        , trashUndo(services.workspace, alert, diskChanges)
        , basket(services.itemStates, services.scanEnvironment.mainThread)
    {
        basket.listenTo(trashUndo, diskChanges);
        TooltipController& tooltip = TooltipController::sharedInstance();
        tooltip.setResourceValues(&*services.resourceValues);
        tooltip.setIconProvider(&icons);
    }
    Desktop(const Desktop&) = delete;
    Desktop& operator=(const Desktop&) = delete;
    ~Desktop()
    {
        TooltipController::sharedInstance().setIconProvider(nullptr);
        QuickLookPanel::releaseSharedInstance();
    }

    TreeViewServices treeScreen(const LaunchServices& services)
    {
        return {
            .scanEnvironment = services.scanEnvironment,
            .resourceValues = services.resourceValues,
            .fileSystemAttributes = services.fileSystemAttributes,
            .defaults = services.rootModelServices.defaults,
            .workspace = services.workspace,
            .otherPrograms = services.otherPrograms,
            .alert = alert,
            .compressing
            = {.archiver = services.archiver,
               .makeTask = services.makeTask,
               .workspace = services.workspace,
               .resourceValues = services.resourceValues,
               .icons = icons,
               .targetsInUse = targetsInUse,
               .alert = alert,
               .itemChanges = services.itemChanges,
               .itemStates = services.itemStates,
               .notices = &notices},
            .motion = services.motion,
            .diskChanges = diskChanges,
            .trashUndo = trashUndo,
            .basket = basket,
            .userNumber = services.userAccount.userNumber(),
            .checkFolder = [files = services.filesWithTimeLimit](const std::string& path) {
                return files->checkFolderWithoutLinks(path);
            }};
    }

    ScanningServices scanScreen(const LaunchServices& services)
    {
        return {
            .scanEnvironment = services.scanEnvironment,
            .dockTile = dockTile,
            .alert = alert,
            .look = [this](const Url& folder) { return places.look(folder); },
            .checkFolder = [files = services.filesWithTimeLimit](
                               const std::string& path) { return files->checkFolder(path); },
            .notices = &notices};
    }

    DesktopIconProvider icons;
    std::set<std::string> targetsInUse;
    DiskChanges diskChanges;
    ApplicationDockTile dockTile;
    EndNotices notices;
    MessageBoxAlert alert;
    FileDialogOpenPanel openPanel;
    KnownPlaces places;
    TrashUndo trashUndo;
    BasketKeeper basket;
};

WindowedProgram::WindowedProgram(const LaunchServices& services)
    : m_secondStarts(services.runningInstance)
{
    QGuiApplication::setApplicationDisplayName(QStringLiteral("Tessera"));
    QGuiApplication::setDesktopFileName(QStringLiteral("tessera"));
    QGuiApplication::setWindowIcon(imageNamed("bullseye"));
    m_palette = std::make_unique<ApplicationPalette>(services.colorScheme);
    RootModel::setServices(services.rootModelServices);
    m_desktop = std::make_unique<Desktop>(services);
    const auto addressOfPage = [helpFolder = services.helpFolder](HelpPage page) {
        return helpAddress(helpFolder, page);
    };
    m_delegate = std::make_unique<AppDelegate>(AppDelegateServices{
        .mainWindow = mainWindowServices(services, RootModel::sharedInstance()),
        .userAccount = services.userAccount,
        .trashHistory = services.trashHistory,
        .helpAddress = addressOfPage,
        .about
        = {.libraries = services.libraries,
           .makeTask = services.makeTask,
           .archiver = services.archiver},
        .adoptActivationToken = services.adoptActivationToken});
    m_desktop->notices.setHandler([delegate = m_delegate.get()](const std::string& token) {
        delegate->openFromElsewhere({}, token);
    });
    m_delegate->start();
    m_sessionEnd = std::make_unique<SessionEnd>(*m_delegate);
    QMainWindow& window = m_delegate->mainWindow()->window();
    m_desktop->alert.setMainWindow(&window);
    setUpPreview(window, services, m_desktop->icons);
    m_secondStarts.openIn(*m_delegate);
    // Whoever sends these waits for no answer to a question, as quit() would ask.
    services.endRequests.setHandler([] { QCoreApplication::exit(); });
}

WindowedProgram::~WindowedProgram() = default;

MainWindowServices WindowedProgram::mainWindowServices(
    const LaunchServices& services, RootModel& model) const
{
    return {
        .model = model,
        .treeScreen = m_desktop->treeScreen(services),
        .defaults = services.rootModelServices.defaults,
        .openPanel = m_desktop->openPanel,
        .volumes = services.homeScreen.volumes,
        .ledger
        = {.fileSystemAttributes = services.homeScreen.fileSystemAttributes,
           .openFiles = services.openFiles,
           .coveredFolders = services.coveredFolders},
        .freeing
        = {.itemStates = services.itemStates,
           .sharedExtents = services.sharedExtents,
           .openFiles = services.openFiles,
           .thisProcess = QCoreApplication::applicationPid()},
        .makeHomeScreen
        = [&model, homeScreen = services.homeScreen] { return makeHomeScreen(model, homeScreen); },
        .makeScanScreen =
            [&model, scanScreen = m_desktop->scanScreen(services)] {
                return makeScanScreen(model, scanScreen);
            }};
}

} // namespace tessera
