// SPDX-License-Identifier: MIT
#pragma once

#include "Commands/CommandContext.h"
#include "Commands/CommandTable.h"

#include <QObject>

#include <functional>
#include <map>
#include <optional>

class QAction;
class QKeyEvent;
class QMenu;
class QMenuBar;
class QWidget;

namespace tessera {

/// The actions of the table, with their shortcuts, and the menus that are made of them. Main thread
/// only.
class MainActions final : public QObject {
    Q_OBJECT

public:
    /// Says what decides which entries are enabled.
    using Context = std::function<CommandContext()>;
    /// Says why the entry of a command is disabled, if there is anything to say.
    using WhyNot = std::function<QString(Command command)>;

    /// The shortcuts work in `window`, which owns this object.
    MainActions(QWidget& window, Context context, WhyNot whyNot);
    ~MainActions() override;

    QAction& action(Command command) const { return *m_actions.at(command); }

    /// The command whose shortcut was pressed in vain, because its entry is disabled.
    [[nodiscard]] std::optional<Command> disabledCommand(const QKeyEvent& pressed) const;

    /// Adds all menus of the table.
    void fill(QMenuBar& menuBar) const;
    /// Adds the entries of one menu, and validates them whenever the menu opens.
    void fill(QMenu& menu, MainMenu entries) const;

    /// To be called when the context has changed: the shortcuts of disabled entries do nothing, and
    /// the key press goes on to whatever has the keyboard. Their tooltips say why.
    void validate();

signals:
    void triggered(tessera::Command command);

private:
    QAction* makeAction(QWidget& window, const CommandRow& row);

    Context m_context;
    WhyNot m_whyNot;
    std::map<Command, QAction*> m_actions;
};

} // namespace tessera
