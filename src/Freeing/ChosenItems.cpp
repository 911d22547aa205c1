// SPDX-License-Identifier: MIT
#include "Freeing/ChosenItems.h"

#include "Model/TopFolder.h"

namespace tessera {

ChosenItems::ChosenItems(const std::vector<const File*>& items)
    : m_all(items.begin(), items.end())
{
    std::unordered_set<const File*> seen;
    for (const File* const item : items) {
        if (seen.insert(item).second && !isBelowOne(*item)) {
            m_outermost.push_back(item);
        }
    }
}

bool ChosenItems::contain(const File& node) const
{
    if (node.parent() != m_lastFolder) {
        m_lastFolder = node.parent();
        m_isLastInside = isBelowOne(node);
    }
    return m_isLastInside || m_all.contains(&node);
}

const TopFolder* ChosenItems::root() const
{
    return m_outermost.empty() ? nullptr : rootOfScan(*m_outermost.front());
}

bool ChosenItems::isBelowOne(const File& node) const
{
    const File* above = node.parent();
    while (above != nullptr && !m_all.contains(above)) {
        above = above->parent();
    }
    return above != nullptr;
}

} // namespace tessera
