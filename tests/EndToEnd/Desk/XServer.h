// SPDX-License-Identifier: MIT
#pragma once

#include "support/Machine/ChildProcess.h"
#include "support/Machine/TempTree.h"

#include <string>

namespace tessera::test {

/// An X server of the test's own, without a screen and without a window manager.
class XServer {
public:
    /// Throws std::runtime_error when it does not start.
    XServer();
    XServer(const XServer&) = delete;
    XServer& operator=(const XServer&) = delete;
    /// Has it take its socket and its lock away.
    ~XServer();

    /// What DISPLAY should be for its clients.
    const std::string& display() const { return m_display; }

private:
    TempTree m_output;
    ChildProcess m_process;
    std::string m_display;
};

} // namespace tessera::test
