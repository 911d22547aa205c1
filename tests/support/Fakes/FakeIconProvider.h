// SPDX-License-Identifier: MIT
#pragma once

#include "Widgets/IconProvider.h"

#include <QColor>

namespace tessera::test {

/// One plain icon for every node, and a count of how often it was asked for.
class FakeIconProvider final : public IconProvider {
public:
    [[nodiscard]] QPixmap icon(const File& /*node*/, int points, double scale) override
    {
        ++askedCount;
        QPixmap picture(QSize(points, points) * scale);
        picture.setDevicePixelRatio(scale);
        picture.fill(QColor(Qt::red));
        return picture;
    }

    int askedCount = 0;
};

} // namespace tessera::test
