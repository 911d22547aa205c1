// SPDX-License-Identifier: MIT
#include "TreeScreen/Zoom/ZoomGeometry.h"

#include "Layout/BoxMetrics.h"

namespace tessera {

namespace {

/// In single precision, as the scales are that it is multiplied by.
constexpr auto kMargin = static_cast<float>(kTopLevelMargin);

/// What counts as the inside of a box that has no level in it: below the name, where it has one.
constexpr Insets kInsideBelowName{3, 10, 3, 3};
constexpr Insets kInsideWithoutName{2, 2, 2, 2};

/// A folder without a box grows out of a rectangle of this size.
constexpr double kStandInWidth = 10;
constexpr double kStandInHeight = 7;

/// Small content sits slightly inside its folder's frame.
constexpr double kInsideFrame = 0.975;
constexpr double kShrunkOffset = 1;

Rect insideOfFolder(const Rect& box)
{
    if (hasRoomForLevel(box)) {
        return nestedLevelFrame(box);
    }
    return hasRoomForLabel(box) ? kInsideBelowName.of(box) : kInsideWithoutName.of(box);
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
        inner.x - kMargin * scaleX, (bounds.height - inner.bottom()) - kMargin * scaleY);
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
    result.translate(kTopLevelMargin, kTopLevelMargin);
    result.scale(scaleX, scaleY);
    return result;
}

} // namespace

ZoomGeometry::ZoomGeometry(const Rect& box, Box stands, const Rect& bounds)
    : inner(innerRect(box, stands))
    , shrunk(shrink(inner, bounds.inset(kTopLevelMargin, kTopLevelMargin), bounds))
    , enlarged(enlarge(inner, bounds.inset(kTopLevelMargin, kTopLevelMargin), bounds))
{
}

QTransform ZoomGeometry::inView(const QTransform& transform, double viewHeight)
{
    const QTransform flip(1, 0, 0, -1, 0, viewHeight);
    return flip * transform * flip;
}

} // namespace tessera
