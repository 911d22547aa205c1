// SPDX-License-Identifier: MIT
#include "Undo/ReturnedItems.h"

#include <utility>

namespace tessera {

ReturnedItems::ReturnedItems(DiskChanges& diskChanges)
    : m_diskChanges(diskChanges)
{
    m_last.setSingleShot(true);
    m_last.setInterval(kMilliseconds);
    m_last.callOnTimeout(this, &ReturnedItems::tell);
}

void ReturnedItems::add(ItemMove move, ReturnedItem item)
{
    m_moves.push_back(std::move(move));
    m_items.push_back(std::move(item));
    if (!m_last.isActive()) {
        m_last.start();
    }
}

void ReturnedItems::tell()
{
    m_last.stop();
    if (m_moves.empty()) {
        return;
    }
    // Whoever hears it may have others put back.
    const std::vector<ItemMove> moves = std::exchange(m_moves, {});
    const std::vector<ReturnedItem> items = std::exchange(m_items, {});
    emit m_diskChanges.itemsMoved(moves);
    for (const ReturnedItem& item : items) {
        emit wasPutBack(item);
    }
}

} // namespace tessera
