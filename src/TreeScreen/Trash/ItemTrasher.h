// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Url.h"
#include "Desktop/ExpectedItem.h"

#include <QObject>

#include <optional>

namespace tessera {

class Alert;
class File;
class MovesToTrash;
class TrashRisks;
struct RecycleResult;

/// Moves items to the trash one by one, after a warning where that is risky. At most one warning is
/// given: who accepts the one for system folders gets none for hidden items. Main thread only.
class ItemTrasher final : public QObject {
    Q_OBJECT

public:
    /// All must outlive it.
    ItemTrasher(const TrashRisks& risks, MovesToTrash& moves, Alert& alert);

    /// Asks the desktop to move the item and returns; the tree changes when that is done. Does
    /// nothing while the item, or a folder around it, is on its way already, when it has left the
    /// tree by the time that the user has answered, and for space that is no item. With `expected`
    /// only that very item is moved.
    void trash(const File& item, const std::optional<ExpectedItem>& expected = {});

private:
    bool mayTrash(const File& item) const;
    bool confirmSystem(const File& item) const;
    bool confirmHidden(const File& item) const;
    bool ask(const QString& question) const;

    void recycled(const Url& place, const RecycleResult& result);

    const TrashRisks& m_risks;
    MovesToTrash& m_moves;
    Alert& m_alert;
};

} // namespace tessera
