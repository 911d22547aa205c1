// SPDX-License-Identifier: MIT
#pragma once

#include "Commands/CommandContext.h"
#include "Commands/CommandTable.h"

#include <QObject>

#include <cstdint>
#include <functional>
#include <map>
#include <optional>

class QAction;
class QKeyEvent;
class QMenu;
class QWidget;

namespace tessera {

/// The actions of the table, with their shortcuts. All menus that hold commands show these. Main
/// thread only.
class CommandActions final : public QObject {
    Q_OBJECT

public:
    /// Says what decides which entries are enabled.
    using Context = std::function<CommandContext()>;
    /// The shortcuts work in `window`, which owns this object.
    CommandActions(QWidget& window, Context context);
    ~CommandActions() override;

    QAction& action(Command command) const { return *m_actions.at(command); }

    /// Makes an entry with a title of its own for the command, for a menu in which the action's
    /// title would say too little. It is as the action is, and triggers that. The parent owns it.
    [[nodiscard]] QAction* makeEntry(Command command, const QString& title, QObject* parent) const;

    /// The command whose shortcut was pressed in vain, because its entry is disabled.
    [[nodiscard]] std::optional<Command> disabledCommand(const QKeyEvent& pressed) const;

    /// Whether a menu shows them beside its entries. Those of a menu bar always do.
    enum class Shortcuts : std::uint8_t { Shown, Hidden };

    /// Validates a menu of these actions whenever it opens, and has it say what its entries do or
    /// why they are disabled (explainEntries).
    void lookAfter(QMenu& menu, Shortcuts shortcuts) const;

    /// To be called when the context has changed: the shortcuts of disabled entries do nothing, and
    /// the key press goes on to whatever has the keyboard. Their tooltips and status tips say why.
    void validate();

signals:
    void triggered(tessera::Command command);

private:
    QAction* makeAction(const CommandRow& row);
    void show(Shortcuts shortcuts) const;
    void rename(Command command, const QString& title) const;

    QWidget& m_window;
    Context m_context;
    std::map<Command, QAction*> m_actions;
};

} // namespace tessera
