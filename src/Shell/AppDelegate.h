// SPDX-License-Identifier: MIT
#pragma once

#include "Model/Url.h"
#include "Shell/MainWindowServices.h"

#include <QObject>
#include <QTimer>

#include <cstdint>
#include <functional>
#include <memory>
#include <string>

namespace tessera {

class FolderDrop;
class MainWindowController;
class PreferencesWindowController;
class UserAccount;
class Workspace;

/// The pages of the program's help.
enum class HelpPage : std::uint8_t { Features, Questions };

/// What the application needs; whatever is referred to must outlive it.
struct AppDelegateServices {
    MainWindowServices mainWindow;
    const UserAccount& userAccount;
    /// The address of a help page; empty when it is not installed.
    std::function<std::string(HelpPage)> helpAddress;
};

/// The application as a whole: starts it, has one main window, opens preferences and help, and
/// takes folders that are to be opened with the program. Main thread only.
class AppDelegate final : public QObject {
public:
    explicit AppDelegate(AppDelegateServices services);
    ~AppDelegate() override;

    /// Null before the start.
    MainWindowController* mainWindow() const { return m_mainWindow.get(); }
    /// The preferences window that was opened last; null before the first.
    PreferencesWindowController* prefWindow() const { return m_prefWindow.get(); }

    /// Registers the defaults and opens the main window on the home screen.
    void applicationDidFinishLaunching();

    /// Scans a folder that is to be opened with the program. While the user has to answer a
    /// question or is in a menu, the scan waits for that. Always true; before there is a main
    /// window the folder is dropped.
    bool openFile(const std::string& path);

    /// Another start of the program asks for that folder, or with an empty URL for the window.
    void openFromElsewhere(const Url& folder);

    /// Opens a new preferences window in place of the previous one.
    void showPreferences();

    /// By the tag of the menu entry; other tags do nothing.
    void showHelpItem(int tag);

private:
    void openWaiting();

    const AppDelegateServices m_services;
    std::unique_ptr<MainWindowController> m_mainWindow;
    std::unique_ptr<FolderDrop> m_folderDrop;
    std::unique_ptr<PreferencesWindowController> m_prefWindow;
    Url m_waiting; ///< to be opened when the user is done
    QTimer m_wait;
};

} // namespace tessera
