// SPDX-License-Identifier: MIT
#pragma once

#include "Undo/DiskChanges.h"
#include "Undo/TrashStep.h"

#include <QObject>
#include <QTimer>

#include <vector>

namespace tessera {

/// Tells of items that have come back out of the trash, of all at once that come in a row: with
/// each time that it hears of some, a screen rebuilds its whole picture. Main thread only.
class ReturnedItems final : public QObject {
    Q_OBJECT

public:
    /// What has come back is told no later than that, be it that others never come.
    static constexpr int kMilliseconds = 200;

    /// `diskChanges` must outlive it.
    explicit ReturnedItems(DiskChanges& diskChanges);

    void add(ItemMove move, ReturnedItem item);

    /// No other will come soon.
    void tell();

signals:
    /// As TrashUndo has it.
    void wasPutBack(const tessera::ReturnedItem& item);

private:
    DiskChanges& m_diskChanges;
    std::vector<ItemMove> m_moves;
    std::vector<ReturnedItem> m_items;
    QTimer m_last;
};

} // namespace tessera
