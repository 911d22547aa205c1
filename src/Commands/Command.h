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
    Open, ///< zooms into a folder, previews a document; of the picture, and in no menu
    QuickLook,
    ShowInFinder,
    Rescan,
    Ignore,
    Compress,
    MoveToTrash,
    ZoomIn,
    ZoomOut,
    FullScreen,
    Features,
    Questions,
};

} // namespace tessera
