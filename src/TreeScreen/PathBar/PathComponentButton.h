// SPDX-License-Identifier: MIT
#pragma once

#include "TreeScreen/PathBar/PathComponent.h"

#include <QAbstractButton>

namespace tessera {

/// A component of the path bar as something to click, with what shows the pointer, the press and
/// the keyboard's focus around it. The keys that lead to another component are left to
/// the bar.
class PathComponentButton final : public QAbstractButton {
    Q_OBJECT

public:
    /// How far the button reaches beyond its component's left side, at the expense of its right
    /// side, where the component is empty.
    static constexpr int kLead = 4;

    PathComponentButton(PathComponent component, QWidget* parent);

    const PathComponent& component() const { return m_component; }
    void setComponent(PathComponent component);

    QSize sizeHint() const override;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void paintFeedback(QPainter& painter) const;

    PathComponent m_component;
};

} // namespace tessera
