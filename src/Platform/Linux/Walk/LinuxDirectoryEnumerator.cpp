// SPDX-License-Identifier: MIT
#include "Platform/Linux/Walk/LinuxDirectoryEnumerator.h"

#include <utility>

namespace tessera {

namespace {

/// Telling the read-ahead of each entry would cost a lock for each.
constexpr std::size_t kEntriesCountedTogether = 256;

} // namespace

LinuxDirectoryEnumerator::LinuxDirectoryEnumerator(
    OpenedFolder start, ItemKeys keys, const ReadAheadOptions& options)
    : m_readAhead(std::move(start), keys, options)
{
}

bool LinuxDirectoryEnumerator::next(DirectoryItem& item)
{
    m_entered.reset();
    if (std::exchange(m_isAtStart, false)) {
        enter(m_readAhead.start());
    } else if (std::exchange(m_isAtDirectory, false)) {
        enterLastDirectory();
    }
    while (!m_path.empty()) {
        Place& place = m_path.back();
        if (place.nextEntry == place.folder->listing.size()) {
            leaveFolder();
            continue;
        }
        const DirectoryListing::Entry& entry = place.folder->listing[place.nextEntry++];
        countTaken();
        if (!entry.isGone) {
            deliver(entry, item);
            return true;
        }
    }
    return false;
}

void LinuxDirectoryEnumerator::skipDescendants()
{
    if (std::exchange(m_isAtDirectory, false)) {
        Place& place = m_path.back();
        m_readAhead.skip(*place.folder, place.nextSubfolder++);
    }
}

const EnteredDirectory* LinuxDirectoryEnumerator::entered() const
{
    return m_entered ? &*m_entered : nullptr;
}

void LinuxDirectoryEnumerator::enter(WalkFolder& folder)
{
    m_path.push_back({&folder});
    m_entered = {folder.ownAllocation, std::error_code(folder.problem, std::system_category())};
}

void LinuxDirectoryEnumerator::enterLastDirectory()
{
    Place& place = m_path.back();
    enter(m_readAhead.fetch(*place.folder, place.nextSubfolder++));
}

void LinuxDirectoryEnumerator::leaveFolder()
{
    WalkFolder& folder = *m_path.back().folder;
    m_path.pop_back();
    if (!m_path.empty()) {
        m_readAhead.finish(folder);
    }
}

void LinuxDirectoryEnumerator::countTaken()
{
    if (++m_uncounted == kEntriesCountedTogether) {
        m_readAhead.countTaken(std::exchange(m_uncounted, 0));
    }
}

void LinuxDirectoryEnumerator::deliver(const DirectoryListing::Entry& entry, DirectoryItem& item)
{
    item.name = m_path.back().folder->listing.name(entry);
    item.level = static_cast<unsigned>(m_path.size());
    item.isDirectory = entry.kind == DirectoryListing::Kind::Directory;
    item.isHidden = entry.isHidden;
    item.allocatedBytes = entry.allocatedBytes;
    item.linkCount = entry.linkCount;
    item.identity = entry.linkCount == 0 ? FileIdentity{} : FileIdentity{entry.device, entry.inode};
    m_isAtDirectory = item.isDirectory;
}

} // namespace tessera
