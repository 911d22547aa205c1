// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Rect.h"

namespace tessera {

// The lengths that a picture's boxes are made of, all in points: what lays levels out, what paints
// their boxes and what zooms into them go by these.

/// How far inside a rectangle something lies, edge by edge.
struct Insets {
    double left = 0;
    double top = 0;
    double right = 0;
    double bottom = 0;

    constexpr Rect of(const Rect& rect) const
    {
        return {
            rect.x + left, rect.y + top, rect.width - (left + right), rect.height - (top + bottom)};
    }
};

/// Between the map's edges and the boxes of the top level.
inline constexpr double kTopLevelMargin = 3;

/// Where a level lies in its folder's box; at the top there is room for the folder's name.
inline constexpr Insets kNestedLevelInsets{8, 24, 8, 8};

/// A level in a folder's box is wider and higher than this; where it would not be, there is none.
inline constexpr double kMinNestedLevelExtent = 40;

/// The frame of a level in its folder's box, in the coordinates of the box.
inline Rect nestedLevelFrame(const Rect& box)
{
    return kNestedLevelInsets.of(box);
}

/// Whether a folder's box is large enough for a level in it.
inline bool hasRoomForLevel(const Rect& box)
{
    const Rect frame = nestedLevelFrame(box);
    return frame.width > kMinNestedLevelExtent && frame.height > kMinNestedLevelExtent;
}

/// How far inside their rectangles boxes are painted, on the top level and on the others.
inline double levelInset(long level)
{
    constexpr double kOnTopLevel = 2;
    constexpr double kBelow = 1;
    return level == 0 ? kOnTopLevel : kBelow;
}

/// Boxes below the top level have a rim of this width.
inline constexpr double kRimWidth = 1;

/// How far inside the box the middle of its rim runs: a stroke there fills whole pixels.
inline double rimOffset(long level)
{
    return level > 0 ? kRimWidth / 2 : 0;
}

/// Smaller boxes are not painted at all.
inline bool isTooSmall(const Rect& rect)
{
    constexpr double kMinExtent = 1;
    return rect.width < kMinExtent || rect.height < kMinExtent;
}

/// Whether a box is large enough for a name. Painters ask with the inset taken off.
inline bool hasRoomForLabel(const Rect& rect)
{
    constexpr double kMinWidth = 30;
    constexpr double kMinHeight = 20;
    return rect.width > kMinWidth && rect.height > kMinHeight;
}

/// Whether it is large enough for the item's size below the name.
inline bool hasRoomForSize(const Rect& rect)
{
    constexpr double kMinWidth = 60;
    constexpr double kMinHeight = 80;
    return rect.width > kMinWidth && rect.height > kMinHeight;
}

/// The radius of a box's corners: tighter on the smallest. `area` is that of the rectangle before
/// the inset.
inline double cornerRadius(double area)
{
    constexpr double kSmallArea = 200; // square points
    return area < kSmallArea ? 1.0 : 2.0;
}

} // namespace tessera
