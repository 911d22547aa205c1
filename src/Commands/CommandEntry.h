// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class QAction;
class QObject;

namespace tessera {

struct CommandRow;

/// Makes a menu's entry of the command's row. It carries the row's tag, and no shortcut: of all
/// entries for one command only the menu bar's has that. The parent owns it.
[[nodiscard]] QAction* makeCommandEntry(
    const CommandRow& row, const QString& title, QObject* parent);

/// Enables the entry of a command or disables it. A disabled one says `whyNot`, a sentence for the
/// user, in its tooltip.
void enableCommandEntry(QAction& entry, bool isEnabled, const QString& whyNot);

} // namespace tessera
