// SPDX-License-Identifier: MIT
#pragma once

#include "About/AboutWindow.h"
#include "Base/Url.h"
#include "MainWindow/HelpPage.h"
#include "MainWindow/MainWindowServices.h"

#include <QObject>
#include <QTimer>

#include <functional>
#include <memory>
#include <string>

namespace tessera {

class FolderDrop;
class HistoryWindowController;
class MainWindowController;
class PreferencesWindowController;
class TrashHistory;
class UserAccount;
class Workspace;

/// What the application needs; whatever is referred to must outlive it.
struct AppDelegateServices {
    MainWindowServices mainWindow;
    const UserAccount& userAccount;
    TrashHistory& trashHistory;
    /// The address of a help page; empty when it is not installed.
    std::function<std::string(HelpPage)> helpAddress;
    AboutServices about = {};
    /// Takes what the desktop lets a window come to the front by; may be empty.
    std::function<void(const std::string&)> adoptActivationToken = nullptr;
};

/// The application as a whole: starts it, has one main window, opens preferences and help, and
/// takes folders that are to be opened with the program. It quits when that window is closed; while
/// archives are being made the user is asked whether to finish them first. Main thread only.
class AppDelegate final : public QObject {
    Q_OBJECT

public:
    explicit AppDelegate(AppDelegateServices services);
    ~AppDelegate() override;

    /// Null before the start.
    MainWindowController* mainWindow() const { return m_mainWindow.get(); }
    /// The preferences window that was opened last; null before the first.
    PreferencesWindowController* prefWindow() const { return m_prefWindow.get(); }
    /// The window of the moves to the trash, shown or not; null before it was first opened, and
    /// once the main window is closed.
    HistoryWindowController* historyWindow() const { return m_historyWindow.get(); }
    /// Likewise.
    AboutWindow* aboutWindow() const { return m_aboutWindow.get(); }

    /// Registers the defaults and opens the main window on the home screen.
    void start();

    /// Scans a folder that is to be opened with the program. While the user has to answer a
    /// question the scan waits for that, and it waits a moment when another one was just started:
    /// whatever calls how often, the window stays usable. Of what waits the last one is scanned.
    /// Before there is a main window the folder is dropped.
    void openFile(const Url& folder);

    /// Whether a folder that is opened now has to wait.
    bool isPausing() const { return m_wait.isActive(); }

    /// Another start of the program asks for that folder, or with an empty URL for the window,
    /// which may come to the front by that token of the desktop's.
    void openFromElsewhere(const Url& folder, const std::string& activationToken = {});

    /// Whether an archive is being made.
    bool isCompressing() const;

    /// Asks the user whether the session may end although archives are being made.
    [[nodiscard]] bool mayEndSession();

    /// Opens a new preferences window in place of the previous one.
    void showPreferences();

    /// Opens the window of the moves to the trash, or brings it to the front.
    void showHistory();

    /// Opens the page in the desktop's browser, or says that it cannot be shown.
    void showHelp(HelpPage page);

    /// Opens the window that says what this program is, or brings it to the front.
    void showAbout();

private:
    void openWaiting();
    void observeHistory();
    void sayThatThereIsNoHelp();
    bool mayCloseMainWindow();
    void mainWindowClosed();
    void quitIfFinished() const;

    const AppDelegateServices m_services;
    std::unique_ptr<MainWindowController> m_mainWindow;
    std::unique_ptr<FolderDrop> m_folderDrop;
    std::unique_ptr<PreferencesWindowController> m_prefWindow;
    std::unique_ptr<HistoryWindowController> m_historyWindow;
    std::unique_ptr<AboutWindow> m_aboutWindow;
    Url m_waiting; ///< to be opened as soon as may be; empty when nothing is
    QTimer m_wait; ///< runs from one opening until the next may follow
    bool m_isFinishing = false; ///< without its main window, until the last archive is made
};

} // namespace tessera
