// SPDX-License-Identifier: MIT
#include "TreeScreen/Picture/DocumentPage.h"

#include "Layout/BoxMetrics.h"
#include "Model/Document.h"
#include "TreeScreen/Picture/BoxCanvas.h"
#include "TreeScreen/Picture/Label.h"
#include "TreeScreen/Picture/Styles.h"

#include <algorithm>
#include <cmath>

namespace tessera {

namespace {

constexpr double kFoldsPerExtent = 3.5;
constexpr double kMaxFold = 30.0;
constexpr double kMinFoldForGradient = 7.0;
constexpr double kMaxStraightFold = 9.0;
constexpr double kCurlsPerFold = 5.0;
constexpr double kGradientEnd = 0.5;
constexpr float kLineGrey = 0.25F;

/// A path whose end meets its start exactly would be stroked as a closed one, with a join there.
/// The outline has two flat ends at its first corner instead.
constexpr double kOpenEnd = 1e-6;

struct PageEdges {
    PageEdges(const Rect& page, double rim)
        : left(page.x + rim)
        , top(page.y + rim)
        , right(page.right() - rim)
        , bottom(page.bottom() - rim)
    {
    }

    double left;
    double top;
    double right;
    double bottom;
};

QPainterPath outlinePath(const PageEdges& edges, double fold)
{
    QPainterPath path;
    path.moveTo(edges.left, edges.top);
    path.lineTo(edges.right - fold, edges.top);
    path.lineTo(edges.right, edges.top + fold);
    path.lineTo(edges.right, edges.bottom);
    path.lineTo(edges.left, edges.bottom);
    path.lineTo(edges.left, edges.top + kOpenEnd);
    return path;
}

QPainterPath topOutlinePath(const Rect& page, double fold)
{
    return outlinePath(PageEdges(page, rimOffset(0)), fold);
}

QPainterPath nestedOutlinePath(const Rect& page, double fold)
{
    return outlinePath(PageEdges(page, rimOffset(1)), fold);
}

/// `shift` moves a straight fold onto whole pixels where the page has no rim to do so.
QPainterPath foldPath(const PageEdges& edges, double fold, double shift)
{
    QPainterPath path;
    const double right = edges.right;
    const double top = edges.top;
    path.moveTo(right - fold - shift, top);
    if (fold <= kMaxStraightFold) {
        path.lineTo(right - fold - shift, top + fold - shift);
        path.lineTo(right, top + fold - shift);
        return path;
    }
    const double curl = std::floor(fold / kCurlsPerFold);
    const double curlX = right - fold + curl;
    path.cubicTo(curlX, top + curl, curlX, top + fold - 2 * curl, curlX, top + fold - curl);
    path.cubicTo(
        right - fold + 2 * curl,
        top + fold - curl,
        right - curl,
        top + fold - curl,
        right,
        top + fold);
    return path;
}

QPainterPath topFoldPath(const Rect& page, double fold)
{
    return foldPath(PageEdges(page, rimOffset(0)), fold, 0.5);
}

QPainterPath nestedFoldPath(const Rect& page, double fold)
{
    return foldPath(PageEdges(page, rimOffset(1)), fold, 0);
}

BoxShape pageShape(BoxShape::PathBuilder path, double fold, BoxShape::Paint paint)
{
    return {path, fold, paint, fold + 1, 1};
}

VerticalGradient pageGradient(double fold, bool isSelected)
{
    static const QColor unselectedTop = QColor::fromRgbF(0.9F, 0.9F, 0.9F);
    static const QColor unselected = QColor::fromRgbF(1, 1, 1);
    static const QColor selectedTop = QColor::fromRgbF(0.1F, 0.35F, 0.74F);
    static const QColor selected = QColor::fromRgbF(0.22F, 0.459F, 0.843F);
    const QColor& color = isSelected ? selected : unselected;
    if (fold < kMinFoldForGradient) {
        return {color, color, kGradientEnd};
    }
    return {isSelected ? selectedTop : unselectedTop, color, kGradientEnd};
}

void paintPage(
    BoxCanvas& canvas, const Rect& page, double fold, long level, const VerticalGradient& gradient)
{
    static const QColor lineColor = QColor::fromRgbF(kLineGrey, kLineGrey, kLineGrey);
    using Paint = BoxShape::Paint;
    if (level == 0) {
        canvas.paintShape(pageShape(&topOutlinePath, fold, Paint::Fill), page, gradient);
        canvas.paintShape(pageShape(&topFoldPath, fold, Paint::Stroke), page, lineColor);
        return;
    }
    canvas.paintShape(pageShape(&nestedOutlinePath, fold, Paint::Fill), page, gradient);
    canvas.paintShape(pageShape(&nestedOutlinePath, fold, Paint::Stroke), page, lineColor);
    // Without a fold its line has no length, and so, having flat ends, no pixels.
    if (fold > 0) {
        canvas.paintShape(pageShape(&nestedFoldPath, fold, Paint::Stroke), page, lineColor);
    }
}

} // namespace

void paintDocumentPage(BoxCanvas& canvas, const Document& document, const Rect& rect, long level)
{
    const double inset = levelInset(level);
    const Rect page = rect.inset(inset, inset);
    if (isTooSmall(page)) {
        return;
    }
    const double extent = std::min(page.width, page.height);
    const double fold = std::min(std::floor(extent / kFoldsPerExtent), kMaxFold);
    const bool isSelected = document.selected();
    paintPage(canvas, page, fold, level, pageGradient(fold, isSelected));
    drawCenteredLabel(
        canvas,
        document,
        page,
        isSelected ? Styles::selectedTextAttributes() : Styles::textAttributes());
}

} // namespace tessera
