// SPDX-License-Identifier: MIT
#pragma once

#include "Commands/Command.h"

#include <QString>

#include <cstdint>
#include <span>

namespace tessera {

enum class MainMenu : std::uint8_t { File, Edit, Item, View, Help };

/// One command of the menus. All texts are untranslated.
struct CommandRow {
    Command command;
    MainMenu menu;
    int tag; ///< stays with the entry whatever its text and place are; 0 is none
    const char* title; ///< with a mnemonic
    const char* help; ///< a sentence that says what the command does for the user
    /// Separated by "; ", in Qt's portable notation. No plain keys: those belong to the tree
    /// screen, and to whatever has the keyboard (docs/keyboard.md).
    const char* shortcuts;
    bool beginsGroup = false; ///< a separator stands before it
    /// In the menu of an item, where that says more than the title.
    const char* folderTitle = nullptr;
    const char* documentTitle = nullptr;
};

/// The menu bar from the left to the right and from the top to the bottom.
std::span<const CommandRow> commandTable();
/// The command must be one of the table's.
const CommandRow& rowOf(Command command);

/// What the user reads.
QString titleOf(const CommandRow& row);
QString titleOf(MainMenu menu);
/// The same in the menu of one item, without a mnemonic.
QString titleForFolder(const CommandRow& row);
QString titleForDocument(const CommandRow& row);
/// What the user reads who asks what the command does.
QString helpOf(const CommandRow& row);

} // namespace tessera
