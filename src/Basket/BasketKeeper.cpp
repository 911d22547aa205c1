// SPDX-License-Identifier: MIT
#include "Basket/BasketKeeper.h"

#include "Model/NodeLookup.h"
#include "Model/TopFolder.h"
#include "Undo/DiskChanges.h"
#include "Undo/TrashUndo.h"

#include <algorithm>
#include <unordered_set>
#include <utility>

namespace tessera {

BasketKeeper::BasketKeeper(std::shared_ptr<const ItemStates> itemStates, MainThread& mainThread)
    : m_states(std::move(itemStates), mainThread, [this](const std::vector<std::string>& lost) {
        othersWereFound(lost);
        emit lookedAt();
    })
{
}

BasketKeeper::~BasketKeeper() = default;

void BasketKeeper::listenTo(const TrashUndo& trashUndo, const DiskChanges& diskChanges)
{
    connect(&trashUndo, &TrashUndo::moved, this, [this](const TrashStep& step) {
        for (const MovedItem& moved : step.items) {
            fileWasMoved(moved.item.identity);
        }
    });
    connect(
        &diskChanges, &DiskChanges::itemsMoved, this, [this](const std::vector<ItemMove>& moves) {
            for (const ItemMove& moved : moves) {
                fileWasMoved(moved.identity);
            }
        });
}

void BasketKeeper::fileWasMoved(const FileIdentity& file)
{
    m_moved.insert_or_assign(file, timeAfterChanges());
}

/// When it was read that the item is there.
FileTime BasketKeeper::readAt(const File& item) const
{
    const FileTime scanned = scanBeganOf(item);
    const auto came = m_came.find(item.absolutePath());
    return came == m_came.end() ? scanned : std::max(scanned, came->second);
}

void BasketKeeper::forget(const TopFolder& top, const std::vector<std::string>& paths)
{
    for (const std::string& path : paths) {
        m_states.forget(Url(pathOnDisk(top, path), false));
    }
}

bool BasketKeeper::add(File& item)
{
    if (!m_basket.add(item)) {
        return false;
    }
    m_states.lookAt(placeOnDisk(item), readAt(item));
    emit changed();
    return true;
}

bool BasketKeeper::remove(const File& item)
{
    if (!m_basket.remove(item)) {
        return false;
    }
    m_states.forget(placeOnDisk(item));
    emit changed();
    return true;
}

bool BasketKeeper::toggle(File& item)
{
    return m_basket.isMarked(item) ? !remove(item) : add(item);
}

void BasketKeeper::clear()
{
    if (m_basket.isEmpty()) {
        return;
    }
    for (const Basket::Entry& entry : m_basket.entries()) {
        m_states.forget(placeOnDisk(*entry.item));
    }
    m_basket.clear();
    emit changed();
}

std::optional<ExpectedItem> BasketKeeper::expectedOf(const File& item) const
{
    std::optional<ExpectedItem> expected = m_states.expectedAt(placeOnDisk(item));
    if (expected) {
        const auto moved = m_moved.find(expected->state.identity);
        if (moved != m_moved.end()) {
            expected->movedByOtherName = moved->second;
        }
    }
    return expected;
}

void BasketKeeper::treeLeaves(const TopFolder& top)
{
    for (const Last& last : std::exchange(m_last, {})) {
        m_states.forget(Url(last.place, last.isFolder));
    }
    m_came.clear();
    m_lastRoot = top.absolutePath();
    for (const Basket::Entry& entry : m_basket.entries()) {
        const File& item = *entry.item;
        m_last.push_back({item.absolutePath(), placeOnDisk(item).path(), item.isFolder()});
    }
    if (!m_basket.isEmpty()) {
        m_basket.clear();
        emit changed();
    }
}

void BasketKeeper::treeCame(TopFolder& top)
{
    if (m_last.empty() || top.absolutePath() != m_lastRoot) {
        return;
    }
    std::size_t gone = 0;
    for (const Last& last : std::exchange(m_last, {})) {
        if (!addAgain(last, top)) {
            m_states.forget(Url(last.place, last.isFolder));
            ++gone;
        }
    }
    emit changed();
    if (gone > 0) {
        emit lost(gone);
    }
}

/// Whether an item of that kind is there still. Whether it is the same one the disk has to say.
bool BasketKeeper::addAgain(const Last& last, TopFolder& top)
{
    File* const item = nodeAtPath(top, last.path);
    if (item == nullptr || item->isFolder() != last.isFolder
        || placeOnDisk(*item).path() != last.place || !m_basket.add(*item)) {
        return false;
    }
    m_states.lookAgain(placeOnDisk(*item), readAt(*item));
    return true;
}

void BasketKeeper::othersWereFound(const std::vector<std::string>& places)
{
    const std::unordered_set<std::string> others(places.begin(), places.end());
    // Not even by a scan that is under way.
    std::size_t gone = std::erase_if(
        m_last, [&others](const Last& last) { return others.contains(last.place); });
    for (const Basket::Entry& entry : m_basket.entries()) {
        if (others.contains(placeOnDisk(*entry.item).path())) {
            m_basket.remove(*entry.item);
            ++gone;
        }
    }
    if (gone > 0) {
        emit changed();
        emit lost(gone);
    }
}

void BasketKeeper::nodeWillLeave(const File& node)
{
    nodesWillLeave({&node});
}

void BasketKeeper::nodesWillLeave(const std::vector<const File*>& nodes)
{
    bool isOther = false;
    for (const File* const node : nodes) {
        const std::vector<std::string> leaving = m_basket.nodeWillLeave(*node);
        if (!leaving.empty()) {
            forget(*rootOfScan(*node), leaving);
            isOther = true;
        }
    }
    if (isOther) {
        emit changed();
    }
}

void BasketKeeper::nodeCame(const File& node)
{
    m_came.insert_or_assign(node.absolutePath(), timeAfterChanges());
}

void BasketKeeper::folderWasReplaced(const Folder& folder, Folder& with)
{
    if (!m_basket.isMarked(folder) && !m_basket.holdsMarked(folder)) {
        return;
    }
    TopFolder& top = *rootOfScan(with);
    const std::vector<std::string> gone = m_basket.folderWasReplaced(folder, top);
    forget(top, gone);
    // The user sees now what this scan has read, of what was chosen and of nothing else.
    for (const Basket::Entry& entry : m_basket.entries()) {
        if (isAtOrBelow(*entry.item, with)) {
            m_states.lookAgain(placeOnDisk(*entry.item), readAt(*entry.item));
        }
    }
    emit changed();
    if (!gone.empty()) {
        emit lost(gone.size());
    }
}

} // namespace tessera
