// SPDX-License-Identifier: MIT
#pragma once

#include "Base/FileIdentity.h"
#include "Base/Url.h"

#include <QObject>

#include <cstdint>
#include <optional>
#include <vector>

namespace tessera {

/// An item that the program has moved from one place on the disk to another.
struct ItemMove {
    Url from;
    Url to;
    FileIdentity identity; ///< of the item
    std::uint32_t linkCount = 1; ///< names that a file has on its disk
    std::uint64_t bytes = 0; ///< on disk, as far as they are known
    Url madeFolder = {}; ///< the outermost of the folders made for it; empty when none was
};

/// Says what the program itself has changed on the disk. Such work may end when the screen that
/// began it is gone, and then it concerns the next one: this outlives the screens, and whoever has
/// changed something has it emit the signal. Main thread only.
class DiskChanges final : public QObject {
    Q_OBJECT

signals:
    /// What lay there has left its place.
    void itemGone(const Url& place);
    /// Items went to the trash again, or came out of it.
    void itemsMoved(const std::vector<ItemMove>& moves);
    /// Nobody can tell in which of these places an item is: its disk broke off while it moved.
    void itemInDoubt(const std::vector<Url>& places);
    /// A compression has ended: with an archive, which may be an incomplete one in the trash, or
    /// with none.
    void itemCompressed(const std::optional<Url>& archive);
};

} // namespace tessera
