// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Rect.h"

namespace tessera {

/// Boxes stand 2 points inside their rectangles on the top level, 1 point on the others.
inline double levelInset(long level)
{
    return level == 0 ? 2.0 : 1.0;
}

/// Rims exist below the top level; half a point further inside, a stroke fills whole pixels.
inline double rimOffset(long level)
{
    return level > 0 ? 0.5 : 0.0;
}

/// Smaller boxes are not painted at all.
inline bool isTooSmall(const Rect& rect)
{
    constexpr double kMinExtent = 1.0;
    return rect.width < kMinExtent || rect.height < kMinExtent;
}

/// Smaller boxes, insets taken off, carry no label.
inline bool hasRoomForLabel(const Rect& rect)
{
    constexpr double kMinWidth = 30.0;
    constexpr double kMinHeight = 20.0;
    return rect.width > kMinWidth && rect.height > kMinHeight;
}

/// The corners of boxes: tighter on the smallest. `area` is that of the rectangle before insetting.
inline double cornerRadius(double area)
{
    constexpr double kSmallArea = 200.0;
    return area < kSmallArea ? 1.0 : 2.0;
}

} // namespace tessera
