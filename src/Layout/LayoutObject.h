// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Rect.h"

namespace tessera {

class File;

/// One rectangle of a laid-out level. Coordinates are in the level's view, y downward, in points.
class LayoutObject {
public:
    LayoutObject() = default;
    LayoutObject(const LayoutObject&) = delete;
    LayoutObject& operator=(const LayoutObject&) = delete;
    virtual ~LayoutObject() = default;

    File* ref = nullptr; ///< the node it stands for; null for a group
    double pixelCount = 0; ///< square points allotted; written by the builder
    Rect rect; ///< placement; written by the builder
    double totalAllocation = 0; ///< bytes; set before layout
};

} // namespace tessera
