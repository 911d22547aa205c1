// SPDX-License-Identifier: MIT
#include "TreeScreen/TreeKeys.h"

#include <QKeyEvent>

#include <algorithm>
#include <array>

namespace tessera {

namespace {

struct Binding {
    Qt::Key key;
    TreeKeyAction action;
};

constexpr std::array kBindings{
    Binding{Qt::Key_Left, Direction::Left},
    Binding{Qt::Key_Right, Direction::Right},
    Binding{Qt::Key_Up, Direction::Up},
    Binding{Qt::Key_Down, Direction::Down},
    Binding{Qt::Key_Return, TreeKey::Open},
    Binding{Qt::Key_Enter, TreeKey::Open},
    Binding{Qt::Key_Backspace, TreeKey::ZoomOut},
    Binding{Qt::Key_Escape, TreeKey::ZoomOut},
    Binding{Qt::Key_Space, TreeCommand::QuickLook},
    Binding{Qt::Key_Delete, TreeCommand::MoveToTrash},
};

} // namespace

std::optional<TreeKeyAction> treeKeyAction(const QKeyEvent& event)
{
    // With Shift, Control or Alt a key is somebody else's; those of the number pad are the same.
    if ((event.modifiers() & ~Qt::KeyboardModifiers(Qt::KeypadModifier)) != Qt::NoModifier) {
        return std::nullopt;
    }
    const auto* const found
        = std::find_if(kBindings.begin(), kBindings.end(), [&event](const Binding& binding) {
              return binding.key == event.key();
          });
    return found == kBindings.end() ? std::nullopt : std::optional(found->action);
}

} // namespace tessera
