// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Rect.h"

#include <QTransform>

#include <cstdint>

namespace tessera {

/// How a zoom moves its two pictures, worked out from where the folder's box is. A pure
/// computation.
///
/// The matrices are in a layer's coordinates: the origin is the lower left corner of the view and
/// y grows upward. As everywhere with QTransform, points are rows, p' = p * M, and each operation
/// acts on a point before those that were applied earlier: M = operation * M. inView() turns such a
/// matrix into the view's own coordinates.
struct ZoomGeometry {
    /// What the box that a zoom starts from or ends at stands for.
    enum class Box : std::uint8_t {
        Folder, ///< the folder itself
        Ancestor, ///< the nearest shown folder around it, for it has no box of its own
    };

    /// `box`: the folder's box in the top branch; `bounds`: the view's; both with y downward, as in
    /// the view.
    ZoomGeometry(const Rect& box, Box stands, const Rect& bounds);

    /// Where the folder's content is drawn inside its box, y downward. Too small a box has no
    /// inside and gives the same as that of an ancestor: a small rectangle at its centre.
    Rect inner;

    QTransform shrunk; ///< takes the picture into `inner`, slightly inside of it
    QTransform enlarged; ///< takes `inner` to where the top level's boxes are

    /// The same transform for coordinates whose y grows downward in a view of that height.
    static QTransform inView(const QTransform& transform, double viewHeight);
};

} // namespace tessera
