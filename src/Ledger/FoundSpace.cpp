// SPDX-License-Identifier: MIT
#include "Ledger/FoundSpace.h"

#include "Model/Allocation.h"
#include "Model/NodeLookup.h"
#include "Model/TopFolder.h"

#include <limits>

namespace tessera {

FoundSpaceCount::FoundSpaceCount(const TopFolder& root)
    : m_root(root)
    , m_left{&root}
{
}

bool FoundSpaceCount::goOn(std::size_t nodes)
{
    std::size_t seen = 0;
    while (!m_left.empty() && seen < nodes) {
        const Folder& folder = *m_left.back();
        m_left.pop_back();
        seen += count(folder);
    }
    return !m_left.empty();
}

/// Returns the number of nodes that it has looked at.
std::size_t FoundSpaceCount::count(const Folder& folder)
{
    if (m_root.findings().isMounted(folder)) {
        return 1;
    }
    m_found.folders = saturatingSum(m_found.folders, folder.ownAllocation());
    for (const File* const child : folder.children()) {
        if (const auto* const inner = nodeCast<Folder>(child)) {
            m_left.push_back(inner);
        } else if (isItem(*child)) {
            m_found.files = saturatingSum(m_found.files, child->totalAllocation());
        }
    }
    return folder.children().size() + 1;
}

FoundSpace foundSpace(const TopFolder& root)
{
    FoundSpaceCount count(root);
    while (count.goOn(std::numeric_limits<std::size_t>::max())) { }
    return count.found();
}

} // namespace tessera
