// SPDX-License-Identifier: MIT
#pragma once

#include "Commands/Command.h"

namespace tessera {

class File;

/// What the main window shows, as far as it decides what can be done now.
struct CommandContext {
    bool hasHomeScreen = false;
    bool hasTreeScreen = false;
    bool isRootInView = true; ///< of the scanned tree; counts with a tree screen alone
    const File* selectedFile = nullptr; ///< the tree screen's
    bool canRescan = false; ///< says the tree screen; counts for Rescan alone
};

/// Whether the command can be performed. All menus and all keys go by this.
[[nodiscard]] bool isEnabled(Command command, const CommandContext& context);

} // namespace tessera
