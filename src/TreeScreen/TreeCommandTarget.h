// SPDX-License-Identifier: MIT
#pragma once

#include "Commands/Command.h"

#include <QString>

namespace tessera {

/// Carries out the commands of the menus and of the keys on the tree screen, most of them on the
/// selected item.
class TreeCommandTarget {
public:
    TreeCommandTarget() = default;
    TreeCommandTarget(const TreeCommandTarget&) = delete;
    TreeCommandTarget& operator=(const TreeCommandTarget&) = delete;
    virtual ~TreeCommandTarget() = default;

    /// Whether the command can be performed now; its menu entry is enabled accordingly.
    virtual bool validate(Command command) const = 0;
    /// Why it cannot be performed now, a sentence for the user; empty when it can.
    virtual QString whyNot(Command command) const = 0;
    virtual void perform(Command command) = 0;
};

} // namespace tessera
