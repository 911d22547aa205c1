// SPDX-License-Identifier: MIT
#include "Platform/Linux/LinuxFileManager.h"

#include "Platform/Linux/LinuxDirectoryEnumerator.h"

namespace tessera {

namespace {

/// A scan counts the items of its upper two levels: those of the start and of the folders in it.
constexpr std::size_t kLevelsCountedAhead = 1;

} // namespace

std::unique_ptr<DirectoryEnumerator> LinuxFileManager::enumerator(
    const std::string& path, ItemKeys keys) const
{
    ReadAheadOptions options = m_options;
    if (keys == ItemKeys::None) {
        // Whoever only counts names skips what lies deeper: to read that ahead would be wasted.
        options.levelsAhead = kLevelsCountedAhead;
    }
    return std::make_unique<LinuxDirectoryEnumerator>(path, keys, options);
}

} // namespace tessera
