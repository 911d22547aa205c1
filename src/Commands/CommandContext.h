// SPDX-License-Identifier: MIT
#pragma once

#include "Commands/Command.h"

#include <QString>

#include <optional>

namespace tessera {

class File;

/// What the main window shows, as far as it decides what can be done now.
struct CommandContext {
    bool hasHomeScreen = false;
    bool hasTreeScreen = false;
    bool isRootInView = true; ///< of the scanned tree; counts with a tree screen alone
    const File* selectedFile = nullptr; ///< the tree screen's
    bool canRescan = false; ///< says the tree screen; counts for Rescan alone
    bool isInBasket = false; ///< the selected file; counts with one alone
    bool isDiskScanned = false; ///< a whole disk, not a folder; counts with a tree screen alone
    bool isLedgerOpen = false; ///< the panel, in sight or not; counts with a tree screen alone
    bool canReload = false; ///< says the main window; counts for Reload alone
    bool isStatusLineOn = false; ///< as the user wants it
    /// The entries' texts, which name what would be undone or done again; empty when nothing can
    /// be.
    QString undoTitle = {};
    QString redoTitle = {};
};

/// Whether the command can be performed. All menus and all keys go by this.
[[nodiscard]] bool isEnabled(Command command, const CommandContext& context);

/// For the command of something that is on or off: which it is. Nothing for all others.
[[nodiscard]] std::optional<bool> isOn(Command command, const CommandContext& context);

} // namespace tessera
