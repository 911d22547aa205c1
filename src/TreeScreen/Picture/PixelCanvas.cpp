// SPDX-License-Identifier: MIT
#include "TreeScreen/Picture/PixelCanvas.h"

#include "TreeScreen/Picture/StretchMask.h"

#include <QImage>

#include <algorithm>
#include <cassert>
#include <cmath>

namespace tessera {

namespace {

constexpr unsigned kFull = 255;

/// Edges of rectangles are placed to a 256th of a pixel.
constexpr int kSubpixels = 256;

/// `over` at `coverage` of 255 and `under` at `rest`, rounded, in all four channels.
QRgb weighted(QRgb under, unsigned rest, QRgb over, unsigned coverage)
{
    constexpr std::uint32_t kOddBytes = 0x00FF00FF;
    constexpr std::uint32_t kHalves = 0x00800080;
    const auto mix = [=](std::uint32_t below, std::uint32_t above) {
        const std::uint32_t products = below * rest + above * coverage + kHalves;
        return ((products + ((products >> 8) & kOddBytes)) >> 8) & kOddBytes;
    };
    return mix(under & kOddBytes, over & kOddBytes)
        | mix((under >> 8) & kOddBytes, (over >> 8) & kOddBytes) << 8;
}

/// The opaque `over` at `coverage` of 255.
QRgb mixed(QRgb under, QRgb over, unsigned coverage)
{
    return weighted(under, kFull - coverage, over, coverage);
}

/// A premultiplied pixel at `opacity` of 255.
QRgb laidOver(QRgb under, QRgb over, unsigned opacity)
{
    // Rounded up, so that no sum is beyond full.
    const unsigned covered = (static_cast<unsigned>(qAlpha(over)) * opacity + kFull - 1) / kFull;
    return weighted(under, kFull - covered, over, opacity);
}

void fillRun(QRgb* begin, QRgb* end, QRgb color, unsigned coverage)
{
    if (coverage == kFull) {
        std::fill(begin, end, color);
        return;
    }
    std::transform(begin, end, begin, [=](QRgb under) { return mixed(under, color, coverage); });
}

/// One axis of a rectangle: the pixels that it touches and how much of each it covers, the clip
/// taken into account for the pixels alone.
struct Extent {
    Extent(double from, double to, int clipFrom, int clipTo)
        : fine0(std::lround(from * kSubpixels))
        , fine1(std::lround(to * kSubpixels))
        , begin(std::max(static_cast<int>(fine0 >> 8), clipFrom))
        , end(std::min(static_cast<int>((fine1 + kSubpixels - 1) >> 8), clipTo))
    {
    }

    /// 0 to 256.
    unsigned coverage(int pixel) const
    {
        const long from = std::max(fine0, static_cast<long>(pixel) * kSubpixels);
        const long to = std::min(fine1, (static_cast<long>(pixel) + 1) * kSubpixels);
        return static_cast<unsigned>(std::max(to - from, 0L));
    }

    long fine0;
    long fine1;
    int begin;
    int end;
};

unsigned product(unsigned coverageX, unsigned coverageY)
{
    constexpr unsigned kOne = kSubpixels * kSubpixels;
    return (coverageX * coverageY * kFull + kOne / 2) / kOne;
}

int blended(int from, int to, double part)
{
    return from + static_cast<int>(std::lround((to - from) * part));
}

} // namespace

QRgb RowColors::at(int row) const
{
    if (m_from == m_to) {
        return m_from;
    }
    const double part = std::clamp((row + 0.5 - m_fromY) / (m_toY - m_fromY), 0.0, 1.0);
    return qRgb(
        blended(qRed(m_from), qRed(m_to), part),
        blended(qGreen(m_from), qGreen(m_to), part),
        blended(qBlue(m_from), qBlue(m_to), part));
}

PixelCanvas::PixelCanvas(QImage& image)
    : m_bits(reinterpret_cast<QRgb*>(image.bits()))
    , m_pixelsPerRow(image.bytesPerLine() / static_cast<qsizetype>(sizeof(QRgb)))
    , m_clip{0, 0, image.width(), image.height()}
{
    assert(
        image.format() == QImage::Format_RGB32
        || image.format() == QImage::Format_ARGB32_Premultiplied);
}

void PixelCanvas::fillClip(QRgb color)
{
    for (int y = m_clip.top; y < m_clip.bottom; ++y) {
        std::fill(row(y) + m_clip.left, row(y) + m_clip.right, color);
    }
}

void PixelCanvas::fillRect(const DeviceRect& rect, QRgb color)
{
    const Extent across(rect.left, rect.right, m_clip.left, m_clip.right);
    const Extent down(rect.top, rect.bottom, m_clip.top, m_clip.bottom);
    if (across.begin >= across.end) {
        return;
    }
    // Only the outermost pixels can be covered in part.
    const int innerBegin = across.begin + 1;
    const int innerEnd = std::max(across.end - 1, innerBegin);
    for (int y = down.begin; y < down.end; ++y) {
        const unsigned coverageY = down.coverage(y);
        const auto cover = [&](int from, int to) {
            fillRun(row(y) + from, row(y) + to, color, product(across.coverage(from), coverageY));
        };
        cover(across.begin, innerBegin);
        if (innerBegin < innerEnd) {
            cover(innerBegin, innerEnd);
        }
        if (innerEnd < across.end) {
            cover(innerEnd, across.end);
        }
    }
}

void PixelCanvas::fillMask(
    const StretchMask& mask,
    const PixelRect& target,
    const RowColors& colors,
    std::span<const PixelRect> holes)
{
    const PixelRect visible = target.intersected(m_clip);
    if (visible.isEmpty()) {
        return;
    }
    for (int y = visible.top; y < visible.bottom; ++y) {
        const auto& spans = mask.rowSpans(y - target.top, target.height());
        if (spans.empty()) {
            continue;
        }
        const QRgb color = colors.at(y);
        for (const StretchMask::Span& span : spans) {
            const int begin
                = span.beginFromRight ? target.right - span.begin : target.left + span.begin;
            const int end = span.endFromRight ? target.right - span.end : target.left + span.end;
            fillSpan(
                y,
                std::max(begin, visible.left),
                std::min(end, visible.right),
                color,
                span.coverage,
                holes);
        }
    }
}

void PixelCanvas::fillSpan(
    int y, int begin, int end, QRgb color, unsigned coverage, std::span<const PixelRect> holes)
{
    QRgb* pixels = row(y);
    for (const PixelRect& hole : holes) {
        if (y < hole.top || y >= hole.bottom || hole.right <= begin || hole.left >= end) {
            continue;
        }
        if (begin < hole.left) {
            fillRun(pixels + begin, pixels + hole.left, color, coverage);
        }
        begin = hole.right;
    }
    if (begin < end) {
        fillRun(pixels + begin, pixels + end, color, coverage);
    }
}

void PixelCanvas::fillGlyph(
    const GlyphMask& glyph, int penX, int baseline, QRgb color, unsigned opacity)
{
    const int left = penX + glyph.left;
    const int top = baseline + glyph.top;
    const PixelRect visible
        = PixelRect{left, top, left + glyph.width, top + glyph.height}.intersected(m_clip);
    for (int y = visible.top; y < visible.bottom; ++y) {
        const std::size_t rowStart
            = static_cast<std::size_t>(y - top) * static_cast<std::size_t>(glyph.width);
        QRgb* pixels = row(y);
        for (int x = visible.left; x < visible.right; ++x) {
            const std::size_t place = rowStart + static_cast<std::size_t>(x - left);
            const unsigned covered = glyph.coverage[place];
            if (covered == 0) {
                continue;
            }
            pixels[x] = glyph.colors.empty() ? mixed(pixels[x], color, covered * opacity / kFull)
                                             : laidOver(pixels[x], glyph.colors[place], opacity);
        }
    }
}

} // namespace tessera
