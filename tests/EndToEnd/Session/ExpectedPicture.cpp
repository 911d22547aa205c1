// SPDX-License-Identifier: MIT
#include "ExpectedPicture.h"

#include "EndToEnd/Desk/PixelColors.h"
#include "ScanFolder.h"

#include <QColor>

#include <algorithm>
#include <array>
#include <stdexcept>

namespace tessera::test {

namespace {

constexpr QRgb kBlack = 0xFF000000;
constexpr QRgb kPage = 0xFFFFFFFF;
constexpr QRgb kSelectedPage = 0xFF3875D7;

/// Boxes below this extent have no place that is surely free of text, folds and rims.
constexpr double kLeastExtent = 36;
constexpr double kInsidePage = 7;
constexpr double kInsideFolder = 5;
/// Boxes of the top level stand this far inside their rectangles.
constexpr double kGap = 2;

/// The pixel in which the point lies.
QRgb at(const QImage& image, QPointF point)
{
    const QPoint pixel(static_cast<int>(point.x()), static_cast<int>(point.y()));
    return image.valid(pixel) ? image.pixel(pixel) : 0;
}

std::string describe(const std::string& path, const char* what, QPointF point, QRgb color)
{
    return "'" + path + "': " + what + " at " + std::to_string(point.x()) + ','
        + std::to_string(point.y()) + " the map has " + QColor(color).name().toStdString();
}

/// A box of the top level stands alone on the ground: the pixels just outside and just inside the
/// middles of its edges say where it is.
std::string differenceAtEdges(const std::string& path, const QRectF& rect, const QImage& map)
{
    const QPointF centre = rect.center();
    const std::array<std::pair<QPointF, QPointF>, 4> edges{{
        {{rect.left(), centre.y()}, {1, 0}},
        {{rect.right() - 1, centre.y()}, {-1, 0}},
        {{centre.x(), rect.top()}, {0, 1}},
        {{centre.x(), rect.bottom() - 1}, {0, -1}},
    }};
    for (const auto& [edge, inward] : edges) {
        const QPointF outside = edge + inward * (kGap - 1);
        const QPointF inside = edge + inward * (kGap + 1);
        if (!isLike(at(map, outside), kBlack)) {
            return describe(path, "no gap", outside, at(map, outside));
        }
        if (isLike(at(map, inside), kBlack)) {
            return describe(path, "no box", inside, at(map, inside));
        }
    }
    return {};
}

} // namespace

ExpectedPicture::ExpectedPicture(const std::string& scanned, const std::string& shown)
    : m_scanned(scanned)
    , m_tree(scanFolder(scanned))
    , m_shown(&folderAt(shown))
{
}

Folder& ExpectedPicture::folderAt(const std::string& path) const
{
    const std::string wanted = path.empty() ? m_scanned : m_scanned + '/' + path;
    std::vector<Folder*> left{m_tree.get()};
    while (!left.empty()) {
        Folder* const folder = left.back();
        left.pop_back();
        if (folder->absolutePath() == wanted) {
            return *folder;
        }
        for (File* child : folder->children()) {
            if (auto* inner = nodeCast<Folder>(child)) {
                left.push_back(inner);
            }
        }
    }
    throw std::runtime_error("there is no folder " + wanted);
}

void ExpectedPicture::leaveOut(const std::string& folder)
{
    folderAt(folder).setIgnored(true);
}

void ExpectedPicture::setMapSize(QSize size)
{
    m_boxes.clear();
    const Rect bounds{0, 0, static_cast<double>(size.width()), static_cast<double>(size.height())};
    addBoxes(LevelRenderer(!m_isHiddenShown).renderTop(m_shown, bounds), {0, 0});
}

void ExpectedPicture::addBoxes(const RenderedLevel& level, QPointF around)
{
    const QPointF origin = around + QPointF(level.frame.x, level.frame.y);
    for (const auto& item : level.layoutItems) {
        if (item->ref != nullptr) {
            const QRectF rect(item->rect.x, item->rect.y, item->rect.width, item->rect.height);
            m_boxes[item->ref->absolutePath().substr(m_scanned.size() + 1)]
                = {rect.translated(origin), level.level, item->ref->isFolder()};
        }
    }
    for (const RenderedLevel& nested : level.nested) {
        addBoxes(nested, origin);
    }
}

std::string ExpectedPicture::firstDifference(const QImage& map) const
{
    std::string difference = "no box is large enough to look at";
    for (const auto& [path, box] : m_boxes) {
        if (std::min(box.rect.width(), box.rect.height()) < kLeastExtent) {
            continue;
        }
        difference = box.level == 0 ? differenceAtEdges(path, box.rect, map) : std::string();
        if (difference.empty()) {
            difference = differenceInside(path, box, map);
        }
        if (!difference.empty()) {
            break;
        }
    }
    return difference;
}

std::string ExpectedPicture::differenceInside(
    const std::string& path, const Box& box, const QImage& map) const
{
    if (box.isFolder) {
        const QPointF point(box.rect.left() + kInsideFolder, box.rect.center().y());
        return hasHue(at(map, point)) ? std::string()
                                      : describe(path, "no folder", point, at(map, point));
    }
    const QPointF point = box.rect.bottomLeft() + QPointF(kInsidePage, -kInsidePage);
    const QRgb page = path == m_selected ? kSelectedPage : kPage;
    return isLike(at(map, point), page) ? std::string()
                                        : describe(path, "wrong page", point, at(map, point));
}

} // namespace tessera::test
