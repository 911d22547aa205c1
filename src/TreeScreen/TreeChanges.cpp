// SPDX-License-Identifier: MIT
#include "TreeScreen/TreeChanges.h"

#include "Base/FolderAround.h"
#include "Model/Allocation.h"
#include "Model/Document.h"
#include "Model/NodeLookup.h"
#include "Model/RootModel.h"
#include "Scanning/ResourceValues.h"
#include "TreeScreen/FolderRescan.h"
#include "TreeScreen/Map/TreeScreen.h"
#include "TreeScreen/Trash/NodeMoves.h"

#include <algorithm>
#include <utility>

namespace tessera {

namespace {

/// A folder stands with its size alone until it has been read.
LooseNode newNode(const ItemMove& move)
{
    const std::string_view name = move.to.lastPathComponent();
    LooseNode loose;
    if (move.to.isDirectory()) {
        loose.node = makeNode<Folder>(name);
    } else {
        loose.node = makeNode<Document>(name);
    }
    loose.node->setTotalAllocation(std::min(move.bytes, kMaxAllocation));
    loose.node->setHidden(name.starts_with('.'));
    if (!move.to.isDirectory() && move.linkCount > 1) {
        loose.names.add(*loose.node, move.identity, move.linkCount);
    }
    return loose;
}

} // namespace

TreeChanges::TreeChanges(
    RootModel& model,
    WithTimeLimit<ResourceValues> resourceValues,
    FolderRescan& rescan,
    TreeScreen& screen)
    : m_model(model)
    , m_resourceValues(resourceValues)
    , m_rescan(rescan)
    , m_screen(screen)
{
}

void TreeChanges::changed()
{
    m_screen.objectTreeRefreshed();
    m_screen.renderTree();
}

bool TreeChanges::removeNodeAt(TopFolder& top, const std::string& path)
{
    File* const found = nodeAtPath(top, path);
    if (found == nullptr || found == &top) {
        return false;
    }
    takeFromScreen(*found, m_screen);
    return true;
}

void TreeChanges::itemGone(const Url& place)
{
    TopFolder* const top = m_model.topFolder();
    if (top == nullptr) {
        return;
    }
    const std::string path = pathInTree(*top, place.path());
    m_rescan.pathWentAway(path);
    if (removeNodeAt(*top, path)) {
        changed();
    }
}

void TreeChanges::itemCompressed(const Url& archive)
{
    auto document = makeNode<Document>(archive.lastPathComponent());
    document->setTotalAllocation(m_resourceValues->allocatedSize(archive.path()).value_or(0));
    if (TopFolder* const top = m_model.topFolder()) {
        const std::string path = pathInTree(*top, archive.path());
        if (Folder* const parent = parentAtPath(*top, path)) {
            // A rescan meanwhile may have met it.
            removeNodeAt(*top, path);
            m_screen.nodeCame(putIn(*parent, {std::move(document), {}}));
        }
    }
    changed();
}

void TreeChanges::itemsMoved(const std::vector<ItemMove>& moves)
{
    TopFolder* const top = m_model.topFolder();
    if (top == nullptr) {
        return;
    }
    bool isOther = false;
    for (const ItemMove& moved : moves) {
        isOther = move(*top, moved) || isOther;
    }
    if (isOther) {
        changed();
    }
}

void TreeChanges::itemInDoubt(const std::vector<Url>& places)
{
    if (TopFolder* const top = m_model.topFolder()) {
        for (const Url& place : places) {
            m_rescan.bringUpToDate(std::string(folderAround(pathInTree(*top, place.path()))));
        }
    }
}

/// Whether the tree is another one than before.
bool TreeChanges::move(TopFolder& top, const ItemMove& move)
{
    const std::string from = pathInTree(top, move.from.path());
    const std::string to = pathInTree(top, move.to.path());
    m_rescan.pathWentAway(from);
    LooseNode loose;
    File* const node = nodeAtPath(top, from);
    const bool hasLeft = node != nullptr && node != &top;
    if (hasLeft) {
        loose = takeFromScreen(*node, m_screen);
        if (loose.node->isFolder() == move.to.isDirectory()) {
            renameNode(*loose.node, from, to);
        } else {
            loose = {};
        }
    }
    if (!isInScan(top, to)) {
        return hasLeft;
    }
    arrive(top, to, move, std::move(loose));
    return true;
}

void TreeChanges::arrive(
    TopFolder& top, const std::string& to, const ItemMove& move, LooseNode loose)
{
    // A scan that ran meanwhile has met the folder there, or the tree did not know that it was
    // gone.
    const File* const there = nodeAtPath(top, to);
    const bool staysThere = there != nullptr && there->isFolder() && move.to.isDirectory();
    std::string toRead = to;
    if (staysThere) {
        m_screen.nodeCame(*there);
    } else {
        removeNodeAt(top, to);
        const File* const came = putOnScreen(
            top, to, loose.node == nullptr ? newNode(move) : std::move(loose), m_screen);
        if (came == nullptr) {
            return;
        }
        toRead = came->absolutePath();
    }
    const std::string made = pathInTree(top, move.madeFolder.path());
    if (!made.empty() && made.size() < toRead.size()) {
        // The tree has it as it was before it went.
        toRead = made;
        if (const File* const folder = nodeAtPath(top, made)) {
            m_screen.nodeCame(*folder);
        }
    }
    m_rescan.bringUpToDate(toRead);
}

/// A scan passes over what is mounted below the folder that it begins at.
bool TreeChanges::isInScan(TopFolder& top, const std::string& path) const
{
    const std::string topPath = top.absolutePath();
    if (path == topPath || nearestNodeAtPath(top, path) == nullptr) {
        return false;
    }
    for (std::string_view at = folderAround(path); at.size() > topPath.size();
         at = folderAround(at)) {
        const auto* const folder = nodeCast<Folder>(nodeAtPath(top, at));
        // The user's home is read although it is mounted.
        const bool isRead = folder != nullptr && !folder->children().empty();
        if (!isRead && m_resourceValues->isMountPoint(pathOnDisk(top, at))) {
            return false;
        }
    }
    return true;
}

} // namespace tessera
