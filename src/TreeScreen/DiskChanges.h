// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Url.h"

#include <QObject>

#include <optional>

namespace tessera {

/// Says what the program itself has changed on the disk. Such work may end when the screen that
/// began it is gone, and then it concerns the next one: this outlives the screens, and whoever has
/// changed something has it emit the signal. Main thread only.
class DiskChanges final : public QObject {
    Q_OBJECT

signals:
    /// What lay there has left its place.
    void itemGone(const Url& place);
    /// A compression has ended: with an archive, which may be an incomplete one in the trash, or
    /// with none.
    void itemCompressed(const std::optional<Url>& archive);
};

} // namespace tessera
