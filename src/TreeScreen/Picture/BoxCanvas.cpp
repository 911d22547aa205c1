// SPDX-License-Identifier: MIT
#include "TreeScreen/Picture/BoxCanvas.h"

#include "Layout/BoxMetrics.h"
#include "TreeScreen/Picture/LabelCache.h"
#include "TreeScreen/Picture/Styles.h"
#include "Widgets/RoundedRect.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace tessera {

namespace {

QPainterPath roundedRectPath(const Rect& frame, double radius)
{
    QPainterPath path;
    addRoundedRectToPath(path, frame, radius);
    return path;
}

BoxShape roundedRectShape(double radius, BoxShape::Paint paint)
{
    return {&roundedRectPath, radius, paint, radius, radius};
}

PixelRect rounded(const DeviceRect& rect)
{
    const auto round = [](double edge) { return static_cast<int>(std::lround(edge)); };
    return {round(rect.left), round(rect.top), round(rect.right), round(rect.bottom)};
}

/// Where a line goes: its glyphs up to `cut`, and the ellipsis there when it is cut.
struct CutLine {
    int cut;
    int width;
    bool isCut;
};

CutLine cutToWidth(const ShapedLabel& label, const ShapedLabel& ellipsis, int width)
{
    if (label.width() <= width || label.runsLeftward) {
        return {label.width(), label.width(), false};
    }
    const int room = width - ellipsis.width();
    const auto beyond = std::upper_bound(label.ends.begin(), label.ends.end(), room);
    const int cut = beyond == label.ends.begin() ? 0 : *(beyond - 1);
    return {cut, cut + ellipsis.width(), true};
}

/// Paints the glyphs whose pen stands before `cut`.
void paintGlyphs(PixelCanvas& pixels, const ShapedLabel& label, Point pen, int cut, QColor color)
{
    const auto opacity = static_cast<unsigned>(color.alpha());
    const QRgb opaque = color.rgb();
    for (const ShapedLabel::Glyph& glyph : label.glyphs) {
        if (glyph.penX < cut) {
            pixels.fillGlyph(
                *glyph.mask,
                static_cast<int>(pen.x) + glyph.penX,
                static_cast<int>(pen.y) + glyph.offsetY,
                opaque,
                opacity);
        }
    }
}

} // namespace

BoxCanvas::BoxCanvas(LabelCache& labels, double scale)
    : m_collected(&labels)
    , m_labels(&labels)
    , m_scale(scale)
{
}

BoxCanvas::BoxCanvas(
    const PixelCanvas& pixels, StretchMaskCache& masks, const LabelCache& labels, double scale)
    : m_pixels(pixels)
    , m_masks(&masks)
    , m_labels(&labels)
    , m_scale(scale)
{
}

bool BoxCanvas::misses(const Rect& rect) const
{
    if (!m_pixels) {
        return !hasRoomForLabel(rect);
    }
    // A stroke may reach a point beyond its box.
    const DeviceRect device = toDevice(rect.inset(-1, -1));
    const PixelRect& clip = m_pixels->clip();
    return device.bottom <= clip.top || device.top >= clip.bottom || device.right <= clip.left
        || device.left >= clip.right;
}

void BoxCanvas::enter(const Rect& frame)
{
    if (m_pixels) {
        const DeviceRect device = toDevice(frame);
        const PixelRect touched{
            static_cast<int>(std::floor(device.left)),
            static_cast<int>(std::floor(device.top)),
            static_cast<int>(std::ceil(device.right)),
            static_cast<int>(std::ceil(device.bottom))};
        m_pixels->setClip(m_pixels->clip().intersected(touched));
    }
    m_origin = {m_origin.x + frame.x, m_origin.y + frame.y};
}

void BoxCanvas::fillRect(const Rect& rect, const QColor& color)
{
    if (m_pixels) {
        m_pixels->fillRect(toDevice(rect), color.rgb());
    }
}

void BoxCanvas::fillRoundedRect(
    const Rect& rect, double radius, const QColor& color, std::span<const Rect> covered)
{
    if (m_pixels && canRoundRect(rect)) {
        paintMask(
            roundedRectShape(radius, BoxShape::Paint::Fill),
            rect,
            RowColors(color.rgb()),
            holes(covered));
    }
}

void BoxCanvas::fillRoundedRect(const Rect& rect, double radius, const VerticalGradient& gradient)
{
    if (canRoundRect(rect)) {
        paintShape(roundedRectShape(radius, BoxShape::Paint::Fill), rect, gradient);
    }
}

void BoxCanvas::strokeRoundedRect(const Rect& rect, double radius, const QColor& color)
{
    if (canRoundRect(rect)) {
        paintShape(roundedRectShape(radius, BoxShape::Paint::Stroke), rect, color);
    }
}

void BoxCanvas::paintShape(const BoxShape& shape, const Rect& frame, const QColor& color)
{
    paintMask(shape, frame, RowColors(color.rgb()));
}

void BoxCanvas::paintShape(
    const BoxShape& shape, const Rect& frame, const VerticalGradient& gradient)
{
    paintMask(shape, frame, rowColors(frame, gradient));
}

void BoxCanvas::drawText(std::string_view name, const Rect& rect, const TextAttributes& attributes)
{
    const PixelRect box = rounded(toDevice(rect));
    if (m_collected != nullptr) {
        m_collected->prepare(name, box.width());
        return;
    }
    const ShapedLabel* label = m_labels->find(name, box.width());
    if (label == nullptr) {
        return;
    }
    PixelCanvas clipped = *m_pixels;
    clipped.setClip(clipped.clip().intersected(box));
    const CutLine line = cutToWidth(*label, m_labels->ellipsis(), box.width());
    const int slack = std::max(box.width() - line.width, 0);
    const int left = box.left + (attributes.alignment == Qt::AlignHCenter ? slack / 2 : 0);
    const int baseline = box.top + m_labels->baseline(*label, box.height());
    const auto penAt = [&](int x) {
        return Point{static_cast<double>(x), static_cast<double>(baseline)};
    };
    paintGlyphs(clipped, *label, penAt(left), line.cut, attributes.foreground);
    if (line.isCut) {
        paintGlyphs(
            clipped,
            m_labels->ellipsis(),
            penAt(left + line.cut),
            line.width,
            attributes.foreground);
    }
}

void BoxCanvas::drawTextBehind(
    std::string_view name,
    std::string_view text,
    const Rect& rect,
    double gap,
    const TextAttributes& attributes)
{
    const PixelRect box = rounded(toDevice(rect));
    const ShapedLabel* const whole = m_labels->find(name, std::numeric_limits<int>::max());
    const int begin = box.left + (whole == nullptr ? 0 : whole->width())
        + static_cast<int>(std::lround(gap * m_scale));
    const int room = box.right - begin;
    if (whole == nullptr || room <= 0) {
        return;
    }
    if (m_collected != nullptr) {
        m_collected->prepare(text, room);
        return;
    }
    const ShapedLabel* const label = m_labels->find(text, room);
    if (label == nullptr || label->width() > room) {
        return;
    }
    PixelCanvas clipped = *m_pixels;
    clipped.setClip(clipped.clip().intersected(box));
    const int baseline = box.top + m_labels->baseline(*whole, box.height());
    paintGlyphs(
        clipped,
        *label,
        Point{static_cast<double>(begin), static_cast<double>(baseline)},
        label->width(),
        attributes.foreground);
}

DeviceRect BoxCanvas::toDevice(const Rect& rect) const
{
    const double left = (m_origin.x + rect.x) * m_scale;
    const double top = (m_origin.y + rect.y) * m_scale;
    return {left, top, left + rect.width * m_scale, top + rect.height * m_scale};
}

std::vector<PixelRect> BoxCanvas::holes(std::span<const Rect> covered) const
{
    std::vector<PixelRect> holes;
    holes.reserve(covered.size());
    for (const Rect& rect : covered) {
        const DeviceRect device = toDevice(rect);
        const PixelRect whole{
            static_cast<int>(std::ceil(device.left)),
            static_cast<int>(std::ceil(device.top)),
            static_cast<int>(std::floor(device.right)),
            static_cast<int>(std::floor(device.bottom))};
        if (!whole.intersected(m_pixels->clip()).isEmpty()) {
            holes.push_back(whole);
        }
    }
    std::sort(holes.begin(), holes.end(), [](const PixelRect& a, const PixelRect& b) {
        return a.left < b.left;
    });
    return holes;
}

void BoxCanvas::paintMask(
    const BoxShape& shape,
    const Rect& frame,
    const RowColors& colors,
    std::span<const PixelRect> holes)
{
    if (m_pixels) {
        const StretchMaskCache::Placed placed = m_masks->place(shape, toDevice(frame), m_scale);
        m_pixels->fillMask(*placed.mask, placed.target, colors, holes);
    }
}

RowColors BoxCanvas::rowColors(const Rect& frame, const VerticalGradient& gradient) const
{
    const DeviceRect device = toDevice(frame);
    return {
        gradient.top.rgb(),
        gradient.bottom.rgb(),
        device.top,
        device.top + device.height() * gradient.endFraction};
}

} // namespace tessera
