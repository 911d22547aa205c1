// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

class QMenu;

namespace tessera {

class CommandActions;
class File;

/// The menu of what can be done with a folder or a document; null for any other node. It shows the
/// actions, without their shortcuts.
std::unique_ptr<QMenu> makeTreeMenu(const File& item, const CommandActions& actions);

} // namespace tessera
