// SPDX-License-Identifier: MIT
#include "QuickLook/ImageView.h"

#include <QPainter>

namespace tessera {

ImageView::ImageView(QWidget* parent)
    : QWidget(parent)
{
}

void ImageView::setImage(const QImage& image)
{
    m_image = image;
    updateGeometry();
    update();
}

QSize ImageView::sizeHint() const
{
    return (QSizeF(m_image.size()) / devicePixelRatioF()).toSize();
}

void ImageView::paintEvent(QPaintEvent* /*event*/)
{
    if (m_image.isNull()) {
        return;
    }
    QSize shown = sizeHint();
    if (shown.width() > width() || shown.height() > height()) {
        shown.scale(size(), Qt::KeepAspectRatio);
    }
    QRect place(QPoint(0, 0), shown);
    place.moveCenter(rect().center());
    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(place, m_image);
}

} // namespace tessera
