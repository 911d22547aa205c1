// SPDX-License-Identifier: MIT
#include "TreeView/SpaceBox.h"

#include "Model/File.h"
#include "TreeView/BoxCanvas.h"
#include "TreeView/Label.h"
#include "TreeView/LevelMetrics.h"
#include "TreeView/Styles.h"
#include "TreeView/TreeBranch.h"

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

void paintUnaccountedBox(
    BoxCanvas& canvas, const TreeBranch& branch, const File& space, const Rect& rect)
{
    static const QColor grey
        = QColor::fromRgbF(kUnaccountedGrey, kUnaccountedGrey, kUnaccountedGrey);
    const double inset = levelInset(branch.level());
    paintPlainBox(canvas, space, rect.inset(inset, inset), grey, Styles::textAttributes());
}

} // namespace tessera
