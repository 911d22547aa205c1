// SPDX-License-Identifier: MIT
#include "Platform/Linux/Files/HeldItem.h"

#include <fcntl.h>
#include <linux/stat.h>
#include <sys/stat.h>

#include <cerrno>

namespace tessera {

HeldItem holdItemAt(const FileDescriptor& folder, const std::string& name)
{
    constexpr int kFlags = O_PATH | O_NOFOLLOW | O_CLOEXEC;
    HeldItem item;
    item.held = FileDescriptor(::openat(folder.number(), name.c_str(), kFlags));
    if (!item.held.isOpen()) {
        item.error = errno;
        return item;
    }
    const StatusResult found = statusOf(item.held.number());
    item.error = found.error;
    item.status = found.status;
    item.birth = birthTimeOf(item.held.number());
    return item;
}

std::optional<std::uint64_t> birthTimeOf(int descriptor)
{
    constexpr std::uint64_t kNanosecondsPerSecond = 1'000'000'000;
    struct statx values { };
    int result = 0;
    do {
        result = ::statx(descriptor, "", AT_EMPTY_PATH, STATX_BTIME, &values);
    } while (result != 0 && errno == EINTR);
    if (result != 0 || (values.stx_mask & STATX_BTIME) == 0) {
        return std::nullopt;
    }
    // Disks that count from another year or were damaged tell any number.
    return static_cast<std::uint64_t>(values.stx_btime.tv_sec) * kNanosecondsPerSecond
        + values.stx_btime.tv_nsec;
}

bool isAnotherItemAt(
    const FileDescriptor& folder, const std::string& name, const FileDescriptor& held)
{
    const StatusResult there = statusAt(folder.number(), name.c_str());
    const StatusResult wanted = statusOf(held.number());
    return there && wanted && there.status.identity != wanted.status.identity;
}

} // namespace tessera
