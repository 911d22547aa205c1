// SPDX-License-Identifier: MIT
#include "Commands/CommandEntry.h"

#include "Base/DisplayText.h"
#include "Commands/CommandTable.h"

#include <QAction>

namespace tessera {

QAction* makeCommandEntry(const CommandRow& row, const QString& title, QObject* parent)
{
    // NOLINTNEXTLINE(cppcoreguidelines-owning-memory): the parent owns it
    auto* const entry = new QAction(title, parent);
    // Titles must not make an entry move elsewhere in the menus of some desktops.
    entry->setMenuRole(QAction::NoRole);
    entry->setData(row.tag);
    return entry;
}

void enableCommandEntry(QAction& entry, bool isEnabled, const QString& whyNot)
{
    entry.setEnabled(isEnabled);
    entry.setToolTip(isEnabled ? QString() : plainTooltip(whyNot));
}

} // namespace tessera
