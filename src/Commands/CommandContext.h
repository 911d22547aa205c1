// SPDX-License-Identifier: MIT
#pragma once

#include "Commands/Command.h"

#include <QString>

#include <cstdint>
#include <optional>

namespace tessera {

class File;
class Folder;

/// What stands in the way of a rescan of a folder.
enum class RescanObstacle : std::uint8_t { None, AnotherRescan, MountPoint };

/// What the main window shows, as far as it decides what can be done now.
struct CommandContext {
    bool hasHomeScreen = false;
    bool hasTreeScreen = false;
    bool isRootInView = true; ///< of the scanned tree; counts with a tree screen alone
    const File* selectedFile = nullptr; ///< the tree screen's
    const Folder* folderInView = nullptr; ///< the tree screen's
    RescanObstacle rescanObstacle = RescanObstacle::None;
    bool isInBasket = false; ///< the selected file; counts with one alone
    bool isDiskScanned = false; ///< a whole disk, not a folder; counts with a tree screen alone
    bool isLedgerOpen = false; ///< the panel, in sight or not; counts with a tree screen alone
    bool isScanRunning = false; ///< in the scan panel
    bool isStatusLineOn = false; ///< as the user wants it
    /// The entries' texts, which name what would be undone or done again; empty when nothing can
    /// be.
    QString undoTitle = {};
    QString redoTitle = {};
    QString whyNoUndo = {}; ///< empty when something can be undone
    QString whyNoRedo = {};
};

/// Why the command cannot be performed, a sentence for the user; empty when it can. All menus and
/// all keys go by this.
[[nodiscard]] QString whyDisabled(Command command, const CommandContext& context);

[[nodiscard]] inline bool isEnabled(Command command, const CommandContext& context)
{
    return whyDisabled(command, context).isEmpty();
}

/// What is said where something is to be done with an item, and none is selected.
[[nodiscard]] QString nothingSelected();

/// For the command of something that is on or off: which it is. Nothing for all others.
[[nodiscard]] std::optional<bool> isOn(Command command, const CommandContext& context);

} // namespace tessera
