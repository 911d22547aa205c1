// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QWidget>

namespace tessera {

/// Shows an image in its middle: pixel by pixel of the screen, or smaller when it does not fit.
class ImageView final : public QWidget {
    Q_OBJECT

public:
    explicit ImageView(QWidget* parent = nullptr);

    /// Pixels of the screen; an empty image shows nothing.
    void setImage(const QImage& image);
    const QImage& image() const { return m_image; }

    /// In points of this view's screen.
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QImage m_image;
};

} // namespace tessera
