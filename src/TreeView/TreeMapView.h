// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

namespace tessera {

class TreeBranch;

/// The black canvas of the tree screen.
class TreeMapView final : public QWidget {
    Q_OBJECT

public:
    using QWidget::QWidget;

    /// The hovered branch, or null. Hides QWidget's pointer shape on purpose: the map never
    /// changes the shape.
    TreeBranch* cursor() const { return m_cursor; }
    void setCursor(TreeBranch* branch) { m_cursor = branch; }

    /// At once.
    void hideTooltip();

private:
    TreeBranch* m_cursor = nullptr;
};

} // namespace tessera
