// SPDX-License-Identifier: MIT
#include "Model/Volume.h"

#include "Base/Log.h"
#include "Model/Allocation.h"
#include "Model/FileSystemAttributes.h"

#include <algorithm>
#include <cinttypes>

namespace tessera {

Volume::Volume()
    : TopFolder(kType)
    , m_freeFile(static_cast<FreeSpace*>(&addChild(makeNode<FreeSpace>({}))))
    , m_unreadFile(static_cast<Unknown*>(&addChild(makeNode<Unknown>({}))))
{
}

void Volume::refreshVolume(const FileSystemAttributes& fileSystem)
{
    refreshVolume(fileSystem.attributesOfFileSystem(origin()).value_or(FileSystemSizes{}));
}

void Volume::refreshVolume(const FileSystemSizes& sizes)
{
    logLine(
        "Volume Report { Total Size: %" PRIu64 ", Free Size: %" PRIu64 " }",
        sizes.totalBytes,
        sizes.freeBytes);
    m_volumeSize = std::min(sizes.totalBytes, kMaxAllocation);
    m_freeSize = std::min(sizes.freeBytes, m_volumeSize);
    m_device = m_device == 0 ? sizes.device : m_device;

    const std::uint64_t found = foundAllocation();
    logLine("Scan report { Found Size: %" PRIu64 " }", found);

    const std::uint64_t used = m_volumeSize - m_freeSize;
    // A walk that found more than the used space (files may share extents, and a disk changes under
    // the walk) says nothing about what it missed, so the last known figure stays.
    if (found < used) {
        m_unreadFile->setTotalAllocation(used - found);
    }
    m_freeFile->setTotalAllocation(m_freeSize);
    setTotalAllocation(used);
    sort();
}

bool Volume::mayBeSizesOfIt(const FileSystemSizes& sizes) const
{
    return m_device == 0 || sizes.device == 0 || sizes.device == m_device;
}

std::uint64_t Volume::foundAllocation() const
{
    std::uint64_t found = 0;
    for (const File* child : children()) {
        if (child->type() != NodeType::Unknown && child->type() != NodeType::FreeSpace) {
            found = saturatingSum(found, child->totalAllocation());
        }
    }
    return found;
}

} // namespace tessera
