// SPDX-License-Identifier: MIT
#pragma once

#include "Commands/Command.h"

namespace tessera {

/// Carries out the commands on the tree screen, most of them on the selected item.
class TreeCommandTarget {
public:
    TreeCommandTarget() = default;
    TreeCommandTarget(const TreeCommandTarget&) = delete;
    TreeCommandTarget& operator=(const TreeCommandTarget&) = delete;
    virtual ~TreeCommandTarget() = default;

    virtual void perform(Command command) = 0;
};

} // namespace tessera
