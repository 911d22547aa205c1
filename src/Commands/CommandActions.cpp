// SPDX-License-Identifier: MIT
#include "Commands/CommandActions.h"

#include "Base/DisplayText.h"
#include "Commands/EntryExplanations.h"

#include <QAction>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QKeySequence>
#include <QMenu>

#include <algorithm>
#include <utility>

namespace tessera {

namespace {

QAction* makePlainAction(const QString& title, const CommandRow& row, QObject* parent)
{
    // NOLINTNEXTLINE(cppcoreguidelines-owning-memory): the parent owns it
    auto* const action = new QAction(title, parent);
    // Titles must not make an entry move elsewhere in the menus of some desktops.
    action->setMenuRole(QAction::NoRole);
    action->setData(row.tag);
    action->setWhatsThis(helpOf(row));
    return action;
}

/// With a mnemonic, as the table's.
QString takeOutTitle()
{
    return QCoreApplication::translate("MainMenu", "Take Out of &Basket");
}

} // namespace

CommandActions::CommandActions(QWidget& window, Context context)
    : QObject(&window)
    , m_window(window)
    , m_context(std::move(context))
{
    for (const CommandRow& row : commandTable()) {
        m_actions.emplace(row.command, makeAction(row));
    }
}

CommandActions::~CommandActions() = default;

QAction* CommandActions::makeAction(const CommandRow& row)
{
    QAction* const action = makePlainAction(titleOf(row), row, this);
    QList<QKeySequence> shortcuts
        = QKeySequence::listFromString(QString::fromLatin1(row.shortcuts));
    shortcuts.removeAll(QKeySequence());
    action->setShortcuts(shortcuts);
    action->setCheckable(isOn(row.command, {}).has_value());
    connect(action, &QAction::triggered, this, [this, command = row.command] {
        emit triggered(command);
    });
    m_window.addAction(action);
    return action;
}

QAction* CommandActions::makeEntry(Command command, const QString& title, QObject* parent) const
{
    QAction& shared = action(command);
    QAction* const entry = makePlainAction(title, rowOf(command), parent);
    const auto follow = [&shared, entry] {
        entry->setEnabled(shared.isEnabled());
        entry->setToolTip(shared.isEnabled() ? QString() : shared.toolTip());
        entry->setStatusTip(shared.statusTip());
    };
    follow();
    connect(&shared, &QAction::changed, entry, follow);
    connect(entry, &QAction::triggered, &shared, &QAction::trigger);
    return entry;
}

void CommandActions::lookAfter(QMenu& menu, Shortcuts shortcuts) const
{
    explainEntries(menu, m_window);
    connect(&menu, &QMenu::aboutToShow, this, [this, shortcuts] { show(shortcuts); });
    connect(&menu, &QMenu::aboutToShow, this, &CommandActions::validate);
}

/// An action says so for all menus that show it, but no two of them are open at once.
void CommandActions::show(Shortcuts shortcuts) const
{
    for (const auto& [command, action] : m_actions) {
        action->setShortcutVisibleInContextMenu(shortcuts == Shortcuts::Shown);
    }
}

std::optional<Command> CommandActions::disabledCommand(const QKeyEvent& pressed) const
{
    Qt::KeyboardModifiers modifiers = pressed.modifiers();
    modifiers.setFlag(Qt::KeypadModifier, false);
    const QKeySequence keys(QKeyCombination(modifiers, static_cast<Qt::Key>(pressed.key())));
    const auto found = std::ranges::find_if(m_actions, [&keys](const auto& entry) {
        return !entry.second->isEnabled() && entry.second->shortcuts().contains(keys);
    });
    return found == m_actions.end() ? std::nullopt : std::optional(found->first);
}

/// To the title, or to the table's where there is none.
void CommandActions::rename(Command command, const QString& title) const
{
    action(command).setText(title.isEmpty() ? titleOf(rowOf(command)) : title);
}

void CommandActions::validate()
{
    const CommandContext context = m_context();
    rename(Command::Undo, context.undoTitle);
    rename(Command::Redo, context.redoTitle);
    rename(Command::AddToBasket, context.isInBasket ? takeOutTitle() : QString());
    for (const auto& [command, action] : m_actions) {
        const QString obstacle = whyDisabled(command, context);
        action->setEnabled(obstacle.isEmpty());
        action->setChecked(isOn(command, context).value_or(false));
        action->setToolTip(obstacle.isEmpty() ? QString() : plainTooltip(obstacle));
        action->setStatusTip(obstacle.isEmpty() ? helpOf(rowOf(command)) : obstacle);
    }
}

} // namespace tessera
