// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Url.h"
#include "Desktop/Workspace.h"
#include "Undo/TrashStep.h"

#include <QObject>

#include <cstdint>
#include <functional>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace tessera {

class BasketKeeper;
class DiskChanges;
class File;
class RootModel;
class TopFolder;
class TrashUndo;
class TreeScreen;
struct LooseNode;

/// An item of the tree that is to go to the trash.
struct ItemToMove {
    std::string path; ///< in the tree
    ItemToRecycle onDisk;
    OtherNames otherNames = OtherNames::None; ///< when nothing else moves
};

/// Moves items of the tree to the trash, and their nodes after them. What moves together can be
/// undone together. A move that ends when this object is gone is told as a change of the disk. Main
/// thread only.
class MovesToTrash final : public QObject {
    Q_OBJECT

public:
    using Ended = std::function<void(const RecycleResult& result)>;

    /// What is selected afterwards: of what stays.
    enum class Selection : std::uint8_t { Nothing, Kept };

    /// All must outlive it.
    MovesToTrash(
        RootModel& model,
        TrashUndo& trashUndo,
        DiskChanges& diskChanges,
        BasketKeeper& basket,
        TreeScreen& screen);

    /// Whether the item of that place on the disk, or a folder around it, is on its way.
    bool isOnItsWay(const std::string& place) const;

    /// Whether the tree has no item of that path any more: it has moved, or was found gone.
    bool hasLeft(const std::string& path) const;

    /// Asks the desktop to move the items and returns. Then the tree changes and is drawn once, and
    /// the handler is called, unless this object is gone by then.
    void begin(
        std::vector<ItemToMove> items,
        std::optional<AskedTogether> together,
        Selection selection,
        Ended ended);

private:
    void heard(
        const std::vector<ItemToMove>& items, Selection selection, const RecycleResult& result);
    void moveNodes(
        TopFolder& top, const std::vector<ItemToMove>& items, const RecycleResult& result);
    void putInTrash(
        TopFolder& top, const ItemToMove& item, LooseNode loose, const RecycleResult& result);

    RootModel& m_model;
    TrashUndo& m_trashUndo;
    DiskChanges& m_diskChanges;
    BasketKeeper& m_basket;
    TreeScreen& m_screen;
    std::set<std::string> m_onTheirWay; ///< absolute paths on the disk
};

} // namespace tessera
