// SPDX-License-Identifier: MIT
#pragma once

#include "TreeScreen/Map/BoxNavigation.h"
#include "TreeScreen/TreeCommand.h"

#include <optional>
#include <variant>

class QKeyEvent;

namespace tessera {

/// What else than a command or a move of the selection a key can ask for.
enum class TreeKey : std::uint8_t {
    Open, ///< zoom into a folder, preview a document
    ZoomOut,
};

using TreeKeyAction = std::variant<Direction, TreeKey, TreeCommand>;

/// What a key press on the tree screen stands for; nothing when it is none of the screen's keys.
/// docs/keyboard.md lists them.
[[nodiscard]] std::optional<TreeKeyAction> treeKeyAction(const QKeyEvent& event);

} // namespace tessera
