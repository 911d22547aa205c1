// SPDX-License-Identifier: MIT
#include "QuickLook/PageDecoding.h"

#include <QPainter>
#include <QPdfDocument>

#include <algorithm>
#include <cmath>

namespace tessera {

namespace {

constexpr int kMostPages = 10;
/// A page may be drawn on a strip of paper kilometres long.
constexpr double kMostHeightPerWidth = 4;

QImage paintedPage(QPdfDocument& document, int page, int width)
{
    const QSizeF points = document.pagePointSize(page);
    if (points.isEmpty() || !std::isfinite(points.width()) || !std::isfinite(points.height())) {
        return {};
    }
    const double heightPerWidth = std::min(points.height() / points.width(), kMostHeightPerWidth);
    const QSize size(width, std::max(1, static_cast<int>(std::lround(width * heightPerWidth))));
    const QImage drawing = document.render(page, size);
    // Paper is white, but the drawing has no ground.
    QImage painted(size, QImage::Format_RGB32);
    painted.fill(Qt::white);
    QPainter painter(&painted);
    painter.drawImage(0, 0, drawing);
    return painted;
}

} // namespace

bool canDecodePages()
{
    return true;
}

PreviewPages decodedPages(QIODevice& device, int width, const std::atomic<bool>& isCancelled)
{
    QPdfDocument document;
    document.load(&device);
    if (document.status() != QPdfDocument::Status::Ready) {
        return {};
    }
    PreviewPages pages;
    pages.pageCount = document.pageCount();
    for (int page = 0; page < std::min(pages.pageCount, kMostPages); ++page) {
        if (isCancelled.load(std::memory_order_relaxed)) {
            return {};
        }
        if (QImage painted = paintedPage(document, page, width); !painted.isNull()) {
            pages.pages.push_back(std::move(painted));
        }
    }
    return pages;
}

} // namespace tessera
