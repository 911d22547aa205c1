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
    bool mayRepeat = true; ///< while the key is held down
};

constexpr std::array kBindings{
    Binding{Qt::Key_Left, Direction::Left},
    Binding{Qt::Key_Right, Direction::Right},
    Binding{Qt::Key_Up, Direction::Up},
    Binding{Qt::Key_Down, Direction::Down},
    Binding{Qt::Key_Return, Command::Open},
    Binding{Qt::Key_Enter, Command::Open},
    Binding{Qt::Key_Backspace, Command::ZoomOut},
    Binding{Qt::Key_Escape, Command::ZoomOut},
    Binding{Qt::Key_Space, Command::QuickLook, false},
    Binding{Qt::Key_B, Command::AddToBasket, false},
    Binding{Qt::Key_Delete, Command::MoveToTrash, false},
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
    if (found == kBindings.end() || (event.isAutoRepeat() && !found->mayRepeat)) {
        return std::nullopt;
    }
    return found->action;
}

} // namespace tessera
