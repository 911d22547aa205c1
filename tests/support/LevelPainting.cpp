// SPDX-License-Identifier: MIT
#include "support/LevelPainting.h"

#include "Layout/MultiLayoutObject.h"
#include "TreeScreen/Picture/BoxCanvas.h"
#include "TreeScreen/Picture/LabelCache.h"
#include "TreeScreen/Picture/LevelPainter.h"
#include "TreeScreen/Picture/StretchMask.h"
#include "TreeScreen/Picture/Styles.h"
#include "TreeScreen/Picture/TreeBranch.h"

#include <QImage>
#include <QPainter>

#include <algorithm>
#include <cmath>
#include <memory>
#include <utility>
#include <vector>

namespace tessera::test {

namespace {

std::unique_ptr<LayoutObject> copyOf(const LayoutObject& item)
{
    const auto* const group = dynamic_cast<const MultiLayoutObject*>(&item);
    if (group == nullptr) {
        auto copy = std::make_unique<LayoutObject>();
        copy->ref = item.ref;
        copy->rect = item.rect;
        return copy;
    }
    auto copy = std::make_unique<MultiLayoutObject>();
    copy->refs = group->refs;
    copy->rect = group->rect;
    return copy;
}

/// The same boxes with nothing nested in them.
std::unique_ptr<TreeBranch> aloneAt(const Rect& frame, const TreeBranch& branch)
{
    std::vector<std::unique_ptr<LayoutObject>> items;
    for (const auto& item : branch.layoutItems()) {
        items.push_back(copyOf(*item));
    }
    auto alone = std::make_unique<TreeBranch>(frame);
    alone->setLevel(branch.level());
    alone->setLayoutItems(std::move(items));
    return alone;
}

int devicePixels(double points, double scale)
{
    return static_cast<int>(std::ceil(points * scale));
}

} // namespace

void paintWholeLevel(QPainter& painter, const TreeBranch& branch, FolderTitles titles)
{
    const QTransform device = painter.deviceTransform();
    const double scale = std::hypot(device.m11(), device.m12());
    // The layer lies on whole pixels; the branch within it need not.
    const Rect frame{
        (device.dx() - std::floor(device.dx())) / scale,
        (device.dy() - std::floor(device.dy())) / scale,
        branch.frame().width,
        branch.frame().height};
    QImage layer(
        devicePixels(frame.right(), scale),
        devicePixels(frame.bottom(), scale),
        QImage::Format_ARGB32_Premultiplied);
    layer.fill(Qt::transparent);
    layer.setDevicePixelRatio(scale);
    const std::unique_ptr<TreeBranch> alone = aloneAt(frame, branch);
    LabelCache labels;
    StretchMaskCache masks;
    const int pixelSize = Styles::textAttributes().font.pixelSize();
    labels.setFontSize(std::max(static_cast<int>(std::lround(pixelSize * scale)), 1));
    for (BoxCanvas canvas :
         {BoxCanvas(labels, scale), BoxCanvas(PixelCanvas(layer), masks, labels, scale)}) {
        canvas.enter(frame);
        paintLevel(canvas, *alone, titles);
    }
    painter.drawImage(QPointF(-frame.x, -frame.y), layer);
}

} // namespace tessera::test
