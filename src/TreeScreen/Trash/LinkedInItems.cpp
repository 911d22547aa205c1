// SPDX-License-Identifier: MIT
#include "TreeScreen/Trash/LinkedInItems.h"

#include "Model/TopFolder.h"

#include <algorithm>

namespace tessera {

LinkedInItems::LinkedInItems(const std::vector<const File*>& items)
    : m_items(items)
{
    const TopFolder* const root = m_items.root();
    if (root == nullptr) {
        return;
    }
    const std::unordered_set<const File*> all(items.begin(), items.end());
    m_shares = root->linkedNames().sharesOf([this, &all](const File& name) {
        if (!m_items.contain(name)) {
            return false;
        }
        const File* item = &name;
        while (!all.contains(item)) {
            item = item->parent();
        }
        m_withNames.insert(item);
        return true;
    });
    for (const LinkedNames::Share& file : m_shares) {
        const File* const name = m_items.contain(*file.countedAt) ? file.countedAt : file.inside;
        m_bytes.emplace(name, file.countedAt->totalAllocation());
    }
}

OtherNames LinkedInItems::otherNames() const
{
    const bool haveSome = std::ranges::any_of(m_shares, [](const LinkedNames::Share& file) {
        return file.namesInside < file.names || file.names < file.linkCount;
    });
    const bool isOneFile
        = m_items.outermost().size() == 1 && !m_items.outermost().front()->isFolder();
    const OtherNames some = isOneFile ? OtherNames::OfTheFile : OtherNames::OfFilesInside;
    return haveSome ? some : OtherNames::None;
}

OtherNames LinkedInItems::otherNamesOf(const File& item) const
{
    if (m_items.outermost().size() == 1) {
        return otherNames();
    }
    const OtherNames some = item.isFolder() ? OtherNames::OfFilesInside : OtherNames::OfTheFile;
    return m_withNames.contains(&item) ? some : OtherNames::None;
}

std::optional<std::uint64_t> LinkedInItems::bytesOf(const File& item) const
{
    if (item.isFolder() || !m_withNames.contains(&item)) {
        return item.totalAllocation();
    }
    const auto found = m_bytes.find(&item);
    return found == m_bytes.end() ? std::nullopt : std::optional(found->second);
}

} // namespace tessera
