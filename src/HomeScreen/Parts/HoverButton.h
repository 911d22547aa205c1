// SPDX-License-Identifier: MIT
#pragma once

#include <QPushButton>

namespace tessera {

/// A button that draws its own bezel, with an arrow in a fixed place of it, and can hide that
/// bezel until the mouse is inside.
class HoverButton final : public QPushButton {
    Q_OBJECT

public:
    explicit HoverButton(QWidget* parent = nullptr);

    bool showsBorderOnlyWhileMouseInside() const { return m_showsBorderOnlyWhileMouseInside; }
    void setShowsBorderOnlyWhileMouseInside(bool on);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void drawBezel(QPainter& painter) const;
    void drawInterior(QPainter& painter) const;

    bool m_showsBorderOnlyWhileMouseInside = false;
};

} // namespace tessera
