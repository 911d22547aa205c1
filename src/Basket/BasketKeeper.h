// SPDX-License-Identifier: MIT
#pragma once

#include "Base/FileIdentity.h"
#include "Base/FileTime.h"
#include "Basket/Basket.h"
#include "Basket/ChosenStates.h"

#include <QObject>

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

namespace tessera {

class DiskChanges;
class TrashUndo;

/// The basket of the tree on screen, which it keeps true while that tree changes, and what stood on
/// the disk when each item was chosen. When the same folder is scanned anew it chooses the same
/// places again. Main thread only.
class BasketKeeper final : public QObject {
    Q_OBJECT

public:
    /// `mainThread` must outlive it.
    BasketKeeper(std::shared_ptr<const ItemStates> itemStates, MainThread& mainThread);
    ~BasketKeeper() override;

    /// Has it hear what the program itself moves on the disk: such a file is no other for that.
    void listenTo(const TrashUndo& trashUndo, const DiskChanges& diskChanges);

    const Basket& basket() const { return m_basket; }

    /// As Basket has them.
    bool add(File& item);
    bool remove(const File& item);
    bool toggle(File& item);
    void clear();

    /// Whether all that was chosen has been looked at, as far as that could be done. It takes some
    /// seconds at most.
    bool isLookedAt() const { return m_states.isComplete(); }

    /// Has what nobody could look at looked at once more.
    void lookAtUnknown() { m_states.lookAtUnknown(); }

    /// What is to stand there still when the chosen item moves; nothing where that is not known.
    std::optional<ExpectedItem> expectedOf(const File& item) const;

    /// To be called when a tree leaves the screen, before its nodes die, and when one has come.
    void treeLeaves(const TopFolder& top);
    void treeCame(TopFolder& top);

    /// As the screen hears it (TreeScreen).
    void nodeWillLeave(const File& node);
    /// The same of several at once, which is told once.
    void nodesWillLeave(const std::vector<const File*>& nodes);
    void nodeCame(const File& node);
    void folderWasReplaced(const Folder& folder, Folder& with);

signals:
    /// Of what is chosen.
    void changed();
    /// What was chosen is looked at.
    void lookedAt();
    /// So many chosen items are gone from the disk, as a scan has found, or other items have taken
    /// their places there.
    void lost(std::size_t count);

private:
    /// An item that was chosen, when its tree leaves the screen.
    struct Last {
        std::string path; ///< in the tree
        std::string place; ///< on the disk
        bool isFolder = false;
    };

    FileTime readAt(const File& item) const;
    bool addAgain(const Last& last, TopFolder& top);
    void othersWereFound(const std::vector<std::string>& places);
    void fileWasMoved(const FileIdentity& file);
    void forget(const TopFolder& top, const std::vector<std::string>& paths);

    Basket m_basket;
    ChosenStates m_states;
    /// When items came to their places that no scan has met there yet, by their paths in the tree.
    std::unordered_map<std::string, FileTime> m_came;
    /// When the program last moved files by one of their names.
    std::unordered_map<FileIdentity, FileTime, FileIdentityHash> m_moved;
    std::string m_lastRoot; ///< of the tree that left the screen
    std::vector<Last> m_last; ///< what was chosen in that
};

} // namespace tessera
