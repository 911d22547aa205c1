// SPDX-License-Identifier: MIT
#pragma once

#include "HomeScreen/HomeViewServices.h"
#include "Model/RootModel.h"
#include "Scanning/ScanEnvironment.h"
#include "Start/CommandLine.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>

namespace tessera {

class ColorSchemePreference;
class EndRequests;
class FileAccess;
class FileReader;
class LauncherProgress;
class MotionPreference;
class RasterDecoder;
class RunningInstance;
class Task;
class UserAccount;
class Workspace;

/// What the program's screens need from the system. Everything must outlive the program's run.
struct LaunchServices {
    ScanEnvironment scanEnvironment;
    /// Asked by the main thread: they give up before anybody notices.
    const ResourceValues& promptResourceValues;
    const FileSystemAttributes& promptFileSystemAttributes;
    const FileAccess& promptFiles;
    RootModelServices rootModelServices;
    HomeViewServices homeScreen;
    const FileAccess& files; ///< waits as long as it takes
    ColorSchemePreference& colorScheme;
    const MotionPreference& motion;
    Workspace& workspace;
    std::shared_ptr<const FileReader> fileReader;
    std::shared_ptr<const RasterDecoder> rasterDecoder;
    std::function<std::unique_ptr<Task>()> makeTask;
    std::string archiver; ///< path of the program that makes archives; bytes
    const UserAccount& userAccount;
    LauncherProgress& launcherProgress;
    RunningInstance& runningInstance;
    EndRequests& endRequests;
    std::string helpFolder; ///< path of the folder with the help pages; empty when missing
    std::uint64_t availableMemory; ///< bytes
    bool hasTerminal; ///< somebody reads the standard error
    /// Takes what the desktop lets a window come to the front by.
    std::function<void(const std::string&)> adoptActivationToken = nullptr;
};

/// Prints the text that --help or --version asks for, and returns the exit status; nothing when the
/// command line asks for something else.
std::optional<int> printRequestedText(const CommandLine& commandLine);

/// Until the application object is there: whatever keeps Qt from making one, such as a display that
/// does not answer, ends the program with status 1 and one line that says so.
void endWhenQtFails();

/// Keeps Qt's advice to programmers out of what the user reads: only its failures are logged.
void logQtFailuresOnly();

/// Shows the window, lets the program that already runs show it, or writes the picture, and
/// returns the exit status: 0, or 1 when that could not be done, for a reason given in one line on
/// standard error. Needs an application object.
int launch(const CommandLine& commandLine, const LaunchServices& services);

} // namespace tessera
