// SPDX-License-Identifier: MIT
#pragma once

#include "EndToEnd/Desk/XDesk.h"

#include <QPoint>
#include <QRect>

#include <optional>
#include <vector>

namespace tessera::test {

/// Where the tree's map lies on the screen; nothing while it is not shown.
std::optional<QRect> mapOn(const XDesk& desk);

/// Where on the screen the icons of the path bar's components are, from the left.
std::vector<QPoint> pathIconsOn(const XDesk& desk);

} // namespace tessera::test
