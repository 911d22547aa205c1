// SPDX-License-Identifier: MIT
#pragma once

#include "XDesk.h"
#include "support/Machine/ChildProcess.h"
#include "support/Machine/TempTree.h"

#include <string>

namespace tessera::test {

/// A window manager of the test's own, with its own settings and none of the user's.
class WindowManager {
public:
    /// Throws std::runtime_error when it does not take over the windows of that display.
    WindowManager(const std::string& display, const XDesk& desk);

private:
    TempTree m_home;
    ChildProcess m_process;
};

} // namespace tessera::test
