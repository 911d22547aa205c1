// SPDX-License-Identifier: MIT
#include "Platform/Linux/LinuxFileManager.h"

#include "Platform/Linux/LinuxDirectoryEnumerator.h"

namespace tessera {

std::unique_ptr<DirectoryEnumerator> LinuxFileManager::enumerator(
    const std::string& path, ItemKeys keys) const
{
    ReadAheadOptions options = m_options;
    if (keys == ItemKeys::None) {
        // Whoever only counts names skips most folders: to read them ahead would be wasted.
        options.helpers = 0;
    }
    return std::make_unique<LinuxDirectoryEnumerator>(path, keys, options);
}

} // namespace tessera
