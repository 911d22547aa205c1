// SPDX-License-Identifier: MIT
#pragma once

#include "Commands/Command.h"
#include "TreeScreen/Map/BoxNavigation.h"

#include <optional>
#include <variant>

class QKeyEvent;

namespace tessera {

/// A move of the selection or a command.
using TreeKeyAction = std::variant<Direction, Command>;

/// What a key press on the tree screen stands for; nothing when it is none of the screen's keys, or
/// one that is held down and counts once.
/// docs/keyboard.md lists them.
[[nodiscard]] std::optional<TreeKeyAction> treeKeyAction(const QKeyEvent& event);

} // namespace tessera
