// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace tessera {
class MainWindowController;
class RootModel;
class TopFolder;
} // namespace tessera

namespace tessera::test {

/// What must hold whenever the program waits for its user: one screen is shown, the tree adds up,
/// and all that points into the tree points to what is there. Returns the first thing that is
/// wrong; empty when all is well.
std::string problemOf(MainWindowController& controller, const RootModel& model);

/// Whether a folder of the tree is just being scanned anew.
bool isRescanning(const TopFolder& top);

} // namespace tessera::test
