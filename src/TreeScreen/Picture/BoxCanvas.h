// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Rect.h"
#include "TreeScreen/Picture/PixelCanvas.h"
#include "TreeScreen/Picture/StretchMask.h"

#include <QColor>

#include <optional>
#include <span>
#include <string_view>
#include <vector>

namespace tessera {

class LabelCache;
struct TextAttributes;

/// From `top` at the top of a box to `bottom` at `endFraction` of its height and below.
struct VerticalGradient {
    QColor top;
    QColor bottom;
    double endFraction = 1;
};

/// What the boxes of a picture are painted on: takes points of the branch being painted, gives
/// antialiased pixels. Fills and strokes are opaque; a stroke is 1 point wide and centred.
///
/// A picture is gone through twice. First a collecting canvas, on the main thread, hears which
/// labels there are and has their text made ready; then painting canvases, each on its own thread
/// and part of the image, only read that.
class BoxCanvas {
public:
    /// A canvas that collects labels and paints nothing. `scale` is device pixels per point.
    BoxCanvas(LabelCache& labels, double scale);

    /// A canvas that paints. `masks` serves this canvas's thread alone.
    BoxCanvas(
        const PixelCanvas& pixels, StretchMaskCache& masks, const LabelCache& labels, double scale);

    /// Whether nothing painted in `rect` can have an effect.
    bool misses(const Rect& rect) const;

    /// Coordinates are those of a branch with that frame from here on, and painting is confined to
    /// the frame. Call on a copy of the canvas of the branch around it.
    void enter(const Rect& frame);

    void fillRect(const Rect& rect, const QColor& color);
    void fillRoundedRect(const Rect& rect, double radius, const VerticalGradient& gradient);

    /// `covered` names parts of the inside that something opaque is painted over later: they are
    /// left out. They must not overlap. Deep levels would otherwise be painted over and over.
    void fillRoundedRect(
        const Rect& rect, double radius, const QColor& color, std::span<const Rect> covered = {});

    void strokeRoundedRect(const Rect& rect, double radius, const QColor& color);

    /// Paints a shape on a box of the given frame. The gradient spans the frame.
    void paintShape(const BoxShape& shape, const Rect& frame, const QColor& color);
    void paintShape(const BoxShape& shape, const Rect& frame, const VerticalGradient& gradient);

    /// Writes a name (bytes) into the rectangle: one line from the top, cut with an ellipsis to
    /// the width, clipped to the rectangle.
    void drawText(std::string_view name, const Rect& rect, const TextAttributes& attributes);

    /// Writes a text `gap` points behind a name that drawText() has written into the same rectangle
    /// from the left. Nothing where the name and the text do not both fit in whole.
    void drawTextBehind(
        std::string_view name,
        std::string_view text,
        const Rect& rect,
        double gap,
        const TextAttributes& attributes);

private:
    DeviceRect toDevice(const Rect& rect) const;
    void paintMask(
        const BoxShape& shape,
        const Rect& frame,
        const RowColors& colors,
        std::span<const PixelRect> holes = {});
    std::vector<PixelRect> holes(std::span<const Rect> covered) const;
    RowColors rowColors(const Rect& frame, const VerticalGradient& gradient) const;

    std::optional<PixelCanvas> m_pixels;
    StretchMaskCache* m_masks = nullptr;
    LabelCache* m_collected = nullptr;
    const LabelCache* m_labels = nullptr;
    double m_scale;
    Point m_origin; ///< of the branch, in points of the picture
};

} // namespace tessera
