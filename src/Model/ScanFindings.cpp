// SPDX-License-Identifier: MIT
#include "Model/ScanFindings.h"

#include "Model/Folder.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace tessera {

namespace {

using Nodes = ScanFindings::Nodes;

/// Moves the nodes at and below `leaving`, which keep their order like those that stay.
Nodes split(Nodes& nodes, const File& leaving)
{
    const auto gone
        = std::stable_partition(nodes.begin(), nodes.end(), [&leaving](const File* node) {
              return !isAtOrBelow(*node, leaving);
          });
    Nodes moved(gone, nodes.end());
    nodes.erase(gone, nodes.end());
    return moved;
}

void append(Nodes& nodes, const Nodes& others)
{
    nodes.insert(nodes.end(), others.begin(), others.end());
}

} // namespace

void ScanFindings::addUnreadable(UnreadableFolder folder)
{
    if (hasRoomForName()) {
        m_pathBytes += folder.path.size();
        m_unreadable.push_back(std::move(folder));
    } else {
        m_unnamed.push_back(folder.node);
    }
}

void ScanFindings::addLeftOut(const File& folder)
{
    m_leftOut.push_back(&folder);
}

void ScanFindings::addMounted(const File& folder)
{
    if (!isMounted(folder)) {
        m_mounted.push_back(&folder);
    }
}

bool ScanFindings::isMounted(const File& folder) const
{
    return std::find(m_mounted.begin(), m_mounted.end(), &folder) != m_mounted.end();
}

ScanFindings ScanFindings::takeOut(const File& leaving)
{
    ScanFindings gone;
    // What leaves is a file most often, and nothing is found in one. To look would take a way up
    // the tree from each folder that is known.
    if (!leaving.isFolder()) {
        return gone;
    }
    const auto named = std::stable_partition(
        m_unreadable.begin(), m_unreadable.end(), [&leaving](const UnreadableFolder& folder) {
            return !isAtOrBelow(*folder.node, leaving);
        });
    std::for_each(named, m_unreadable.end(), [this, &gone](UnreadableFolder& folder) {
        m_pathBytes -= folder.path.size();
        gone.addUnreadable(std::move(folder));
    });
    m_unreadable.erase(named, m_unreadable.end());
    // After those that are named, which have room for their names here as there.
    append(gone.m_unnamed, split(m_unnamed, leaving));
    gone.m_leftOut = split(m_leftOut, leaving);
    gone.m_mounted = split(m_mounted, leaving);
    return gone;
}

void ScanFindings::takeIn(const ScanFindings& coming)
{
    for (const UnreadableFolder& folder : coming.m_unreadable) {
        addUnreadable(
            {hasRoomForName() ? folder.node->absolutePath() : std::string(),
             folder.reason,
             folder.node});
    }
    append(m_unnamed, coming.m_unnamed);
    append(m_leftOut, coming.m_leftOut);
    append(m_mounted, coming.m_mounted);
}

void ScanFindings::replace(const File& node, const File& other)
{
    for (UnreadableFolder& folder : m_unreadable) {
        folder.node = folder.node == &node ? &other : folder.node;
    }
    for (Nodes* nodes : {&m_unnamed, &m_leftOut, &m_mounted}) {
        std::replace(nodes->begin(), nodes->end(), &node, &other);
    }
}

} // namespace tessera
