// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <cstdint>
#include <span>

namespace tessera {

/// Everything that the main window's menus offer, the ignore menu apart.
enum class MainCommand : std::uint8_t {
    OpenFolder,
    Home,
    Preferences,
    Quit,
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

enum class MainMenu : std::uint8_t { File, Item, View, Help };

/// One entry of the menu bar.
struct ActionRow {
    MainCommand command;
    MainMenu menu;
    int tag; ///< see MenuValidation.h
    const char* title; ///< untranslated, with a mnemonic
    /// Separated by "; ", in Qt's portable notation. No plain keys: those belong to the tree
    /// screen, and to whatever has the keyboard (docs/keyboard.md).
    const char* shortcuts;
    bool beginsGroup = false; ///< a separator stands before it
};

/// The menu bar from the left to the right and from the top to the bottom.
std::span<const ActionRow> actionTable();

/// What the user reads.
QString titleOf(const ActionRow& row);
QString titleOf(MainMenu menu);

} // namespace tessera
