// SPDX-License-Identifier: MIT
#pragma once

namespace tessera {

class File;

/// The tags by which menu entries are told apart. An entry without a rule of its own has none.
namespace menu_tag {
inline constexpr int kNone = 0;
inline constexpr int kOpenFolder = 21;
inline constexpr int kZoomOut = 31;
inline constexpr int kZoomIn = 32;
inline constexpr int kQuickLook = 33;
inline constexpr int kShowInFinder = 34;
inline constexpr int kRescan = 35;
inline constexpr int kIgnore = 36;
inline constexpr int kCompress = 37;
inline constexpr int kMoveToTrash = 38;
inline constexpr int kHome = 41;
inline constexpr int kFeatures = 62;
inline constexpr int kQuestions = 64;
} // namespace menu_tag

/// What the main window shows, as far as menus go by it.
struct MenuContext {
    bool hasHomeScreen = false;
    bool hasTreeScreen = false;
    bool isRootInView = true; ///< of the scanned tree; counts with a tree screen alone
    const File* selectedFile = nullptr; ///< the tree screen's
    bool canRescan = false; ///< says the tree screen; counts for kRescan alone
};

/// Whether a menu entry is enabled, by its tag alone.
[[nodiscard]] bool validateMenuItem(int tag, const MenuContext& context);

} // namespace tessera
