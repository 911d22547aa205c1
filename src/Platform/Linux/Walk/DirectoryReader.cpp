// SPDX-License-Identifier: MIT
#include "Platform/Linux/Walk/DirectoryReader.h"

#include "Platform/Linux/Files/FileStatus.h"
#include "Platform/Linux/Walk/HiddenList.h"

#include <dirent.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <limits>
#include <optional>
#include <string_view>

namespace tessera {

namespace {

using Entry = DirectoryListing::Entry;
using Kind = DirectoryListing::Kind;

/// Larger buffers were measured not to be any faster.
constexpr std::size_t kBufferBytes = std::size_t{32} * 1024;

/// A listing of so many entries may wait long for its turn; it is worth a copy to keep it small.
constexpr std::size_t kCrowdedEntries = 1024;

Kind kindOf(unsigned char type)
{
    switch (type) {
    case DT_DIR:
        return Kind::Directory;
    case DT_REG:
        return Kind::Regular;
    case DT_UNKNOWN:
        return Kind::Unknown;
    default:
        return Kind::Other;
    }
}

/// Appends the entries in one buffer of getdents64(2).
void appendEntries(DirectoryListing& listing, const char* buffer, std::size_t bytes)
{
    for (std::size_t offset = 0; offset < bytes;) {
        const auto* entry = reinterpret_cast<const dirent64*>(buffer + offset);
        offset += entry->d_reclen;
        const std::string_view name = &entry->d_name[0];
        if (name != "." && name != "..") {
            listing.append(name, entry->d_ino, kindOf(entry->d_type));
        }
    }
}

bool hasHiddenList(const DirectoryListing& listing)
{
    for (std::size_t i = 0; i < listing.size(); ++i) {
        const Entry& entry = listing[i];
        const bool canBeFile = entry.kind == Kind::Regular || entry.kind == Kind::Unknown;
        if (canBeFile && listing.name(entry) == HiddenList::kFileName) {
            return true;
        }
    }
    return false;
}

void markHidden(int directory, DirectoryListing& listing)
{
    std::optional<HiddenList> hiddenList;
    if (hasHiddenList(listing)) {
        hiddenList.emplace(directory, listing);
    }
    for (std::size_t i = 0; i < listing.size(); ++i) {
        const std::string_view name = listing.name(listing[i]);
        listing[i].isHidden = name.front() == '.' || (hiddenList && hiddenList->contains(name));
    }
}

void apply(const FileStatus& status, Entry& entry)
{
    entry.kind = status.isDirectory ? Kind::Directory : Kind::Other;
    if (status.isDirectory) {
        return;
    }
    entry.allocatedBytes = status.allocatedBytes;
    if (status.linkCount > 1) {
        // What a listing calls the inode is another one on some layered file systems.
        entry.inode = status.identity.inode;
        entry.device = static_cast<std::uint32_t>(status.identity.device);
        entry.linkCount = static_cast<std::uint32_t>(
            std::min<std::uint64_t>(status.linkCount, std::numeric_limits<std::uint32_t>::max()));
    }
}

} // namespace

ListingResult DirectoryReader::list(int directory) const
{
    ListingResult result;
    DirectoryListing& listing = result.listing;
    alignas(dirent64) std::array<char, kBufferBytes> buffer;
    while (!m_isCancelled.load(std::memory_order_relaxed)) {
        const ssize_t bytes = ::getdents64(directory, buffer.data(), buffer.size());
        if (bytes < 0 && errno == EINTR) {
            continue;
        }
        if (bytes <= 0) {
            result.error = bytes < 0 ? errno : 0;
            break;
        }
        appendEntries(listing, buffer.data(), static_cast<std::size_t>(bytes));
    }
    if (listing.size() >= kCrowdedEntries) {
        listing.shrinkToFit();
    }
    listing.sortByInode();
    if (m_keys == ItemKeys::SizeAndHidden) {
        markHidden(directory, listing);
    }
    return result;
}

bool DirectoryReader::needsStatus(const Entry& entry) const
{
    // A directory is looked at when it is opened.
    return entry.kind == Kind::Unknown
        || (m_keys == ItemKeys::SizeAndHidden && entry.kind != Kind::Directory);
}

int DirectoryReader::readStatus(
    int directory, DirectoryListing& listing, std::size_t begin, std::size_t end) const
{
    int firstError = 0;
    for (std::size_t i = begin; i < end && !m_isCancelled.load(std::memory_order_relaxed); ++i) {
        Entry& entry = listing[i];
        if (!needsStatus(entry)) {
            continue;
        }
        const StatusResult found = statusAt(directory, listing.cName(entry));
        if (found) {
            apply(found.status, entry);
            continue;
        }
        // A directory that may be listed but not searched still has entries, of unknown size.
        entry.isGone = found.error == ENOENT;
        firstError = firstError != 0 || entry.isGone ? firstError : found.error;
    }
    return firstError;
}

} // namespace tessera
