// SPDX-License-Identifier: MIT
#include "Platform/Linux/Mounts/LinuxFileSystemAttributes.h"

#include "Model/Allocation.h"
#include "Platform/Linux/Files/FileStatus.h"
#include "Platform/Linux/Mounts/MountTable.h"

#include <fcntl.h>
#include <sys/statvfs.h>

#include <algorithm>
#include <cerrno>
#include <utility>

namespace tessera {

namespace {

/// By the number of the mount; kernels before Linux 5.8 tell the device only.
std::optional<Mount> mountOf(const FileStatus& status, const MountTable& mounts)
{
    if (status.mountId) {
        return mounts.withId(*status.mountId);
    }
    const auto found
        = std::ranges::find(mounts.mounts(), status.identity.device, &Mount::deviceNumber);
    return found != mounts.mounts().end() ? std::optional(*found) : std::nullopt;
}

/// What the table of mounts says; nothing more where it does not know the place, as in a changed
/// root.
void nameFileSystem(const std::string& path, FileSystemSizes& sizes)
{
    const StatusResult found = statusAt(AT_FDCWD, path.c_str(), LinkMode::Follow);
    if (!found) {
        return;
    }
    sizes.device = found.status.identity.device;
    const std::optional<MountTable> mounts = MountTable::ofThisProcess();
    if (const auto mount = mounts ? mountOf(found.status, *mounts) : std::nullopt) {
        sizes.type = mount->fileSystemType;
        sizes.device = mount->deviceNumber().value_or(sizes.device);
    }
}

int queryFileSystem(const std::string& path, FileSystemSizes& sizes)
{
    struct statvfs values { };
    int result = 0;
    do {
        result = ::statvfs(path.c_str(), &values);
    } while (result != 0 && errno == EINTR);
    if (result != 0) {
        return errno;
    }
    sizes = sizesOf(values);
    nameFileSystem(path, sizes);
    return 0;
}

} // namespace

FileSystemSizes sizesOf(const struct statvfs& values)
{
    const std::uint64_t unit = values.f_frsize; // f_bsize is no more than advice
    FileSystemSizes sizes;
    sizes.totalBytes = saturatingProduct(values.f_blocks, unit);
    // What is reserved for the super-user is not used space.
    sizes.freeBytes = saturatingProduct(values.f_bfree, unit);
    sizes.availableBytes = saturatingProduct(values.f_bavail, unit);
    sizes.reservedBytes
        = saturatingProduct(saturatingDifference(values.f_bfree, values.f_bavail), unit);
    sizes.blockBytes = unit;
    return sizes;
}

LinuxFileSystemAttributes::LinuxFileSystemAttributes(
    std::shared_ptr<const FileSystemQuestions> questions)
    : LinuxFileSystemAttributes(std::move(questions), queryFileSystem)
{
}

LinuxFileSystemAttributes::LinuxFileSystemAttributes(
    std::shared_ptr<const FileSystemQuestions> questions, Query query)
    : m_questions(std::move(questions))
    , m_query(std::move(query))
{
}

std::optional<FileSystemSizes> LinuxFileSystemAttributes::attributesOfFileSystem(
    const std::string& path) const
{
    return m_questions->ask<FileSystemSizes>(
        path, LinkMode::Follow, [query = m_query, path]() -> std::optional<FileSystemSizes> {
            FileSystemSizes sizes;
            if (query(path, sizes) != 0) {
                return std::nullopt;
            }
            return sizes;
        });
}

} // namespace tessera
