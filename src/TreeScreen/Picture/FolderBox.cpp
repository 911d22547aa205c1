// SPDX-License-Identifier: MIT
#include "TreeScreen/Picture/FolderBox.h"

#include "Layout/BoxMetrics.h"
#include "Model/Folder.h"
#include "TreeScreen/Picture/BoxCanvas.h"
#include "TreeScreen/Picture/BranchPalette.h"
#include "TreeScreen/Picture/Styles.h"
#include "TreeScreen/Picture/TreeBranch.h"

#include <array>
#include <span>
#include <vector>

namespace tessera {

namespace {

constexpr double kLabelLeft = 8.0;
constexpr double kLabelTop = 7.0;
constexpr double kLabelMargins = 11.0;
constexpr double kLabelHeight = 14.0;
constexpr double kShadowDrop = 1.0;

Rect transformed(const Rect& rect, const QTransform& transform)
{
    if (transform.isIdentity()) {
        return rect;
    }
    const QRectF mapped = transform.mapRect(QRectF(rect.x, rect.y, rect.width, rect.height));
    return {mapped.x(), mapped.y(), mapped.width(), mapped.height()};
}

/// The branches two levels down lie on boxes of their own, inside this one; what is below those
/// need not be painted.
std::vector<Rect> coveredParts(const TreeBranch* nested)
{
    std::vector<Rect> covered;
    if (nested != nullptr) {
        for (const auto& branch : nested->subBranches()) {
            covered.push_back(branch->frame().translated(nested->frame().x, nested->frame().y));
        }
    }
    return covered;
}

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
    const TreeBranch& branch,
    const Folder& folder,
    const Rect& rect,
    const TreeBranch* nested)
{
    const Rect whole = transformed(rect, branch.scale());
    const double inset = levelInset(branch.level());
    const Rect box = whole.inset(inset, inset);
    if (isTooSmall(box)) {
        return;
    }
    fillBox(
        canvas,
        box,
        cornerRadius(whole.area()),
        branch.level(),
        folderBoxColor(folder, branch.level()),
        coveredParts(canvas.paintsNestedLevels() ? nested : nullptr));
    drawLabel(canvas, box, folder);
}

} // namespace tessera
