// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

class QLabel;

namespace tessera {

class Bar;

/// The application's picture with a bar over it that tells how far a scan is. It is never shown as
/// a widget; a DockTile draws it.
class DockImage final : public QWidget {
    Q_OBJECT

public:
    DockImage();

    /// The picture fills the frame; the bar lies near its lower edge. Points.
    void setFrame(const QRect& frame);

    /// A fraction; not clamped.
    void setPercent(double fraction);
    double percent() const;

    const QLabel& imageView() const { return *m_imageView; }
    const Bar& barView() const { return *m_barView; }

private:
    QLabel* m_imageView;
    Bar* m_barView;
};

} // namespace tessera
