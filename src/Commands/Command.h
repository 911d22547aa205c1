// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

namespace tessera {

/// Everything that the user can ask for in the main window, by menus, by shortcuts and by keys. The
/// ignore menu has entries of its own.
enum class Command : std::uint8_t {
    OpenFolder,
    Home,
    Preferences,
    Quit,
    Undo, ///< puts back what was moved to the trash last
    Redo,
    Open, ///< zooms into a folder, previews a document; of the picture, and in no menu
    OpenItem, ///< in the program that the desktop has for it
    OpenWith, ///< lets the user choose that program
    QuickLook,
    ShowInFinder,
    CopyPath,
    OpenTerminal, ///< in the folder, or in that which holds the file
    Rescan,
    Ignore,
    Compress,
    MoveToTrash,
    Properties, ///< the file manager's window of them
    AddToBasket, ///< or takes out again what is in it
    ZoomIn,
    ZoomOut,
    Reload, ///< all that the window shows
    FullScreen,
    Basket, ///< the panel
    SpaceLedger, ///< of a scanned disk
    StatusLine,
    TrashHistory,
    Features,
    Questions,
    About,
};

} // namespace tessera
