// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

class QMenu;

namespace tessera {

class File;
class TreeCommandTarget;

/// The menu of what can be done with a folder or a document; null for any other node. Entries that
/// the target does not validate are disabled, as are all when there is no target. The target must
/// outlive the menu.
std::unique_ptr<QMenu> makeTreeMenu(const File& item, TreeCommandTarget* target);

} // namespace tessera
