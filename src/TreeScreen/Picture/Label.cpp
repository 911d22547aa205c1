// SPDX-License-Identifier: MIT
#include "TreeScreen/Picture/Label.h"

#include "Language/NodeName.h"
#include "Language/SizeText.h"
#include "Layout/BoxMetrics.h"
#include "Model/File.h"
#include "TreeScreen/Picture/BoxCanvas.h"
#include "TreeScreen/Picture/Styles.h"

#include <cmath>
#include <string>

namespace tessera {

namespace {

constexpr float kSideMargin = 5.0F;
constexpr float kLineHeight = 16.0F;
constexpr float kDrop = 3.0F;
/// Half of what a second line adds, roughly: the two lines together stand in the middle.
constexpr float kRaiseForSize = 7.0F;

/// The line of a lone name. In single precision, which places boxes at odd fractions of a point.
struct LabelLine {
    explicit LabelLine(const Rect& box)
        : x(static_cast<float>(box.x) + kSideMargin)
        , y(static_cast<float>(box.y)
            + std::floor((static_cast<float>(box.height) - kLineHeight) * 0.5F) + kDrop)
        , width(static_cast<float>(box.width) - 2 * kSideMargin)
    {
    }

    Rect movedDown(float distance) const { return {x, y + distance, width, kLineHeight}; }

    float x;
    float y;
    float width;
};

} // namespace

void drawCenteredLabel(
    BoxCanvas& canvas, const File& item, const Rect& box, const TextAttributes& attributes)
{
    if (!hasRoomForLabel(box)) {
        return;
    }
    const LabelLine line(box);
    const std::string name = shownNameBytes(item);
    if (!hasRoomForSize(box)) {
        canvas.drawText(name, line.movedDown(0), attributes);
        return;
    }
    canvas.drawText(name, line.movedDown(-kRaiseForSize), attributes);
    canvas.drawText(
        sizeText(item.totalAllocation()).toStdString(),
        line.movedDown(kLineHeight - kRaiseForSize),
        attributes);
}

} // namespace tessera
