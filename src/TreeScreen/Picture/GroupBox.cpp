// SPDX-License-Identifier: MIT
#include "TreeScreen/Picture/GroupBox.h"

#include "Layout/BoxMetrics.h"
#include "Layout/MultiLayoutObject.h"
#include "TreeScreen/Picture/BoxCanvas.h"
#include "TreeScreen/Picture/BranchPalette.h"
#include "Widgets/ColorHelper.h"

#include <algorithm>
#include <cmath>

namespace tessera {

namespace {

constexpr double kLight = 0.15;
constexpr double kLighter = 0.65;
constexpr double kDark = 0.6;

constexpr double kCellExtent = 7;
constexpr int kMinCells = 2;
constexpr int kMaxCells = 10;
constexpr double kMinExtentForCells = 5.0;

/// Lines end this far inside the box; they are 1 point wide.
constexpr double kLineMargin = 1.5;
constexpr double kLineWidth = 1.0;

int cellCount(double extent)
{
    if (extent < kMinExtentForCells) {
        return 1;
    }
    return static_cast<int>(
        std::clamp<double>(std::floor(extent / kCellExtent), kMinCells, kMaxCells));
}

/// On a box narrower than its margins a line runs the other way, and paints what lies between.
void drawHorizontalLine(BoxCanvas& canvas, const Rect& box, double y, const QColor& color)
{
    const double from = box.x + kLineMargin;
    const double to = box.right() - kLineMargin;
    canvas.fillRect(
        {std::min(from, to), y - kLineWidth / 2, std::abs(to - from), kLineWidth}, color);
}

void drawVerticalLine(BoxCanvas& canvas, const Rect& box, double x, const QColor& color)
{
    const double from = box.y + kLineMargin;
    const double to = box.bottom() - kLineMargin;
    canvas.fillRect(
        {x - kLineWidth / 2, std::min(from, to), kLineWidth, std::abs(to - from)}, color);
}

/// A dark line and a lighter one right below it look engraved.
void drawGrooves(BoxCanvas& canvas, const Rect& box, const QColor& dark, const QColor& lighter)
{
    const int rows = cellCount(box.height);
    const auto lineAt = [&](int index) {
        return static_cast<double>(
            static_cast<float>(box.y + std::ceil(index * (box.height / rows))));
    };
    for (int i = 1; i < rows; ++i) {
        drawHorizontalLine(canvas, box, lineAt(i) - kLineWidth / 2, dark);
    }
    for (int i = 1; i < rows; ++i) {
        drawHorizontalLine(canvas, box, lineAt(i) + kLineWidth / 2, lighter);
    }
}

void drawColumns(BoxCanvas& canvas, const Rect& box, const QColor& light)
{
    const int columns = cellCount(box.width);
    for (int i = 1; i < columns; ++i) {
        const double offset = std::floor(i * (box.width / columns)) + kLineWidth / 2;
        drawVerticalLine(
            canvas, box, static_cast<double>(static_cast<float>(box.x + offset)), light);
    }
}

} // namespace

void paintGroupBox(BoxCanvas& canvas, const MultiLayoutObject& group, long level)
{
    const Rect outer = group.rect.inset(levelInset(level), levelInset(level));
    const Rect box = outer.inset(rimOffset(level), rimOffset(level));
    if (isTooSmall(outer) || isTooSmall(box) || group.refs.empty()) {
        return;
    }
    const double radius = cornerRadius(group.rect.area());
    const QColor color = boxColor(*group.refs.back(), level);
    const QColor dark = shadowWithLevel(color, kDark);
    canvas.fillRoundedRect(box, radius, VerticalGradient{color, color});
    if (level > 0) {
        canvas.strokeRoundedRect(box, radius, dark);
    }
    // The offset of the rim puts a stroke on whole pixels; it would take the grid off them.
    drawGrooves(canvas, outer, dark, highlightWithLevel(color, kLighter));
    drawColumns(canvas, outer, highlightWithLevel(color, kLight));
}

} // namespace tessera
