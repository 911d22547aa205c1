// SPDX-License-Identifier: MIT
#pragma once

#include "DrivenTreeScreen.h"
#include "EndToEnd/Desk/XDesk.h"
#include "EndToEnd/Desk/XServer.h"
#include "support/Machine/ChildProcess.h"
#include "support/Machine/TempTree.h"

#include <QPoint>
#include <QRect>

#include <optional>
#include <string>
#include <vector>

namespace tessera::test {

/// The program itself, started on a folder in a session of its own: an X server, a home folder and
/// no session bus, so that nothing of the user's takes part and programs do not meet each other.
class DrivenProgram {
public:
    /// `installed` is the path of the program; without one it is that of the build. `path` is where
    /// it finds other programs, before the places of the environment.
    explicit DrivenProgram(
        const std::string& folder, const std::string& installed = {}, const std::string& path = {});

    XDesk& desk() { return m_desk; }
    ChildProcess& process() { return m_process; }
    /// What it has written to its standard error so far.
    std::string log() const;
    /// The XDG data folder that it was given.
    std::string dataFolder() const { return m_session.pathOf("data"); }

    /// The topmost window of the kind; nothing when there is none.
    std::optional<XWindow> window(XWindow::Kind kind) const { return m_desk.window(kind); }

    std::optional<QRect> map() const { return mapOn(m_desk); }
    std::vector<QPoint> pathIcons() const { return pathIconsOn(m_desk); }

private:
    TempTree m_session;
    XServer m_server;
    XDesk m_desk;
    ChildProcess m_process;
};

} // namespace tessera::test
