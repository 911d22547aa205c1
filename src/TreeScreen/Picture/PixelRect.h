// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>

namespace tessera {

/// Whole device pixels; right and bottom are exclusive.
struct PixelRect {
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;

    int width() const { return right - left; }
    int height() const { return bottom - top; }
    bool isEmpty() const { return left >= right || top >= bottom; }
    PixelRect intersected(const PixelRect& other) const
    {
        return {
            std::max(left, other.left),
            std::max(top, other.top),
            std::min(right, other.right),
            std::min(bottom, other.bottom)};
    }
};

/// A rectangle in device pixels, whose edges may lie within pixels.
struct DeviceRect {
    double left = 0;
    double top = 0;
    double right = 0;
    double bottom = 0;

    double width() const { return right - left; }
    double height() const { return bottom - top; }
};

} // namespace tessera
