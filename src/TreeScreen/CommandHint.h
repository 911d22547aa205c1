// SPDX-License-Identifier: MIT
#pragma once

#include "Commands/Command.h"

#include <QString>

namespace tessera {

class Folder;

/// What stands in the way of a rescan.
enum class RescanObstacle { None, AnotherRescan, MountPoint };

/// Sentences for the user that say why something cannot be done now. Main thread only.
namespace command_hint {

/// For a command that is disabled. `toRescan` is the folder that a rescan would be of, or null.
[[nodiscard]] QString whyNot(Command command, const Folder* toRescan, RescanObstacle obstacle);

/// For the way out of the folder in view, which is the scanned one.
[[nodiscard]] QString nothingAround(const Folder& scanned);

/// For what is done with an item.
[[nodiscard]] QString nothingSelected();

/// For a move of the selection.
[[nodiscard]] QString noBoxThatWay();

} // namespace command_hint

} // namespace tessera
