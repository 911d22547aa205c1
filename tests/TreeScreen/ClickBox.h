// SPDX-License-Identifier: MIT
#pragma once

#include "TreeScreen/Map/TreeMapView.h"

#include <QTest>

namespace tessera::test {

/// Clicks near the upper left corner of the file's box, which must be in the picture.
inline void clickBox(TreeMapView& view, const File& file)
{
    constexpr int kInside = 5;
    const Rect box = view.findRectForFile(file).value();
    QTest::mouseClick(
        &view,
        Qt::LeftButton,
        {},
        QPoint(static_cast<int>(box.x) + kInside, static_cast<int>(box.y) + kInside));
}

} // namespace tessera::test
