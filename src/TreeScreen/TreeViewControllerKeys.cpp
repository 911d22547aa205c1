// SPDX-License-Identifier: MIT
// What keys do on the tree screen.
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
    // A key that is held down asks once, and is told once.
    if (event.isAutoRepeat() && std::holds_alternative<TreeCommand>(*action)) {
        return false;
    }
    const bool isDone = carryOut(*action);
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
    if (const auto* command = std::get_if<TreeCommand>(&action)) {
        if (!validate(*command)) {
            return false;
        }
        perform(*command);
        return true;
    }
    return std::get<TreeKey>(action) == TreeKey::Open ? openSelected() : leaveFolder();
}

void TreeViewController::sayWhyNot(const TreeKeyAction& action)
{
    if (const auto* command = std::get_if<TreeCommand>(&action)) {
        say(whyNot(*command));
    } else if (const auto* key = std::get_if<TreeKey>(&action); key == nullptr) {
        m_note.say(command_hint::noBoxThatWay());
    } else if (*key == TreeKey::Open) {
        say(whyNot(TreeCommand::QuickLook));
    } else {
        say(whyNotOut());
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
    select(next);
    return true;
}

bool TreeViewController::openSelected()
{
    if (m_selectedFile == nullptr) {
        return false;
    }
    doubleClickTreeItem();
    return true;
}

bool TreeViewController::leaveFolder()
{
    if (m_currentFolder == nullptr || m_currentFolder->parent() == nullptr) {
        return false;
    }
    zoomOut();
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
