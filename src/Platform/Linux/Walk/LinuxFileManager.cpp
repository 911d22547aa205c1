// SPDX-License-Identifier: MIT
#include "Platform/Linux/Walk/LinuxFileManager.h"

#include "Platform/Linux/Files/FileStatus.h"
#include "Platform/Linux/Files/LongPath.h"
#include "Platform/Linux/Files/RealPath.h"
#include "Platform/Linux/Walk/LinuxDirectoryEnumerator.h"

#include <fcntl.h>

#include <cerrno>
#include <utility>

namespace tessera {

namespace {

/// A scan counts the items of its upper two levels: those of the start and of the folders in it.
constexpr std::size_t kLevelsCountedAhead = 1;

/// The start's own mount is the one that is walked, so a folder that cannot be opened has its bytes
/// on it.
OpenedFolder openStart(const std::string& path, LinksToStart links)
{
    if (links == LinksToStart::Follow || path == "/") {
        FileDescriptor opened(::open(path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
        const int error = errno;
        return opened.isOpen()
            ? OpenedFolder{std::move(opened)}
            : unopened(error, statusAt(AT_FDCWD, path.c_str(), LinkMode::Follow));
    }
    const NamedPlace place = openFolderOfWithoutLinks(path);
    if (place.error != 0) {
        return {FileDescriptor(), unlessGone(place.error)};
    }
    FileDescriptor opened = openDirectoryAt(place.folder.number(), place.name.c_str());
    const int error = errno;
    return opened.isOpen() ? OpenedFolder{std::move(opened)}
                           : unopened(error, statusAt(place.folder.number(), place.name.c_str()));
}

} // namespace

std::unique_ptr<DirectoryEnumerator> LinuxFileManager::enumerator(
    const std::string& path, ItemKeys keys, LinksToStart links) const
{
    ReadAheadOptions options = m_options;
    if (keys == ItemKeys::None) {
        // Whoever only counts names skips what lies deeper: to read that ahead would be wasted.
        options.levelsAhead = kLevelsCountedAhead;
    }
    return std::make_unique<LinuxDirectoryEnumerator>(openStart(path, links), keys, options);
}

std::string LinuxFileManager::pathWithoutLinks(const std::string& path) const
{
    return realPath(path).value_or(path);
}

} // namespace tessera
