// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>

class QMimeData;

/// What a drag of a box carries. It is of use inside this process alone: no other program, a file
/// manager least of all, is to move or copy what the user drags into the basket. Main thread only.
namespace tessera {

/// Of the item at that path in the tree, as bytes; the caller owns it, or hands it to a QDrag.
[[nodiscard]] QMimeData* mimeDataOfItem(const std::string& pathInTree);

/// The path of the item that is dragged; nothing for any other drag, also one that another process
/// of this program began: its tree is not the one on this screen.
[[nodiscard]] std::optional<std::string> draggedItem(const QMimeData& data);

} // namespace tessera
