// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Rect.h"

#include <QPainterPath>

namespace tessera {

/// Adds a line from the path's current position toward `corner` and an arc of the given radius
/// that is tangent to it and to the line from `corner` toward `end`; the path then stands where
/// the arc touches that second line, not at `end`. Adds only a line to `corner` when no such arc
/// exists: the radius is 0, or the three points are on one line. (QPainterPath::arcTo() takes the
/// arc's ellipse instead.)
void addArcToPoint(QPainterPath& path, Point corner, Point end, double radius);

/// Whether a rounded rectangle can be made of `rect`: x, y, width and height are all normal
/// numbers. Zero is none, so a rectangle that begins exactly at 0 draws nothing.
bool canRoundRect(const Rect& rect);

/// Adds a closed rectangle with rounded corners; plain corners when the radius is below 1. Adds
/// nothing when canRoundRect() denies.
void addRoundedRectToPath(QPainterPath& path, const Rect& rect, double radius);

} // namespace tessera
