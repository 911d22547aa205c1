// SPDX-License-Identifier: MIT
#pragma once

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
class MainWindowController;
class PreferencesWindowController;
class UserAccount;
class Workspace;

/// What the application needs; whatever is referred to must outlive it.
struct AppDelegateServices {
    MainWindowServices mainWindow;
    const UserAccount& userAccount;
    /// The address of a help page; empty when it is not installed.
    std::function<std::string(HelpPage)> helpAddress;
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

    /// Opens a new preferences window in place of the previous one.
    void showPreferences();

    /// Opens the page in the desktop's browser, or says that it cannot be shown.
    void showHelp(HelpPage page);

private:
    void openWaiting();
    void sayThatThereIsNoHelp();
    bool isCompressing() const;
    bool mayCloseMainWindow();
    void mainWindowClosed() const;
    void quitIfFinished() const;

    const AppDelegateServices m_services;
    std::unique_ptr<MainWindowController> m_mainWindow;
    std::unique_ptr<FolderDrop> m_folderDrop;
    std::unique_ptr<PreferencesWindowController> m_prefWindow;
    Url m_waiting; ///< to be opened as soon as may be; empty when nothing is
    QTimer m_wait; ///< runs from one opening until the next may follow
    bool m_isFinishing = false; ///< without its main window, until the last archive is made
};

} // namespace tessera
