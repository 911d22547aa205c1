// SPDX-License-Identifier: MIT
#pragma once

#include "Start/CommandLine.h"

#include <optional>

namespace tessera {

struct LaunchServices;

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
