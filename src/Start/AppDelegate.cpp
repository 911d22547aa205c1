// SPDX-License-Identifier: MIT
#include "Start/AppDelegate.h"

#include "Desktop/Alert.h"
#include "Desktop/UserAccount.h"
#include "Desktop/Workspace.h"
#include "HistoryWindow/HistoryWindowController.h"
#include "MainWindow/FolderDrop.h"
#include "MainWindow/MainWindowController.h"
#include "Model/Defaults.h"
#include "Model/RootModel.h"
#include "Preferences/PreferencesWindowController.h"
#include "Undo/DiskChanges.h"
#include "Undo/TrashUndo.h"

#include <QApplication>
#include <QMainWindow>
#include <QPointer>
#include <QThread>

#include <utility>

namespace tessera {

namespace {

constexpr int kWaitMilliseconds = 250;

/// Whether somebody waits for the user's answer further down on the stack, in an event loop of its
/// own. What waits may use the screen that another scan would take away.
bool isInNestedEventLoop()
{
    return QThread::currentThread()->loopLevel() > 1;
}

void bringToFront(QWidget& window)
{
    window.setWindowState(window.windowState() & ~Qt::WindowMinimized);
    window.show();
    window.raise();
    window.activateWindow();
}

} // namespace

AppDelegate::AppDelegate(AppDelegateServices services)
    : m_services(std::move(services))
{
    m_wait.setInterval(kWaitMilliseconds);
    m_wait.callOnTimeout(this, &AppDelegate::openWaiting);
}

AppDelegate::~AppDelegate() = default;

void AppDelegate::start()
{
    // Which end of which window ends the program is decided here, and not by how many there are.
    QApplication::setQuitOnLastWindowClosed(false);
    RootModel& model = m_services.mainWindow.model;
    if (realUserName(m_services.userAccount) == "root") {
        model.setIsRunningAsRoot(true);
    }
    registerDefaults(m_services.mainWindow.defaults);
    m_mainWindow = std::make_unique<MainWindowController>(m_services.mainWindow);
    MainWindowController& mainWindow = *m_mainWindow;
    connect(
        &mainWindow,
        &MainWindowController::preferencesRequested,
        this,
        &AppDelegate::showPreferences);
    connect(&mainWindow, &MainWindowController::historyRequested, this, &AppDelegate::showHistory);
    connect(&mainWindow, &MainWindowController::helpRequested, this, &AppDelegate::showHelp);
    connect(&mainWindow, &MainWindowController::aboutRequested, this, &AppDelegate::showAbout);
    mainWindow.setMayClose([this] { return mayCloseMainWindow(); });
    // Not from within the handling of its close event, and whatever other windows there are.
    connect(
        &mainWindow,
        &MainWindowController::closed,
        this,
        &AppDelegate::mainWindowClosed,
        Qt::QueuedConnection);
    connect(
        &m_services.mainWindow.treeScreen.diskChanges,
        &DiskChanges::itemCompressed,
        this,
        &AppDelegate::quitIfFinished);
    m_folderDrop = std::make_unique<FolderDrop>(
        mainWindow.window(), m_services.mainWindow.treeScreen.resourceValues);
    connect(m_folderDrop.get(), &FolderDrop::dropped, this, &AppDelegate::openFile);
    mainWindow.showWindow();
}

void AppDelegate::openFile(const Url& folder)
{
    if (m_mainWindow != nullptr) {
        m_waiting = folder;
        if (!m_wait.isActive()) {
            m_wait.start();
            openWaiting();
        }
    }
}

void AppDelegate::openWaiting()
{
    if (isInNestedEventLoop()) {
        return;
    }
    if (m_waiting.empty()) {
        m_wait.stop();
    } else {
        m_mainWindow->scanUrl(std::exchange(m_waiting, {}));
    }
}

void AppDelegate::openFromElsewhere(const Url& folder, const std::string& activationToken)
{
    if (m_mainWindow == nullptr) {
        return;
    }
    m_isFinishing = false;
    if (m_services.adoptActivationToken && !activationToken.empty()) {
        m_services.adoptActivationToken(activationToken);
    }
    bringToFront(m_mainWindow->window());
    if (!folder.empty()) {
        openFile(folder);
    }
}

bool AppDelegate::isCompressing() const
{
    return !m_services.mainWindow.treeScreen.compressing.targetsInUse.empty();
}

bool AppDelegate::mayCloseMainWindow()
{
    if (!isCompressing()) {
        return true;
    }
    const int answer = m_services.mainWindow.treeScreen.alert.runModal(
        {tr("An archive is still being made"),
         tr("Tessera can finish it in the background, in a window of its own, and quit then. If it "
            "is stopped, the incomplete archive goes to the trash."),
         {tr("Finish in Background"), tr("Stop and Quit"), tr("Cancel")}});
    m_isFinishing = answer == Alert::kFirstButton;
    return m_isFinishing || answer == Alert::kFirstButton + 1;
}

bool AppDelegate::mayEndSession()
{
    const int answer = m_services.mainWindow.treeScreen.alert.runModal(
        {tr("An archive is still being made"),
         tr("If the session ends now it is stopped, and the incomplete archive goes to the trash."),
         {tr("End Session"), tr("Cancel")}});
    return answer == Alert::kFirstButton;
}

void AppDelegate::mainWindowClosed()
{
    // Another start may have brought the window back before its end was heard of.
    if (m_mainWindow->window().isVisible()) {
        return;
    }
    m_historyWindow.reset();
    m_aboutWindow.reset();
    if (m_isFinishing) {
        quitIfFinished();
    } else {
        QApplication::quit();
    }
}

void AppDelegate::quitIfFinished() const
{
    if (m_isFinishing && !isCompressing()) {
        QMetaObject::invokeMethod(qApp, "quit", Qt::QueuedConnection);
    }
}

void AppDelegate::showPreferences()
{
    m_prefWindow = std::make_unique<PreferencesWindowController>(m_services.mainWindow.defaults);
    m_prefWindow->showWindow(m_mainWindow == nullptr ? nullptr : &m_mainWindow->window());
}

void AppDelegate::showHistory()
{
    if (m_historyWindow == nullptr) {
        const TreeViewServices& shared = m_services.mainWindow.treeScreen;
        m_historyWindow = std::make_unique<HistoryWindowController>(HistoryWindowServices{
            .history = m_services.trashHistory,
            .workspace = shared.workspace,
            .alert = shared.alert,
            .defaults = m_services.mainWindow.defaults,
            .homeDirectory = realHomeDirectory(m_services.userAccount)});
        observeHistory();
    }
    m_historyWindow->showWindow();
}

void AppDelegate::observeHistory()
{
    TrashUndo& undo = m_services.mainWindow.treeScreen.trashUndo;
    HistoryWindowController* const history = m_historyWindow.get();
    connect(
        history, &HistoryWindowController::putBackRequested, &undo, [&undo](const auto& record) {
            undo.putBack({{record.item, record.bytes}});
        });
    connect(&undo, &TrashUndo::moved, history, &HistoryWindowController::refresh);
    connect(&undo, &TrashUndo::wasPutBack, history, &HistoryWindowController::refresh);
    const auto showWaiting = [&undo, history] { history->setComingBack(undo.comingBack()); };
    connect(&undo, &TrashUndo::changed, history, showWaiting);
    showWaiting();
}

void AppDelegate::showHelp(HelpPage page)
{
    Workspace& workspace = m_services.mainWindow.treeScreen.workspace;
    workspace.openUrl(
        m_services.helpAddress(page), [self = QPointer<AppDelegate>(this)](bool isOpened) {
            if (self != nullptr && !isOpened) {
                self->sayThatThereIsNoHelp();
            }
        });
}

void AppDelegate::showAbout()
{
    if (m_aboutWindow == nullptr) {
        m_aboutWindow = std::make_unique<AboutWindow>(m_services.about);
    }
    m_aboutWindow->showWindow(&m_mainWindow->window());
}

void AppDelegate::sayThatThereIsNoHelp()
{
    m_services.mainWindow.treeScreen.alert.beginSheet(
        {tr("The help cannot be shown"),
         tr("Either its pages are not installed or the desktop offers no web browser."),
         {tr("OK")}});
}

} // namespace tessera
