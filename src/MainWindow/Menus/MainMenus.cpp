// SPDX-License-Identifier: MIT
#include "MainWindow/Menus/MainMenus.h"

#include "Commands/CommandActions.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>

namespace tessera {

void fillMenuBar(QMenuBar& menuBar, const CommandActions& actions)
{
    for (const MainMenu menu :
         {MainMenu::File, MainMenu::Edit, MainMenu::Item, MainMenu::View, MainMenu::Help}) {
        fillMenu(*menuBar.addMenu(titleOf(menu)), menu, actions);
    }
}

void fillMenu(QMenu& menu, MainMenu entries, const CommandActions& actions)
{
    for (const CommandRow& row : commandTable()) {
        if (row.menu != entries) {
            continue;
        }
        if (row.beginsGroup) {
            menu.addSeparator();
        }
        menu.addAction(&actions.action(row.command));
    }
    actions.lookAfter(menu, CommandActions::Shortcuts::Shown);
}

} // namespace tessera
