// SPDX-License-Identifier: MIT
#include "MainWindow/Menus/MainActions.h"

#include "Commands/CommandEntry.h"

#include <QAction>
#include <QKeyEvent>
#include <QKeySequence>
#include <QMenu>
#include <QMenuBar>

#include <algorithm>
#include <utility>

namespace tessera {

MainActions::MainActions(QWidget& window, Context context, WhyNot whyNot)
    : QObject(&window)
    , m_context(std::move(context))
    , m_whyNot(std::move(whyNot))
{
    for (const CommandRow& row : commandTable()) {
        m_actions.emplace(row.command, makeAction(window, row));
    }
}

MainActions::~MainActions() = default;

QAction* MainActions::makeAction(QWidget& window, const CommandRow& row)
{
    QAction* const action = makeCommandEntry(row, titleOf(row), this);
    action->setShortcuts(QKeySequence::listFromString(QString::fromLatin1(row.shortcuts)));
    connect(action, &QAction::triggered, this, [this, command = row.command] {
        emit triggered(command);
    });
    window.addAction(action);
    return action;
}

void MainActions::fill(QMenuBar& menuBar) const
{
    for (const MainMenu menu : {MainMenu::File, MainMenu::Item, MainMenu::View, MainMenu::Help}) {
        fill(*menuBar.addMenu(titleOf(menu)), menu);
    }
}

void MainActions::fill(QMenu& menu, MainMenu entries) const
{
    for (const CommandRow& row : commandTable()) {
        if (row.menu != entries) {
            continue;
        }
        if (row.beginsGroup) {
            menu.addSeparator();
        }
        menu.addAction(&action(row.command));
    }
    // Of disabled entries.
    menu.setToolTipsVisible(true);
    connect(&menu, &QMenu::aboutToShow, this, &MainActions::validate);
}

std::optional<Command> MainActions::disabledCommand(const QKeyEvent& pressed) const
{
    Qt::KeyboardModifiers modifiers = pressed.modifiers();
    modifiers.setFlag(Qt::KeypadModifier, false);
    const QKeySequence keys(QKeyCombination(modifiers, static_cast<Qt::Key>(pressed.key())));
    const auto found = std::ranges::find_if(m_actions, [&keys](const auto& entry) {
        return !entry.second->isEnabled() && entry.second->shortcuts().contains(keys);
    });
    return found == m_actions.end() ? std::nullopt : std::optional(found->first);
}

void MainActions::validate()
{
    const CommandContext context = m_context();
    for (const auto& [command, action] : m_actions) {
        const bool canBeDone = isEnabled(command, context);
        enableCommandEntry(*action, canBeDone, canBeDone ? QString() : m_whyNot(command));
    }
}

} // namespace tessera
