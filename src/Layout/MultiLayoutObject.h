// SPDX-License-Identifier: MIT
#pragma once

#include "Layout/LayoutObject.h"

#include <vector>

namespace tessera {

/// The one rectangle that stands for several children too small for rectangles of their own.
class MultiLayoutObject final : public LayoutObject {
public:
    std::vector<File*> refs; ///< in the order in which they were added
};

} // namespace tessera
