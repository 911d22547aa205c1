// SPDX-License-Identifier: MIT
#pragma once

#include "TreeScreen/Picture/PixelRect.h"

#include <QRgb>

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

class QImage;

namespace tessera {

class StretchMask;

/// One glyph in pixels, `left` and `top` counted from the pen's place on the baseline.
struct GlyphMask {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;
    std::vector<std::uint8_t> coverage; ///< row by row
    std::vector<QRgb> colors; ///< premultiplied, of a glyph that is a picture; else empty
};

/// The opaque colour of each pixel row: one for all, or a gradient along y.
class RowColors {
public:
    explicit RowColors(QRgb flat)
        : m_from(flat)
        , m_to(flat)
    {
    }
    /// `from` at `fromY` and above, `to` at `toY` and below.
    RowColors(QRgb from, QRgb to, double fromY, double toY)
        : m_from(from)
        , m_to(to)
        , m_fromY(fromY)
        , m_toY(toY)
    {
    }

    QRgb at(int row) const;

private:
    QRgb m_from;
    QRgb m_to;
    double m_fromY = 0;
    double m_toY = 0;
};

/// Paints opaque colours, thinned by coverage, into the pixels of a 32-bit image. Everything the
/// boxes need comes down to runs of pixels in rows, which costs a fraction of what general paths
/// and pens do. Threads may paint into one image as long as their clips do not overlap.
class PixelCanvas {
public:
    /// The image must be Format_RGB32 or Format_ARGB32_Premultiplied, outlive the canvas and not
    /// be copied meanwhile.
    explicit PixelCanvas(QImage& image);

    const PixelRect& clip() const { return m_clip; }
    void setClip(const PixelRect& clip) { m_clip = clip; }

    void fillClip(QRgb color);
    void fillRect(const DeviceRect& rect, QRgb color);
    /// Nothing need be painted in `holes`, which must not overlap and go from left to right.
    void fillMask(
        const StretchMask& mask,
        const PixelRect& target,
        const RowColors& colors,
        std::span<const PixelRect> holes);
    /// `opacity` is 0 to 255. A glyph with colours of its own has no use for `color`.
    void fillGlyph(const GlyphMask& glyph, int penX, int baseline, QRgb color, unsigned opacity);

private:
    void fillSpan(
        int y, int begin, int end, QRgb color, unsigned coverage, std::span<const PixelRect> holes);
    QRgb* row(int y) const { return m_bits + static_cast<std::ptrdiff_t>(y) * m_pixelsPerRow; }

    QRgb* m_bits;
    std::ptrdiff_t m_pixelsPerRow;
    PixelRect m_clip;
};

} // namespace tessera
