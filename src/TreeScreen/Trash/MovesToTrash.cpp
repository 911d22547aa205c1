// SPDX-License-Identifier: MIT
#include "TreeScreen/Trash/MovesToTrash.h"

#include "Base/FolderAround.h"
#include "Basket/BasketKeeper.h"
#include "Model/NodeLookup.h"
#include "Model/RootModel.h"
#include "TreeScreen/Map/TreeScreen.h"
#include "TreeScreen/Trash/NodeMoves.h"
#include "Undo/DiskChanges.h"
#include "Undo/TrashUndo.h"

#include <QPointer>

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <string_view>
#include <unordered_map>
#include <utility>

namespace tessera {

namespace {

/// Nothing was moved where there is no error and no place of it either.
bool hasMoved(const ItemToMove& item, const RecycleResult& result)
{
    return result.error.empty() || result.newUrls.contains(item.onDisk.url.absoluteString());
}

std::vector<ItemToMove> movedOf(const std::vector<ItemToMove>& items, const RecycleResult& result)
{
    std::vector<ItemToMove> moved;
    std::ranges::copy_if(items, std::back_inserter(moved), [&result](const ItemToMove& item) {
        return hasMoved(item, result);
    });
    return moved;
}

ItemMove moveOf(const ItemToMove& item, const TrashedItem& trashed)
{
    ItemMove move;
    move.from = item.onDisk.url;
    move.to = trashed.to;
    move.identity = trashed.identity;
    move.bytes = item.onDisk.bytes.value_or(0);
    return move;
}

/// For a tree that is another one by now, or is still being read: it is drawn anew with each
/// signal.
void tell(DiskChanges& changes, const std::vector<ItemToMove>& items, const RecycleResult& result)
{
    const std::vector<ItemToMove> moved = movedOf(items, result);
    if (moved.size() == 1) {
        emit changes.itemGone(moved.front().onDisk.url);
        return;
    }
    std::unordered_map<std::string, const TrashedItem*> byPlace;
    for (const TrashedItem& trashed : result.trashed) {
        byPlace.emplace(trashed.from.path(), &trashed);
    }
    std::vector<ItemMove> moves;
    for (const ItemToMove& item : moved) {
        const auto trashed = byPlace.find(item.onDisk.url.path());
        if (trashed != byPlace.end()) {
            moves.push_back(moveOf(item, *trashed->second));
        }
    }
    emit changes.itemsMoved(moves);
}

/// Nobody removes the nodes: the disk is asked where the items are, once it answers again.
void tellOfDoubts(DiskChanges& changes, const RecycleResult& result)
{
    for (const NotRecycled& item : result.notMoved) {
        if (item.mayBeAt) {
            emit changes.itemInDoubt({item.place, *item.mayBeAt});
        }
    }
}

} // namespace

MovesToTrash::MovesToTrash(
    RootModel& model,
    TrashUndo& trashUndo,
    DiskChanges& diskChanges,
    BasketKeeper& basket,
    TreeScreen& screen)
    : m_model(model)
    , m_trashUndo(trashUndo)
    , m_diskChanges(diskChanges)
    , m_basket(basket)
    , m_screen(screen)
{
}

bool MovesToTrash::isOnItsWay(const std::string& place) const
{
    if (m_onTheirWay.empty()) {
        return false;
    }
    std::string_view at = place;
    while (at.size() > 1 && !m_onTheirWay.contains(std::string(at))) {
        at = folderAround(at);
    }
    return m_onTheirWay.contains(std::string(at));
}

bool MovesToTrash::hasLeft(const std::string& path) const
{
    TopFolder* const top = m_model.topFolder();
    return top != nullptr && nodeAtPath(*top, path) == nullptr;
}

void MovesToTrash::begin(
    std::vector<ItemToMove> items,
    std::optional<AskedTogether> together,
    Selection selection,
    Ended ended)
{
    AskedStep step{{}, together};
    std::vector<ItemToRecycle> asked;
    asked.reserve(items.size());
    for (const ItemToMove& item : items) {
        m_onTheirWay.insert(item.onDisk.url.path());
        asked.push_back(item.onDisk);
        step.otherNames.push_back(item.otherNames);
    }
    m_trashUndo.recycle(
        std::move(asked),
        [self = QPointer<MovesToTrash>(this),
         changes = QPointer<DiskChanges>(&m_diskChanges),
         items = std::move(items),
         selection,
         ended = std::move(ended)](const RecycleResult& result) {
            if (self != nullptr) {
                self->heard(items, selection, result);
                ended(result);
            } else if (changes != nullptr) {
                tell(*changes, items, result);
            }
            if (changes != nullptr) {
                tellOfDoubts(*changes, result);
            }
        },
        std::move(step));
}

void MovesToTrash::heard(
    const std::vector<ItemToMove>& items, Selection selection, const RecycleResult& result)
{
    for (const ItemToMove& item : items) {
        m_onTheirWay.erase(item.onDisk.url.path());
    }
    const std::vector<ItemToMove> moved = movedOf(items, result);
    if (moved.empty()) {
        return;
    }
    if (TopFolder* const top = m_model.topFolder()) {
        moveNodes(*top, moved, result);
    }
    if (selection == Selection::Nothing) {
        m_screen.setSelectedFile(nullptr);
    }
    m_screen.objectTreeRefreshed();
    m_screen.renderTree();
}

void MovesToTrash::moveNodes(
    TopFolder& top, const std::vector<ItemToMove>& items, const RecycleResult& result)
{
    // Looked up again: a rescan may have put another tree in the place of what the items were in.
    std::vector<const ItemToMove*> known;
    std::vector<File*> nodes;
    for (const ItemToMove& item : items) {
        File* const node = nodeAtPath(top, item.path);
        if (node != nullptr && node != &top) {
            known.push_back(&item);
            nodes.push_back(node);
        }
    }
    m_basket.nodesWillLeave({nodes.begin(), nodes.end()});
    std::vector<LooseNode> loose = takeFromScreen(nodes, m_screen);
    for (std::size_t i = 0; i < nodes.size(); ++i) {
        putInTrash(top, *known[i], std::move(loose[i]), result);
    }
}

/// Where the tree has the trash too.
void MovesToTrash::putInTrash(
    TopFolder& top, const ItemToMove& item, LooseNode loose, const RecycleResult& result)
{
    const auto to = result.newUrls.find(item.onDisk.url.absoluteString());
    if (to == result.newUrls.end()) {
        return;
    }
    const std::string path = pathInTree(top, to->second.path());
    // A rescan of the trash meanwhile may have met the item there.
    if (nodeAtPath(top, path) == nullptr) {
        renameNode(*loose.node, item.path, path);
        putOnScreen(top, path, std::move(loose), m_screen);
    }
}

} // namespace tessera
