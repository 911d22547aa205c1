// SPDX-License-Identifier: MIT
#include "Widgets/RoundedRect.h"

#include <QLineF>
#include <QtMath>

#include <algorithm>
#include <cmath>

namespace tessera {

namespace {

constexpr double kMinRadius = 1.0;
constexpr double kHalfTurn = 180;
constexpr double kFullTurn = 360;

QPointF toQt(Point point)
{
    return {point.x, point.y};
}

} // namespace

void addArcToPoint(QPainterPath& path, Point corner, Point end, double radius)
{
    const QLineF back(toQt(corner), path.currentPosition());
    const QLineF ahead(toQt(corner), toQt(end));
    // Counter-clockwise on screen, 0 to 360, from the line back to the line ahead.
    const double between = back.angleTo(ahead);
    const double opening = std::min(between, kFullTurn - between);
    const bool isStraight = opening == 0 || opening == kHalfTurn;
    if (radius <= 0 || isStraight || back.length() == 0 || ahead.length() == 0) {
        path.lineTo(back.p1());
        return;
    }
    const double halfOpening = qDegreesToRadians(opening / 2);
    QLineF bisector = back;
    bisector.setAngle(
        between < kHalfTurn ? back.angle() + opening / 2 : back.angle() - opening / 2);
    bisector.setLength(radius / std::sin(halfOpening));
    const QPointF center = bisector.p2();
    // The radius toward each tangent point stands at right angles to the tangent.
    const double turn = between < kHalfTurn ? -1 : 1;
    const double startAngle = back.angle() + turn * kHalfTurn / 2;
    const QRectF circle(center.x() - radius, center.y() - radius, 2 * radius, 2 * radius);
    path.arcTo(circle, startAngle, turn * (kHalfTurn - opening));
}

bool canRoundRect(const Rect& rect)
{
    return std::isnormal(rect.x) && std::isnormal(rect.y) && std::isnormal(rect.width)
        && std::isnormal(rect.height);
}

void addRoundedRectToPath(QPainterPath& path, const Rect& rect, double radius)
{
    if (!canRoundRect(rect)) {
        return;
    }
    if (radius < kMinRadius) {
        path.addRect(rect.x, rect.y, rect.width, rect.height);
        return;
    }
    const double fitting = std::min({radius, rect.width / 2, rect.height / 2});
    const double midX = rect.x + rect.width / 2;
    const double midY = rect.y + rect.height / 2;
    path.moveTo(rect.x, midY);
    addArcToPoint(path, {rect.x, rect.y}, {midX, rect.y}, fitting);
    addArcToPoint(path, {rect.right(), rect.y}, {rect.right(), midY}, fitting);
    addArcToPoint(path, {rect.right(), rect.bottom()}, {midX, rect.bottom()}, fitting);
    addArcToPoint(path, {rect.x, rect.bottom()}, {rect.x, midY}, fitting);
    path.closeSubpath();
}

} // namespace tessera
