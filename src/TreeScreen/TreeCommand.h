// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace tessera {

/// What the user can ask to be done with the selected item of the tree screen.
enum class TreeCommand {
    QuickLook,
    ShowInFinder,
    ZoomIn,
    Rescan,
    Ignore,
    Compress,
    MoveToTrash,
};

/// Carries out the commands of the tree screen's menus on the selected item.
class TreeCommandTarget {
public:
    TreeCommandTarget() = default;
    TreeCommandTarget(const TreeCommandTarget&) = delete;
    TreeCommandTarget& operator=(const TreeCommandTarget&) = delete;
    virtual ~TreeCommandTarget() = default;

    /// Whether the command can be performed now; its menu entry is enabled accordingly.
    virtual bool validate(TreeCommand command) const = 0;
    /// Why it cannot be performed now, a sentence for the user; empty when it can.
    virtual QString whyNot(TreeCommand command) const = 0;
    virtual void perform(TreeCommand command) = 0;
};

} // namespace tessera
