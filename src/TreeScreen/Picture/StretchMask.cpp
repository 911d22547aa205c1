// SPDX-License-Identifier: MIT
#include "TreeScreen/Picture/StretchMask.h"

#include <QImage>
#include <QPainter>
#include <QPainterPathStroker>

#include <cmath>

namespace tessera {

namespace {

/// Frames are placed to a 64th of a pixel; finer differences would only multiply the masks.
constexpr int kEdgeSubpixels = 64;
constexpr std::size_t kMaxMasks = 4096;

/// Pixels around a frame that a stroke along its edge, or the antialiasing, may touch.
int padding(double scale)
{
    return static_cast<int>(std::ceil(scale)) + 1;
}

int pixels(double points, double scale)
{
    return static_cast<int>(std::ceil(points * scale));
}

/// An edge in whole pixels and in 64ths of the pixel after it.
struct Edge {
    explicit Edge(double position)
    {
        const long fine = std::lround(position * kEdgeSubpixels);
        whole = static_cast<int>(fine >> 6);
        part = static_cast<int>(fine & (kEdgeSubpixels - 1));
    }

    int whole;
    int part;
};

StretchMask::Axis makeAxis(int exactLength, int lead, int trail)
{
    return exactLength != 0 ? StretchMask::Axis{exactLength, 0, false}
                            : StretchMask::Axis{lead, trail, true};
}

int length(const StretchMask::Axis& axis)
{
    return axis.lead + axis.trail + (axis.stretches ? 1 : 0);
}

/// Filled, because QPainter's own pen takes a coarse short cut for lines 1 pixel wide.
QPainterPath strokeOutline(const QPainterPath& path)
{
    QPainterPathStroker stroker;
    stroker.setWidth(1);
    stroker.setCapStyle(Qt::FlatCap);
    stroker.setJoinStyle(Qt::MiterJoin);
    return stroker.createStroke(path);
}

QImage paintCoverage(const BoxShape& shape, const Rect& frame, double scale, QSize size)
{
    QImage image(size, QImage::Format_Alpha8);
    image.fill(0);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(scale, scale);
    const QPainterPath path = shape.path(frame, shape.size);
    painter.fillPath(shape.paint == BoxShape::Paint::Fill ? path : strokeOutline(path), Qt::black);
    return image;
}

std::vector<StretchMask::Span> makeSpans(
    const std::uint8_t* coverage, int width, const StretchMask::Axis& across)
{
    std::vector<StretchMask::Span> spans;
    int begin = 0;
    while (begin < width) {
        int end = begin + 1;
        while (end < width && coverage[end] == coverage[begin]) {
            ++end;
        }
        if (coverage[begin] != 0) {
            const bool beginFromRight = begin > across.lead;
            const bool endFromRight = end > across.lead;
            spans.push_back(
                {beginFromRight ? width - begin : begin,
                 endFromRight ? width - end : end,
                 beginFromRight,
                 endFromRight,
                 coverage[begin]});
        }
        begin = end;
    }
    return spans;
}

} // namespace

StretchMask::StretchMask(const QImage& coverage, const Axis& across, const Axis& down)
    : m_down(down)
{
    for (int y = 0; y < coverage.height(); ++y) {
        m_rows.push_back(makeSpans(coverage.constScanLine(y), coverage.width(), across));
    }
}

const std::vector<StretchMask::Span>& StretchMask::rowSpans(int y, int height) const
{
    const int fromBottom = height - y;
    const int index
        = fromBottom <= m_down.trail ? length(m_down) - fromBottom : std::min(y, m_down.lead);
    return m_rows[static_cast<std::size_t>(index)];
}

StretchMaskCache::Placed StretchMaskCache::place(
    const BoxShape& shape, const DeviceRect& frame, double scale)
{
    const Edge left(frame.left);
    const Edge top(frame.top);
    const Edge right(frame.right);
    const Edge bottom(frame.bottom);
    const int pad = padding(scale);
    const PixelRect target{
        left.whole - pad, top.whole - pad, right.whole + 1 + pad, bottom.whole + 1 + pad};
    const int corners
        = 2 * pad + 2 + pixels(shape.foldCorner, scale) + pixels(shape.otherCorners, scale);
    const Key key{
        shape,
        scale,
        {left.part, top.part, right.part, bottom.part},
        target.width() > corners ? 0 : target.width(),
        target.height() > corners ? 0 : target.height()};
    auto found = m_masks.find(key);
    if (found == m_masks.end()) {
        if (m_masks.size() >= kMaxMasks) {
            m_masks.clear();
        }
        found = m_masks.emplace(key, makeMask(key)).first;
    }
    return {&found->second, target};
}

StretchMask StretchMaskCache::makeMask(const Key& key)
{
    const int pad = padding(key.scale);
    const int fold = pad + 1 + pixels(key.shape.foldCorner, key.scale);
    const int other = pad + 1 + pixels(key.shape.otherCorners, key.scale);
    const StretchMask::Axis across = makeAxis(key.width, other, fold);
    const StretchMask::Axis down = makeAxis(key.height, fold, other);
    const QSize size(length(across), length(down));
    const auto partOf = [&](std::size_t edge) {
        return static_cast<double>(key.edges.at(edge)) / kEdgeSubpixels;
    };
    const double left = pad + partOf(0);
    const double top = pad + partOf(1);
    const double right = size.width() - pad - 1 + partOf(2);
    const double bottom = size.height() - pad - 1 + partOf(3);
    const Rect frame{
        left / key.scale, top / key.scale, (right - left) / key.scale, (bottom - top) / key.scale};
    return {paintCoverage(key.shape, frame, key.scale, size), across, down};
}

std::size_t StretchMaskCache::KeyHash::operator()(const Key& key) const noexcept
{
    std::size_t hash = std::hash<const void*>{}(reinterpret_cast<const void*>(key.shape.path));
    const auto add = [&hash](std::size_t value) {
        constexpr std::size_t kMultiplier = 0x9E3779B97F4A7C15;
        hash = (hash ^ value) * kMultiplier;
        hash ^= hash >> 32;
    };
    add(std::hash<double>{}(key.shape.size));
    add(static_cast<std::size_t>(key.shape.paint));
    add(std::hash<double>{}(key.scale));
    for (const int edge : key.edges) {
        add(static_cast<std::size_t>(edge));
    }
    add(static_cast<std::size_t>(key.width));
    add(static_cast<std::size_t>(key.height));
    return hash;
}

} // namespace tessera
