// SPDX-License-Identifier: MIT
#include "TreeScreen/Picture/FolderBox.h"

#include "Language/SizeText.h"
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
constexpr double kGapBeforeSize = 6.0;

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

void drawName(BoxCanvas& canvas, const Rect& text, const Folder& folder)
{
    if (folder.selected()) {
        canvas.drawText(folder.name(), text, Styles::selectedFolderTextAttributes());
        return;
    }
    canvas.drawText(
        folder.name(), text.translated(0, kShadowDrop), Styles::folderShadowTextAttributes());
    canvas.drawText(folder.name(), text, Styles::folderTextAttributes());
}

/// It begins where the name ends, which no zoom changes: at the right edge it would run along the
/// box while that grows.
void drawSize(BoxCanvas& canvas, const Rect& text, const Folder& folder)
{
    canvas.drawTextBehind(
        folder.name(),
        sizeText(folder.totalAllocation()).toStdString(),
        text,
        kGapBeforeSize,
        folder.selected() ? Styles::selectedFolderSizeAttributes()
                          : Styles::folderSizeAttributes());
}

void drawTitle(BoxCanvas& canvas, const Rect& box, const Folder& folder, FolderTitles titles)
{
    if (!hasRoomForLabel(box)) {
        return;
    }
    const Rect text{box.x + kLabelLeft, box.y + kLabelTop, box.width - kLabelMargins, kLabelHeight};
    drawName(canvas, text, folder);
    if (titles == FolderTitles::NamesAndSizes) {
        drawSize(canvas, text, folder);
    }
}

} // namespace

void paintFolderBox(
    BoxCanvas& canvas,
    const Folder& folder,
    const Rect& rect,
    long level,
    std::span<const Rect> covered,
    FolderTitles titles)
{
    const Rect box = rect.inset(levelInset(level), levelInset(level));
    if (isTooSmall(box)) {
        return;
    }
    fillBox(canvas, box, cornerRadius(rect.area()), level, folderBoxColor(folder, level), covered);
    drawTitle(canvas, box, folder, titles);
}

} // namespace tessera
