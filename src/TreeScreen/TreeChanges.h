// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Url.h"
#include "DeadMounts/WithTimeLimit.h"
#include "Model/TreeEdit.h"
#include "Undo/DiskChanges.h"

#include <string>
#include <vector>

namespace tessera {

class File;
class FolderRescan;
class ResourceValues;
class RootModel;
class TopFolder;
class TreeScreen;

/// Changes the tree on screen as the program itself has changed the disk, where that is in what was
/// scanned. Main thread only.
class TreeChanges final {
public:
    /// All must outlive it.
    TreeChanges(
        RootModel& model,
        WithTimeLimit<ResourceValues> resourceValues,
        FolderRescan& rescan,
        TreeScreen& screen);

    /// As DiskChanges has them.
    void itemGone(const Url& place);
    void itemCompressed(const Url& archive);

    /// The items are at once where they are now: the very nodes where the tree has them, else new
    /// ones with what is known. What is or lies in a folder is read anew in the background.
    void itemsMoved(const std::vector<ItemMove>& moves);

    /// The folders around the places are read anew in the background, but for the one that the scan
    /// began at.
    void itemInDoubt(const std::vector<Url>& places);

private:
    bool move(TopFolder& top, const ItemMove& move);
    void arrive(TopFolder& top, const std::string& to, const ItemMove& move, LooseNode loose);
    bool removeNodeAt(TopFolder& top, const std::string& path);
    bool isInScan(TopFolder& top, const std::string& path) const;
    void changed();

    RootModel& m_model;
    const WithTimeLimit<ResourceValues> m_resourceValues;
    FolderRescan& m_rescan;
    TreeScreen& m_screen;
};

} // namespace tessera
