// SPDX-License-Identifier: MIT
#pragma once

#include <QIcon>
#include <QString>

namespace tessera {

/// What the user sees of a folder that can be scanned.
struct PlaceLook {
    QIcon icon;
    QString name;
};

} // namespace tessera
