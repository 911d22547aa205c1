// SPDX-License-Identifier: MIT
#pragma once

namespace tessera {

/// A point, in points; y grows downward.
struct Point {
    double x = 0;
    double y = 0;

    bool operator==(const Point&) const = default;
};

/// A rectangle in points; y grows downward, so the top edge is at y.
struct Rect {
    double x = 0;
    double y = 0;
    double width = 0;
    double height = 0;

    double right() const { return x + width; }
    double bottom() const { return y + height; }
    double area() const { return width * height; }

    /// Smaller by `dx` at the left and the right, by `dy` at the top and the bottom.
    Rect inset(double dx, double dy) const
    {
        return {x + dx, y + dy, width - 2 * dx, height - 2 * dy};
    }
    Rect translated(double dx, double dy) const { return {x + dx, y + dy, width, height}; }

    /// The left and top edges belong to a rectangle, the right and bottom ones do not, so that a
    /// point lies in at most one of several rectangles that touch.
    bool contains(Point p) const { return p.x >= x && p.x < right() && p.y >= y && p.y < bottom(); }

    bool operator==(const Rect&) const = default;
};

} // namespace tessera
