// SPDX-License-Identifier: MIT
// What keys do on the tree screen.
#include "Model/Document.h"
#include "Model/Folder.h"
#include "TreeScreen/CommandHint.h"
#include "TreeScreen/Map/BoxNavigation.h"
#include "TreeScreen/Map/TreeMapView.h"
#include "TreeScreen/Picture/TreeBranch.h"
#include "TreeScreen/TreeKeys.h"
#include "TreeScreen/TreeViewController.h"

#include <QKeyEvent>

#include <optional>
#include <variant>

namespace tessera {

bool TreeViewController::keyDown(const QKeyEvent& event)
{
    const std::optional<TreeKeyAction> action = treeKeyAction(event);
    if (!action) {
        return false;
    }
    const bool isDone = carryOut(*action);
    // Whoever holds a key down is told once.
    if (!isDone && !event.isAutoRepeat()) {
        sayWhyNot(*action);
    }
    return isDone;
}

bool TreeViewController::carryOut(const TreeKeyAction& action)
{
    if (const auto* direction = std::get_if<Direction>(&action)) {
        return moveSelection(*direction);
    }
    const Command command = std::get<Command>(action);
    if (!validate(command)) {
        return false;
    }
    perform(command);
    return true;
}

void TreeViewController::sayWhyNot(const TreeKeyAction& action)
{
    if (const auto* command = std::get_if<Command>(&action)) {
        say(whyNot(*command));
    } else {
        m_note.say(command_hint::noBoxThatWay());
    }
}

bool TreeViewController::moveSelection(Direction direction)
{
    // While a zoom runs there is a second picture, of the folder that is being left.
    m_zoom.endRunningZoom();
    File* const next = nextSelection(*m_treeView.branches().front(), m_selectedFile, direction);
    if (next == nullptr) {
        return false;
    }
    setSelectedFile(next);
    renderTree();
    return true;
}

bool TreeViewController::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::KeyPress && keyDown(*static_cast<QKeyEvent*>(event))) {
        return true;
    }
    return QObject::eventFilter(watched, event);
}

} // namespace tessera
