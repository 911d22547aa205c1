// SPDX-License-Identifier: MIT
#pragma once

#include "EndToEnd/Desk/ScreenReader.h"
#include "EndToEnd/Desk/WindowManager.h"
#include "EndToEnd/Desk/XDesk.h"
#include "EndToEnd/Desk/XServer.h"
#include "FolderGate.h"
#include "support/Machine/ChildProcess.h"
#include "support/Machine/OwnMounts.h"
#include "support/Machine/TempTree.h"

#include <memory>
#include <string>
#include <vector>

namespace tessera::test {

/// What a user has who has just logged in: a screen with a window manager, a session bus and an
/// account whose home folder is empty. The account is the one that runs the tests, but has another
/// name and home; without that the super-user would be offered no locations, and everybody else
/// their own.
class UserSession {
public:
    /// Throws std::runtime_error when something does not start.
    UserSession();

    /// Whether this process may change how the account looks.
    static bool isPossible() { return OwnMounts::enter(); }

    /// "home" and the XDG folders; a path of the account's begins at pathOf("home").
    const TempTree& folders() const { return m_folders; }
    XDesk& desk() { return *m_desk; }
    ScreenReader& reader() { return *m_reader; }

    /// Starts the program in the session.
    std::unique_ptr<ChildProcess> start(const std::vector<std::string>& arguments);
    /// Likewise, with the gate before the folders that it reads.
    std::unique_ptr<ChildProcess> start(FolderGate& gate);
    /// What the programs started here have written to their standard error.
    std::string log() const;

    /// Sets a variable of the environment of the programs that are started from now on.
    void setVariable(const std::string& name, const std::string& value);

private:
    void nameUser();
    std::string startBus();
    ChildProcessSetup setup(const std::vector<std::string>& arguments);

    /// In memory, where files have their final sizes at once.
    TempTree m_folders{TempTree::fastParent()};
    OwnMounts m_mounts;
    XServer m_server;
    std::unique_ptr<XDesk> m_desk;
    std::unique_ptr<WindowManager> m_windowManager;
    std::unique_ptr<ChildProcess> m_bus;
    std::unique_ptr<ScreenReader> m_reader;
    std::vector<std::string> m_environment;
    int m_programs = 0;
};

} // namespace tessera::test
