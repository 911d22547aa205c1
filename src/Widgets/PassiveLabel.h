// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>

namespace tessera {

/// A label of one line that is laid over other views and never takes the mouse from them. Plain
/// text, shortened at its end where there is no room for it.
class PassiveLabel final : public QLabel {
    Q_OBJECT
    Q_PROPERTY(int textPixels READ textPixels WRITE setTextPixels)

public:
    explicit PassiveLabel(QWidget* parent = nullptr);

    /// The height of the letters; set in the form for the usual font of a desktop, and
    /// larger where that font is.
    int textPixels() const { return font().pixelSize(); }
    void setTextPixels(int pixels);

    void setTextColor(const QColor& color);
    QColor textColor() const;

    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace tessera
