// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Rect.h"

#include <QWidget>

class QProgressBar;

namespace tessera {

/// A small bar in the middle of a folder's box that says how far the folder's rescan is. The
/// pointer does not notice it.
class RescanIndicator final : public QWidget {
    Q_OBJECT

public:
    explicit RescanIndicator(QWidget* parent);

    /// The frame for a folder drawn at `box`, and whether that is large enough to hold a bar.
    static Rect frameFor(const Rect& box);
    static bool fits(const Rect& frame);

    /// Covers `frame`, in the parent's coordinates, above what else the parent holds.
    void place(const Rect& frame);

    /// A fraction from 0.0 to 1.0; what lies beyond is shown as the nearer end, and what is no
    /// number as 0.
    double value() const { return m_value; }
    void setValue(double value);

private:
    QProgressBar* m_bar;
    double m_value = 0;
};

} // namespace tessera
