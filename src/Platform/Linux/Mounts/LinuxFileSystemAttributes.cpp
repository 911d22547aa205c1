// SPDX-License-Identifier: MIT
#include "Platform/Linux/Mounts/LinuxFileSystemAttributes.h"

#include "Model/Allocation.h"

#include <sys/statvfs.h>

#include <cerrno>
#include <utility>

namespace tessera {

namespace {

int queryStatvfs(const std::string& path, FileSystemSizes& sizes)
{
    struct statvfs values { };
    int result = 0;
    do {
        result = ::statvfs(path.c_str(), &values);
    } while (result != 0 && errno == EINTR);
    if (result != 0) {
        return errno;
    }
    // f_bfree, not f_bavail: what is reserved for the super-user is not used space.
    sizes.totalBytes = saturatingProduct(values.f_blocks, values.f_frsize);
    sizes.freeBytes = saturatingProduct(values.f_bfree, values.f_frsize);
    return 0;
}

} // namespace

LinuxFileSystemAttributes::LinuxFileSystemAttributes(
    std::shared_ptr<const FileSystemQuestions> questions)
    : LinuxFileSystemAttributes(std::move(questions), queryStatvfs)
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
