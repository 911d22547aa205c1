// SPDX-License-Identifier: MIT
#include "Platform/Linux/Walk/DirectoryListing.h"

#include <algorithm>

namespace tessera {

static_assert(sizeof(DirectoryListing::Entry) == 32, "tens of thousands are held at a time");

namespace {

constexpr std::uint64_t kMaxNameOffset = (std::uint64_t{1} << 40U) - 1;

} // namespace

void DirectoryListing::append(std::string_view name, std::uint64_t inode, Kind kind)
{
    Entry entry{};
    entry.inode = inode;
    entry.nameOffset = m_names.size() & kMaxNameOffset;
    entry.nameLength = static_cast<std::uint16_t>(name.size());
    entry.kind = kind;
    m_entries.push_back(entry);
    m_names.insert(m_names.end(), name.begin(), name.end());
    m_names.push_back('\0');
}

void DirectoryListing::shrinkToFit()
{
    m_entries.shrink_to_fit();
    m_names.shrink_to_fit();
}

void DirectoryListing::sortByInode()
{
    // Hard links beside each other share an inode; their names' places keep the order fixed.
    std::sort(m_entries.begin(), m_entries.end(), [](const Entry& a, const Entry& b) {
        return a.inode != b.inode ? a.inode < b.inode : a.nameOffset < b.nameOffset;
    });
}

} // namespace tessera
