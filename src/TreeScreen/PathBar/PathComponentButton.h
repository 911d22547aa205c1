// SPDX-License-Identifier: MIT
#pragma once

#include "TreeScreen/PathBar/CenteredPathComponentCell.h"

#include <QAbstractButton>

namespace tessera {

/// A component of the path bar as something to click: the cell, with what shows the pointer, the
/// press and the keyboard's focus around it. The keys that lead to another component are left to
/// the bar.
class PathComponentButton final : public QAbstractButton {
    Q_OBJECT

public:
    /// How far the button reaches beyond its cell's left side, at the expense of its right side,
    /// where the cell is empty.
    static constexpr int kLead = 4;

    PathComponentButton(CenteredPathComponentCell cell, QWidget* parent);

    const CenteredPathComponentCell& cell() const { return m_cell; }
    void setCell(CenteredPathComponentCell cell);

    QSize sizeHint() const override;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void paintFeedback(QPainter& painter) const;

    CenteredPathComponentCell m_cell;
};

} // namespace tessera
