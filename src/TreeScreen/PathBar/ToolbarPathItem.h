// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

namespace tessera {

class ToolbarPathControl;

/// The toolbar's place for the path bar: takes all the room that is left and offers it to the bar,
/// which takes what it needs, at the left.
class ToolbarPathItem final : public QWidget {
    Q_OBJECT

public:
    explicit ToolbarPathItem(QWidget* parent = nullptr);

    ToolbarPathControl& pathControl() const { return *m_pathControl; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    ToolbarPathControl* m_pathControl;
};

} // namespace tessera
