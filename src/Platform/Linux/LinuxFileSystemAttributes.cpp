// SPDX-License-Identifier: MIT
#include "Platform/Linux/LinuxFileSystemAttributes.h"

#include <sys/statvfs.h>

#include <cerrno>
#include <future>
#include <memory>
#include <thread>
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
    sizes.totalBytes = std::uint64_t{values.f_blocks} * values.f_frsize;
    sizes.freeBytes = std::uint64_t{values.f_bfree} * values.f_frsize;
    return 0;
}

} // namespace

LinuxFileSystemAttributes::LinuxFileSystemAttributes()
    : LinuxFileSystemAttributes(queryStatvfs, kTimeLimit)
{
}

LinuxFileSystemAttributes::LinuxFileSystemAttributes(
    Query query, std::chrono::milliseconds timeLimit)
    : m_query(std::move(query))
    , m_timeLimit(timeLimit)
{
}

std::optional<FileSystemSizes> LinuxFileSystemAttributes::attributesOfFileSystem(
    const std::string& path) const
{
    auto answer = std::make_shared<std::promise<std::optional<FileSystemSizes>>>();
    std::future<std::optional<FileSystemSizes>> pending = answer->get_future();
    // A call stuck in the kernel cannot be taken back, so its thread is left to itself; it shares
    // the promise, because it may outlive this call.
    std::thread([query = m_query, path, answer] {
        FileSystemSizes sizes;
        const int error = query(path, sizes);
        answer->set_value(error == 0 ? std::optional(sizes) : std::nullopt);
    }).detach();
    if (pending.wait_for(m_timeLimit) != std::future_status::ready) {
        return std::nullopt;
    }
    return pending.get();
}

} // namespace tessera
