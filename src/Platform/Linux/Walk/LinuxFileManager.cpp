// SPDX-License-Identifier: MIT
#include "Platform/Linux/Walk/LinuxFileManager.h"

#include "Platform/Linux/Files/FileStatus.h"
#include "Platform/Linux/Files/LongPath.h"
#include "Platform/Linux/Files/RealPath.h"
#include "Platform/Linux/Walk/LinuxDirectoryEnumerator.h"

#include <fcntl.h>

namespace tessera {

namespace {

/// A scan counts the items of its upper two levels: those of the start and of the folders in it.
constexpr std::size_t kLevelsCountedAhead = 1;

FileDescriptor openStart(const std::string& path, LinksToStart links)
{
    if (links == LinksToStart::Follow || path == "/") {
        return FileDescriptor(::open(path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    }
    const NamedPlace place = openFolderOfWithoutLinks(path);
    return place.error == 0 ? openDirectoryAt(place.folder.number(), place.name.c_str())
                            : FileDescriptor();
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
