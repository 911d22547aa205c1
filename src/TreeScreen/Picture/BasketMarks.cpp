// SPDX-License-Identifier: MIT
#include "TreeScreen/Picture/BasketMarks.h"

#include "Basket/Basket.h"
#include "Layout/MultiLayoutObject.h"
#include "TreeScreen/Picture/TreeBranch.h"

#include <QImage>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>
#include <vector>

namespace tessera {

namespace {

// In points. Light and dark together stand out from every color that a box may have.
constexpr double kLineDistance = 8;
constexpr double kOutlineWidth = 3;
constexpr double kInnerOutlineWidth = 1;
constexpr double kCornerSize = 9;
constexpr QColor kShade(0, 0, 0, 50);
constexpr QColor kLine(255, 255, 255, 90);
constexpr QColor kDarkOutline(0, 0, 0, 220);
constexpr QColor kLightOutline(255, 255, 255, 255);

QRectF toRectF(const Rect& rect)
{
    return {rect.x, rect.y, rect.width, rect.height};
}

void paintLines(QPainter& painter, const QRectF& box)
{
    painter.setPen(QPen(kLine, 1));
    const int count = static_cast<int>(std::ceil((box.width() + box.height()) / kLineDistance));
    for (int i = 0; i < count; ++i) {
        const double x = box.left() - box.height() + i * kLineDistance;
        painter.drawLine(QPointF(x, box.bottom()), QPointF(x + box.height(), box.top()));
    }
}

/// Inside the box, however narrow that is.
void paintOutline(QPainter& painter, const QRectF& box)
{
    const double inset = kOutlineWidth / 2;
    const QRectF line = box.adjusted(inset, inset, -inset, -inset);
    painter.setPen(QPen(kDarkOutline, kOutlineWidth, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    painter.drawRect(line);
    painter.setPen(QPen(kLightOutline, kInnerOutlineWidth));
    painter.drawRect(line);
}

void paintChosen(QPainter& painter, const QRectF& box)
{
    painter.save();
    painter.setClipRect(box);
    painter.fillRect(box, kShade);
    paintLines(painter, box);
    paintOutline(painter, box);
    painter.restore();
}

void paintCorner(QPainter& painter, const QRectF& box)
{
    const double size = std::min({kCornerSize, box.width(), box.height()});
    QPainterPath corner(box.topRight());
    corner.lineTo(box.right() - size, box.top());
    corner.lineTo(box.right(), box.top() + size);
    corner.closeSubpath();
    painter.save();
    painter.setClipRect(box);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(kDarkOutline, 2 * kInnerOutlineWidth));
    painter.setBrush(kLightOutline);
    painter.drawPath(corner);
    painter.restore();
}

bool isOrHoldsMarked(const File& node, const Basket& basket)
{
    return basket.isMarked(node) || basket.holdsMarked(node);
}

bool holdsMarked(const LayoutObject& box, const Basket& basket)
{
    if (box.ref != nullptr) {
        return basket.holdsMarked(*box.ref);
    }
    const auto* const group = dynamic_cast<const MultiLayoutObject*>(&box);
    return group != nullptr && std::ranges::any_of(group->refs, [&basket](const File* node) {
               return isOrHoldsMarked(*node, basket);
           });
}

/// Whether a branch shows what is in the box.
bool isOpen(const LayoutObject& box, const TreeBranch& branch)
{
    return std::ranges::any_of(branch.subBranches(), [&box](const auto& nested) {
        return toRectF(box.rect).contains(toRectF(nested->frame()).center());
    });
}

/// Returns the boxes, in the branch, that are chosen themselves.
std::vector<QRectF> paintMarksOf(QPainter& painter, const TreeBranch& branch, const Basket& basket)
{
    std::vector<QRectF> chosen;
    for (const auto& box : branch.layoutItems()) {
        const QRectF frame = toRectF(branch.convertToTreeView(box->rect));
        if (box->ref != nullptr && basket.isMarked(*box->ref)) {
            paintChosen(painter, frame);
            chosen.push_back(toRectF(box->rect));
        } else if (holdsMarked(*box, basket) && !isOpen(*box, branch)) {
            paintCorner(painter, frame);
        }
    }
    return chosen;
}

} // namespace

void paintBasketMarks(QImage& picture, const TreeBranch& top, const Basket& basket)
{
    if (basket.isEmpty()) {
        return;
    }
    QPainter painter(&picture);
    std::vector<const TreeBranch*> left{&top};
    while (!left.empty()) {
        const TreeBranch& branch = *left.back();
        left.pop_back();
        const std::vector<QRectF> chosen = paintMarksOf(painter, branch, basket);
        for (const auto& nested : branch.subBranches()) {
            // What is in a chosen box is chosen with it.
            const QPointF center = toRectF(nested->frame()).center();
            if (std::ranges::none_of(
                    chosen, [center](const QRectF& box) { return box.contains(center); })) {
                left.push_back(nested.get());
            }
        }
    }
}

} // namespace tessera
