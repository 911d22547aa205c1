// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// Sentences for the user that say why a key does nothing that is no command's. Main thread only.
namespace tessera::command_hint {

/// For a move of the selection.
[[nodiscard]] QString noBoxThatWay();

} // namespace tessera::command_hint
