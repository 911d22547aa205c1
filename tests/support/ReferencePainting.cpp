// SPDX-License-Identifier: MIT
#include "support/ReferencePainting.h"

#include "Layout/MultiLayoutObject.h"
#include "Model/Folder.h"
#include "TreeScreen/Picture/BranchPalette.h"
#include "TreeScreen/Picture/TreeBranch.h"
#include "Widgets/ColorHelper.h"
#include "Widgets/RoundedRect.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace tessera::test {

namespace {

const QColor kGrey = QColor::fromRgbF(0.25F, 0.25F, 0.25F);

bool tooSmall(const Rect& r)
{
    return r.width < 1 || r.height < 1;
}

void stroke(QPainter& painter, const QPainterPath& path, const QColor& color)
{
    // Not strokePath(): QPainter's own pen takes a coarse short cut for lines 1 pixel wide.
    QPainterPathStroker stroker(QPen(color, 1, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin));
    painter.fillPath(stroker.createStroke(path), color);
}

void fillRounded(QPainter& painter, const Rect& r, double radius, const QColor& color)
{
    QPainterPath path;
    addRoundedRectToPath(path, r, radius);
    painter.fillPath(path, color);
}

void paintFolder(QPainter& painter, const Folder& folder, const Rect& rect, long level)
{
    const double i = level == 0 ? 2 : 1;
    Rect r = rect.inset(i, i);
    if (tooSmall(r)) {
        return;
    }
    const double radius = rect.area() < 200 ? 1 : 2;
    if (level == 0) {
        fillRounded(painter, r, radius, folderBoxColor(folder, level));
        return;
    }
    fillRounded(painter, r, radius, Qt::black);
    r = r.inset(1, 1);
    if (!tooSmall(r)) {
        fillRounded(painter, r, radius - 1, folderBoxColor(folder, level));
    }
}

QPainterPath foldPath(double right, double top, double c, double f)
{
    QPainterPath path(QPointF(right - c - f, top));
    if (c <= 9) {
        path.lineTo(right - c - f, top + c - f);
        path.lineTo(right, top + c - f);
        return path;
    }
    const double k = std::floor(c / 5);
    path.cubicTo(
        right - c + k, top + k, right - c + k, top + c - 2 * k, right - c + k, top + c - k);
    path.cubicTo(right - c + 2 * k, top + c - k, right - k, top + c - k, right, top + c);
    return path;
}

QLinearGradient pageBrush(const Rect& r, double c, bool isSelected)
{
    const QColor from
        = isSelected ? QColor::fromRgbF(0.1F, 0.35F, 0.74F) : QColor::fromRgbF(0.9F, 0.9F, 0.9F);
    const QColor to = isSelected ? QColor::fromRgbF(0.22F, 0.459F, 0.843F) : QColor(Qt::white);
    QLinearGradient gradient(r.x, r.y, r.x, r.bottom());
    gradient.setColorAt(0, c < 7 ? to : from);
    gradient.setColorAt(0.5, to);
    return gradient;
}

void paintDocument(QPainter& painter, const File& document, const Rect& rect, long level)
{
    const double i = level == 0 ? 2 : 1;
    const double e = level == 0 ? 0 : 0.5;
    const Rect r = rect.inset(i, i);
    if (tooSmall(r)) {
        return;
    }
    const double c = std::min(std::floor(std::min(r.width, r.height) / 3.5), 30.0);
    const Rect page = r.inset(e, e);
    QPainterPath outline(QPointF(page.x, page.y));
    outline.lineTo(page.right() - c, page.y);
    outline.lineTo(page.right(), page.y + c);
    outline.lineTo(page.right(), page.bottom());
    outline.lineTo(page.x, page.bottom());
    outline.lineTo(page.x, page.y + 1e-5); // not quite closed: two flat ends, no join
    painter.fillPath(outline, pageBrush(r, c, document.selected()));
    if (level > 0) {
        stroke(painter, outline, kGrey);
    }
    const double f = level == 0 ? 0.5 : 0;
    if (c + f > 0) {
        stroke(painter, foldPath(page.right(), page.y, c, f), kGrey);
    }
}

void strokeGrid(QPainter& painter, const Rect& r, const QColor& color)
{
    const auto cells = [](double extent) {
        return extent < 5 ? 1 : static_cast<int>(std::clamp(std::floor(extent / 7), 2.0, 10.0));
    };
    const int rows = cells(r.height);
    const int columns = cells(r.width);
    const auto lines = [&](double offset) {
        QPainterPath path;
        for (int j = 1; j < rows; ++j) {
            const auto y = static_cast<float>(r.y + std::ceil(j * (r.height / rows)));
            path.moveTo(r.x + 1.5, static_cast<double>(y) + offset);
            path.lineTo(r.right() - 1.5, static_cast<double>(y) + offset);
        }
        return path;
    };
    stroke(painter, lines(-0.5), shadowWithLevel(color, 0.6));
    stroke(painter, lines(0.5), highlightWithLevel(color, 0.65));
    QPainterPath uprights;
    for (int j = 1; j < columns; ++j) {
        const auto x = static_cast<float>(r.x + std::floor(j * (r.width / columns)) + 0.5);
        uprights.moveTo(static_cast<double>(x), r.y + 1.5);
        uprights.lineTo(static_cast<double>(x), r.bottom() - 1.5);
    }
    stroke(painter, uprights, highlightWithLevel(color, 0.15));
}

void paintGroup(QPainter& painter, const MultiLayoutObject& group, long level)
{
    const double i = level == 0 ? 2 : 1;
    const double e = level == 0 ? 0 : 0.5;
    const Rect r = group.rect.inset(i + e, i + e);
    if (tooSmall(r)) {
        return;
    }
    const double radius = group.rect.area() < 200 ? 1 : 2;
    const QColor color = boxColor(*group.refs.back(), level);
    fillRounded(painter, r, radius, color);
    if (level > 0) {
        QPainterPath outline;
        addRoundedRectToPath(outline, r, radius);
        stroke(painter, outline, shadowWithLevel(color, 0.6));
    }
    strokeGrid(painter, group.rect.inset(i, i), color);
}

void paintPlain(QPainter& painter, const Rect& rect, double inset, const QColor& color)
{
    const Rect r = rect.inset(inset, inset);
    if (!tooSmall(r)) {
        painter.fillRect(QRectF(r.x, r.y, r.width, r.height), color);
    }
}

void paintItem(QPainter& painter, const LayoutObject& item, long level)
{
    if (item.ref == nullptr) {
        paintGroup(painter, dynamic_cast<const MultiLayoutObject&>(item), level);
    } else if (const auto* folder = nodeCast<Folder>(item.ref)) {
        paintFolder(painter, *folder, item.rect, level);
    } else if (item.ref->type() == NodeType::Document) {
        paintDocument(painter, *item.ref, item.rect, level);
    } else if (item.ref->type() == NodeType::FreeSpace) {
        paintPlain(painter, item.rect, 0, Qt::black);
    } else {
        paintPlain(painter, item.rect, level == 0 ? 2 : 1, QColor::fromRgbF(0.6F, 0.6F, 0.6F));
    }
}

} // namespace

void paintReferenceLevel(QPainter& painter, const TreeBranch& branch)
{
    for (const auto& item : branch.layoutItems()) {
        paintItem(painter, *item, branch.level());
    }
}

} // namespace tessera::test
