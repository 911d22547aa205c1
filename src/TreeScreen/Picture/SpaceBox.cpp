// SPDX-License-Identifier: MIT
#include "TreeScreen/Picture/SpaceBox.h"

#include "Layout/BoxMetrics.h"
#include "Model/File.h"
#include "TreeScreen/Picture/BoxCanvas.h"
#include "TreeScreen/Picture/Label.h"
#include "TreeScreen/Picture/Styles.h"

namespace tessera {

namespace {

constexpr float kUnaccountedGrey = 0.6F;

void paintPlainBox(
    BoxCanvas& canvas,
    const File& space,
    const Rect& box,
    const QColor& color,
    const TextAttributes& attributes)
{
    if (isTooSmall(box)) {
        return;
    }
    canvas.fillRect(box, color);
    drawCenteredLabel(canvas, space, box, attributes);
}

} // namespace

void paintFreeSpaceBox(BoxCanvas& canvas, const File& freeSpace, const Rect& rect)
{
    paintPlainBox(canvas, freeSpace, rect, Qt::black, Styles::selectedTextAttributes());
}

void paintUnaccountedBox(BoxCanvas& canvas, const File& space, const Rect& rect, long level)
{
    static const QColor grey
        = QColor::fromRgbF(kUnaccountedGrey, kUnaccountedGrey, kUnaccountedGrey);
    const double inset = levelInset(level);
    paintPlainBox(canvas, space, rect.inset(inset, inset), grey, Styles::textAttributes());
}

} // namespace tessera
