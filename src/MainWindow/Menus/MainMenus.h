// SPDX-License-Identifier: MIT
#pragma once

#include "Commands/CommandTable.h"

class QMenu;
class QMenuBar;

namespace tessera {

class CommandActions;

/// Adds all menus of the table.
void fillMenuBar(QMenuBar& menuBar, const CommandActions& actions);
/// Adds the entries of one menu, and has them validated whenever the menu opens.
void fillMenu(QMenu& menu, MainMenu entries, const CommandActions& actions);

} // namespace tessera
