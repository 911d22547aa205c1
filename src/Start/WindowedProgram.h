// SPDX-License-Identifier: MIT
#pragma once

#include "Start/SecondStart.h"

#include <memory>

namespace tessera {

class AppDelegate;
class ApplicationPalette;
class RootModel;
class SessionEnd;
struct LaunchServices;
struct MainWindowServices;

/// The program with its window, from its start to its end; the event loop is the caller's. There is
/// one in a process. Main thread only.
class WindowedProgram final {
public:
    /// Opens the window on the home screen, and opens what other starts of the program ask for.
    /// Needs an application object.
    explicit WindowedProgram(const LaunchServices& services);
    WindowedProgram(const WindowedProgram&) = delete;
    WindowedProgram& operator=(const WindowedProgram&) = delete;
    ~WindowedProgram();

    AppDelegate& delegate() const { return *m_delegate; }

private:
    struct Desktop;

    MainWindowServices mainWindowServices(const LaunchServices& services, RootModel& model) const;

    std::unique_ptr<ApplicationPalette> m_palette;
    std::unique_ptr<Desktop> m_desktop;
    std::unique_ptr<AppDelegate> m_delegate;
    std::unique_ptr<SessionEnd> m_sessionEnd;
    SecondStarts m_secondStarts; ///< given up before anything else here ends
};

} // namespace tessera
