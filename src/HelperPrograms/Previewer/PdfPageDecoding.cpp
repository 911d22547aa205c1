// SPDX-License-Identifier: MIT
#include "HelperPrograms/Previewer/PageDecoding.h"

#include <QPainter>
#include <QPdfDocument>

#include <algorithm>
#include <cmath>

namespace tessera {

namespace {

class PdfPageDecoding final : public PageDecoding {
public:
    explicit PdfPageDecoding(QIODevice& device) { m_document.load(&device); }

    bool isOpen() const { return m_document.status() == QPdfDocument::Status::Ready; }

    [[nodiscard]] int pageCount() override { return m_document.pageCount(); }

    [[nodiscard]] QImage paint(int page, const QSize& limit) override
    {
        const QSizeF points = m_document.pagePointSize(page);
        if (points.isEmpty() || !std::isfinite(points.width()) || !std::isfinite(points.height())) {
            return {};
        }
        // A page may be drawn on a strip of paper kilometres long.
        const double height
            = std::min<double>(limit.width() * (points.height() / points.width()), limit.height());
        const QSize size(limit.width(), std::max(1, static_cast<int>(std::lround(height))));
        const QImage drawing = m_document.render(page, size);
        // Paper is white, but the drawing has no ground.
        QImage painted(size, QImage::Format_RGB32);
        if (painted.isNull()) {
            return {};
        }
        painted.fill(Qt::white);
        QPainter painter(&painted);
        painter.drawImage(0, 0, drawing);
        return painted;
    }

private:
    QPdfDocument m_document;
};

} // namespace

std::unique_ptr<PageDecoding> openDocument(QIODevice& device)
{
    auto document = std::make_unique<PdfPageDecoding>(device);
    return document->isOpen() ? std::move(document) : nullptr;
}

} // namespace tessera
