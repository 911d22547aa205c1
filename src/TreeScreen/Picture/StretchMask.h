// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Rect.h"
#include "TreeScreen/Picture/PixelRect.h"

#include <QPainterPath>

#include <array>
#include <cstddef>
#include <cstdint>
#include <unordered_map>
#include <vector>

namespace tessera {

/// An outline that looks alike on boxes of any size: between its corners it is straight. All
/// lengths in points.
struct BoxShape {
    /// The outline on a box with the given frame; `size` is the corner radius or the like. A plain
    /// function, because it tells shapes apart.
    using PathBuilder = QPainterPath (*)(const Rect& frame, double size);
    enum class Paint : std::uint8_t { Fill, Stroke };

    PathBuilder path = nullptr;
    double size = 0;
    Paint paint = Paint::Fill; ///< strokes are 1 point wide and centred on the path
    double foldCorner = 0; ///< how far the top right corner reaches to the left and downward
    double otherCorners = 0; ///< how far the other corners reach

    bool operator==(const BoxShape&) const = default;
};

/// The antialiased coverage of one BoxShape, kept as runs of pixels that stretch in the middle.
class StretchMask {
public:
    /// Pixels of equal coverage. Each end is counted from the box's left, or right, edge.
    struct Span {
        int begin;
        int end;
        bool beginFromRight;
        bool endFromRight;
        std::uint8_t coverage;
    };

    /// Pixels at the edges that do not stretch. An axis without a stretching pixel has all its
    /// pixels in `lead` and none in `trail`.
    struct Axis {
        int lead;
        int trail;
        bool stretches;
    };

    StretchMask(const QImage& coverage, const Axis& across, const Axis& down);

    /// The runs of row `y` of a box that is `height` pixels high.
    const std::vector<Span>& rowSpans(int y, int height) const;

private:
    std::vector<std::vector<Span>> m_rows;
    Axis m_down;
};

/// Makes masks and keeps them: boxes share few sizes of corners and few places within a pixel.
/// For one thread at a time.
class StretchMaskCache {
public:
    struct Placed {
        const StretchMask* mask;
        PixelRect target;
    };

    /// The mask of the shape on a box at `frame` (device pixels), and the pixels it goes to. The
    /// mask is good until the next call.
    Placed place(const BoxShape& shape, const DeviceRect& frame, double scale);

private:
    /// What a mask's pixels depend on. A length of 0 is one that stretches.
    struct Key {
        BoxShape shape;
        double scale;
        std::array<int, 4> edges; ///< within the pixel: left, top, right, bottom
        int width;
        int height;

        bool operator==(const Key&) const = default;
    };
    struct KeyHash {
        std::size_t operator()(const Key& key) const noexcept;
    };

    static StretchMask makeMask(const Key& key);

    std::unordered_map<Key, StretchMask, KeyHash> m_masks;
};

} // namespace tessera
