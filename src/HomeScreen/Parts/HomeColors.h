// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QPalette>

namespace tessera {

/// The colours of the home screen, for the desktop's light or dark theme as the palette tells. All
/// texts have a contrast of at least 4.5 : 1 to what they stand on.
struct HomeColors {
    explicit HomeColors(const QPalette& palette);

    QColor name; ///< of what is not selected
    QColor detail;
    QColor faint;
    QColor selectedName;
    QColor selectedDetail;
    QColor selection; ///< behind what is selected, in the window that the user works in
    QColor inactiveSelection; ///< and in others
    QColor inactiveName; ///< on it
    QColor inactiveDetail;
    QColor panelTop;
    QColor panelBottom;
    QColor buttonTop;
    QColor buttonBottom;
    QColor outline; ///< of panels and buttons
};

} // namespace tessera
