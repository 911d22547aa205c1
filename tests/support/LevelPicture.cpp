// SPDX-License-Identifier: MIT
#include "support/LevelPicture.h"

#include "Layout/MultiLayoutObject.h"
#include "support/LevelPainting.h"
#include "support/ReferencePainting.h"

#include <QPainter>

#include <algorithm>
#include <array>
#include <cmath>

namespace tessera::test {

namespace {

constexpr Rect kFrame{0, 0, 640, 480};

} // namespace

LevelPicture::LevelPicture(long level, double scale)
    : m_scale(scale)
    , m_branch(std::make_unique<TreeBranch>(kFrame))
{
    m_branch->setLevel(level);
}

void LevelPicture::add(File* node, const Rect& rect)
{
    auto item = std::make_unique<LayoutObject>();
    item->ref = node;
    item->rect = rect;
    m_items.push_back(std::move(item));
}

void LevelPicture::addGroup(std::initializer_list<File*> nodes, const Rect& rect)
{
    auto item = std::make_unique<MultiLayoutObject>();
    item->refs = nodes;
    item->rect = rect;
    m_items.push_back(std::move(item));
}

void LevelPicture::paint(FolderTitles titles)
{
    startImage();
    takeItems();
    QPainter painter(&m_image);
    paintWholeLevel(painter, *m_branch, titles);
}

void LevelPicture::paintReference()
{
    startImage();
    takeItems();
    QPainter painter(&m_image);
    painter.setRenderHint(QPainter::Antialiasing);
    paintReferenceLevel(painter, *m_branch);
}

void LevelPicture::startImage()
{
    m_image = QImage(
        static_cast<int>(kFrame.width * m_scale),
        static_cast<int>(kFrame.height * m_scale),
        QImage::Format_RGB32);
    m_image.setDevicePixelRatio(m_scale);
    m_image.fill(kBackground);
}

void LevelPicture::takeItems()
{
    if (!m_items.empty()) {
        m_branch->setLayoutItems(std::move(m_items));
        m_items.clear();
    }
}

QRgb LevelPicture::at(double x, double y) const
{
    return m_image.pixel(
        static_cast<int>(std::floor(x * m_scale)), static_cast<int>(std::floor(y * m_scale)));
}

int LevelPicture::countOther(const Rect& rect, QRgb color) const
{
    int count = 0;
    const double step = 1 / m_scale;
    for (double y = rect.y; y < rect.bottom(); y += step) {
        for (double x = rect.x; x < rect.right(); x += step) {
            count += at(x, y) != color ? 1 : 0;
        }
    }
    return count;
}

int LevelPicture::runsDown(const Rect& rect, QRgb color) const
{
    int runs = 0;
    bool isInRun = false;
    for (double y = rect.y; y < rect.bottom(); y += 1 / m_scale) {
        const bool matches = at(rect.x, y) == color;
        runs += matches && !isInRun ? 1 : 0;
        isInRun = matches;
    }
    return runs;
}

int LevelPicture::runsAcross(const Rect& rect, QRgb color) const
{
    int runs = 0;
    bool isInRun = false;
    for (double x = rect.x; x < rect.right(); x += 1 / m_scale) {
        const bool matches = at(x, rect.y) == color;
        runs += matches && !isInRun ? 1 : 0;
        isInRun = matches;
    }
    return runs;
}

int greatestDifference(const QImage& a, const QImage& b)
{
    int greatest = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            const QRgb p = a.pixel(x, y);
            const QRgb q = b.pixel(x, y);
            greatest = std::max(
                {greatest,
                 std::abs(qRed(p) - qRed(q)),
                 std::abs(qGreen(p) - qGreen(q)),
                 std::abs(qBlue(p) - qBlue(q))});
        }
    }
    return greatest;
}

} // namespace tessera::test
