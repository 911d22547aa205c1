// SPDX-License-Identifier: MIT
#include "TreeScreen/Zoom/ZoomGeometry.h"

namespace tessera {

namespace {

/// Margin between the view's bounds and the top level's boxes.
constexpr float kTopInset = 3.0F;

/// Boxes beyond this size show a level of their own, below their header.
constexpr double kNestedWidth = 56;
constexpr double kNestedHeight = 72;
/// Boxes beyond this size have a header at least.
constexpr double kHeaderWidth = 30;
constexpr double kHeaderHeight = 20;

/// A folder without a box grows out of a rectangle of this size.
constexpr double kStandInWidth = 10;
constexpr double kStandInHeight = 7;

/// Small content sits slightly inside its folder's frame, and moved this far lines up with the
/// margin of the top level.
constexpr double kInsideFrame = 0.975;
constexpr double kShrunkOffset = 1;
constexpr double kEnlargedOffset = 3;

Rect insideOfFolder(const Rect& box)
{
    if (box.width > kNestedWidth && box.height > kNestedHeight) {
        return {box.x + 8, box.y + 24, box.width - 16, box.height - 32};
    }
    if (box.height > kHeaderHeight && box.width > kHeaderWidth) {
        return {box.x + 3, box.y + 10, box.width - 6, box.height - 13};
    }
    return {box.x + 2, box.y + 2, box.width - 4, box.height - 4};
}

Rect standIn(const Rect& box)
{
    return {
        box.x + (box.width - kStandInWidth) * 0.5,
        box.y + (box.height - kStandInHeight) * 0.5,
        kStandInWidth,
        kStandInHeight};
}

Rect innerRect(const Rect& box, ZoomGeometry::Box stands)
{
    if (stands == ZoomGeometry::Box::Ancestor) {
        return standIn(box);
    }
    const Rect inside = insideOfFolder(box);
    return inside.width > 0 && inside.height > 0 ? inside : standIn(box);
}

QTransform shrink(const Rect& inner, const Rect& area, const Rect& bounds)
{
    const auto scaleX = static_cast<float>(inner.width / area.width);
    const auto scaleY = static_cast<float>(inner.height / area.height);
    QTransform result;
    result.translate(
        inner.x - kTopInset * scaleX, (bounds.height - inner.bottom()) - kTopInset * scaleY);
    result.translate(kShrunkOffset, kShrunkOffset);
    result.scale(scaleX, scaleY);
    result.scale(kInsideFrame, kInsideFrame);
    return result;
}

QTransform enlarge(const Rect& inner, const Rect& area, const Rect& bounds)
{
    const auto scaleX = static_cast<float>(area.width / inner.width);
    const auto scaleY = static_cast<float>(area.height / inner.height);
    QTransform result;
    result.translate(
        -(inner.x * scaleX - bounds.x * scaleX),
        -(bounds.height * scaleY - (inner.height * scaleY + inner.y * scaleY)));
    result.translate(kEnlargedOffset, kEnlargedOffset);
    result.scale(scaleX, scaleY);
    return result;
}

} // namespace

ZoomGeometry::ZoomGeometry(const Rect& box, Box stands, const Rect& bounds)
    : inner(innerRect(box, stands))
    , shrunk(shrink(inner, bounds.inset(kTopInset, kTopInset), bounds))
    , enlarged(enlarge(inner, bounds.inset(kTopInset, kTopInset), bounds))
{
}

QTransform ZoomGeometry::inView(const QTransform& transform, double viewHeight)
{
    const QTransform flip(1, 0, 0, -1, 0, viewHeight);
    return flip * transform * flip;
}

} // namespace tessera
