// SPDX-License-Identifier: MIT
#include "TreeScreen/Picture/FolderBox.h"

#include "Layout/BoxMetrics.h"
#include "Model/Folder.h"
#include "TreeScreen/Picture/BoxCanvas.h"
#include "TreeScreen/Picture/BranchPalette.h"
#include "TreeScreen/Picture/Styles.h"

#include <array>

namespace tessera {

namespace {

constexpr double kLabelLeft = 8.0;
constexpr double kLabelTop = 7.0;
constexpr double kLabelMargins = 11.0;
constexpr double kLabelHeight = 14.0;
constexpr double kShadowDrop = 1.0;

void fillBox(
    BoxCanvas& canvas,
    const Rect& box,
    double radius,
    long level,
    const QColor& color,
    std::span<const Rect> covered)
{
    if (level == 0) {
        canvas.fillRoundedRect(box, radius, color, covered);
        return;
    }
    const Rect inner = box.inset(kRimWidth, kRimWidth);
    if (isTooSmall(inner)) {
        canvas.fillRoundedRect(box, radius, QColor(Qt::black));
        return;
    }
    const std::array filled{inner.inset(radius, radius)};
    canvas.fillRoundedRect(box, radius, QColor(Qt::black), filled);
    canvas.fillRoundedRect(inner, radius - kRimWidth, color, covered);
}

void drawLabel(BoxCanvas& canvas, const Rect& box, const Folder& folder)
{
    if (!hasRoomForLabel(box)) {
        return;
    }
    const Rect text{box.x + kLabelLeft, box.y + kLabelTop, box.width - kLabelMargins, kLabelHeight};
    if (folder.selected()) {
        canvas.drawText(folder.name(), text, Styles::selectedFolderTextAttributes());
        return;
    }
    canvas.drawText(
        folder.name(), text.translated(0, kShadowDrop), Styles::folderShadowTextAttributes());
    canvas.drawText(folder.name(), text, Styles::folderTextAttributes());
}

} // namespace

void paintFolderBox(
    BoxCanvas& canvas,
    const Folder& folder,
    const Rect& rect,
    long level,
    std::span<const Rect> covered)
{
    const Rect box = rect.inset(levelInset(level), levelInset(level));
    if (isTooSmall(box)) {
        return;
    }
    fillBox(canvas, box, cornerRadius(rect.area()), level, folderBoxColor(folder, level), covered);
    drawLabel(canvas, box, folder);
}

} // namespace tessera
