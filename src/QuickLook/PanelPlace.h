// SPDX-License-Identifier: MIT
#pragma once

#include <QPoint>
#include <QPointer>
#include <QRect>
#include <QWidget>

#include <optional>

namespace tessera {

/// Where on the screen the preview panel stands: in the middle of the main window, or where the
/// user moved it to, and never beyond the screen's edges. Main thread only.
class PanelPlace final {
public:
    /// Without a window, the middle is the screen's.
    explicit PanelPlace(QWidget* mainWindow);

    /// The panel leaves some of the screen to others.
    QSize mostSize() const;

    /// Where the panel stands or is on its way to, on the screen.
    QRect frame() const { return m_frame; }

    /// The panel has this size from now on, around the same middle.
    void setSize(const QSize& size);

    /// The panel's window stands there, with its middle there. Where that is not frame(), somebody
    /// has moved it.
    void windowMoved(const QPoint& topLeft, const QPoint& middle);

    /// The next time it stands in the middle again.
    void forgetMoves();

private:
    QRect availableGeometry() const;

    QPointer<QWidget> m_mainWindow;
    QRect m_frame;
    std::optional<QPoint> m_centre; ///< where the user wants its middle
    std::optional<QPoint> m_movedTo; ///< where its middle is, if not where it was placed
};

} // namespace tessera
