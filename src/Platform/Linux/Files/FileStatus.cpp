// SPDX-License-Identifier: MIT
#include "Platform/Linux/Files/FileStatus.h"

#include "Model/Allocation.h"

#include <fcntl.h>
#include <linux/openat2.h>
#include <linux/stat.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/sysmacros.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>

namespace tessera {

namespace {

constexpr unsigned kWanted = STATX_TYPE | STATX_MODE | STATX_UID | STATX_GID | STATX_SIZE
    | STATX_INO | STATX_NLINK | STATX_BLOCKS | STATX_MTIME | STATX_CTIME | STATX_MNT_ID;

constexpr int kOpenFlags = O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC;

/// Both calls count in blocks of 512 bytes, whatever the file system's own are.
std::uint64_t allocatedBytes(std::uint64_t blocks)
{
    constexpr std::uint64_t kBytesPerBlock = 512;
    return saturatingProduct(blocks, kBytesPerBlock);
}

FileStatus fromStatx(const struct statx& values)
{
    FileStatus status;
    status.identity = {makedev(values.stx_dev_major, values.stx_dev_minor), values.stx_ino};
    status.isDirectory = S_ISDIR(values.stx_mode);
    status.isRegular = S_ISREG(values.stx_mode);
    status.mode = values.stx_mode;
    status.owner = values.stx_uid;
    status.group = values.stx_gid;
    status.linkCount = values.stx_nlink;
    status.length = values.stx_size;
    status.allocatedBytes = allocatedBytes(values.stx_blocks);
    status.modified = values.stx_mtime.tv_sec;
    status.modifiedNanoseconds = values.stx_mtime.tv_nsec;
    status.changed = values.stx_ctime.tv_sec;
    status.changedNanoseconds = values.stx_ctime.tv_nsec;
    if ((values.stx_mask & STATX_MNT_ID) != 0) {
        status.mountId = values.stx_mnt_id;
    }
    if ((values.stx_attributes_mask & STATX_ATTR_MOUNT_ROOT) != 0) {
        status.isMountRoot = (values.stx_attributes & STATX_ATTR_MOUNT_ROOT) != 0;
    }
    status.isAutomountTrigger = (values.stx_attributes & STATX_ATTR_AUTOMOUNT) != 0;
    return status;
}

FileStatus fromStat(const struct stat& values)
{
    FileStatus status;
    status.identity = {values.st_dev, values.st_ino};
    status.isDirectory = S_ISDIR(values.st_mode);
    status.isRegular = S_ISREG(values.st_mode);
    status.mode = values.st_mode;
    status.owner = values.st_uid;
    status.group = values.st_gid;
    status.linkCount = values.st_nlink;
    status.length = static_cast<std::uint64_t>(values.st_size);
    status.allocatedBytes = allocatedBytes(static_cast<std::uint64_t>(values.st_blocks));
    status.modified = values.st_mtim.tv_sec;
    status.modifiedNanoseconds = static_cast<std::uint32_t>(values.st_mtim.tv_nsec);
    status.changed = values.st_ctim.tv_sec;
    status.changedNanoseconds = static_cast<std::uint32_t>(values.st_ctim.tv_nsec);
    return status;
}

/// By the older call, which knows nothing of mounts.
StatusResult statusByStat(int directory, const char* name, int flags)
{
    struct stat values { };
    int result = 0;
    do {
        result = ::fstatat(directory, name, &values, flags);
    } while (result != 0 && errno == EINTR);
    return result == 0 ? StatusResult{0, fromStat(values)} : StatusResult{errno, {}};
}

StatusResult status(int directory, const char* name, int flags)
{
    static std::atomic<bool> isStatxMissing{false};
    if (isStatxMissing.load(std::memory_order_relaxed)) {
        return statusByStat(directory, name, flags);
    }
    struct statx values { };
    int result = 0;
    do {
        result = ::statx(directory, name, flags, kWanted, &values);
    } while (result != 0 && errno == EINTR);
    if (result == 0) {
        return {0, fromStatx(values)};
    }
    const int error = errno;
    // Container sandboxes older than the call answer EPERM where an old kernel answers ENOSYS.
    if (error != ENOSYS && error != EPERM) {
        return {error, {}};
    }
    const StatusResult byStat = statusByStat(directory, name, flags);
    if (byStat) {
        isStatxMissing.store(true, std::memory_order_relaxed);
    }
    return byStat;
}

int flagsFor(LinkMode linkMode)
{
    return AT_NO_AUTOMOUNT | (linkMode == LinkMode::Keep ? AT_SYMLINK_NOFOLLOW : 0);
}

} // namespace

StatusResult statusAt(int directory, const char* name, LinkMode linkMode)
{
    return status(directory, name, flagsFor(linkMode));
}

StatusResult mountAt(int directory, const char* name)
{
    constexpr int kFlags = AT_NO_AUTOMOUNT | AT_SYMLINK_NOFOLLOW | AT_STATX_DONT_SYNC;
    struct statx values { };
    int result = 0;
    do {
        // FUSE answers others than the mount's owner only when they ask for no field at all.
        result = ::statx(directory, name, kFlags, 0, &values);
    } while (result != 0 && errno == EINTR);
    return result == 0 ? StatusResult{0, fromStatx(values)} : StatusResult{errno, {}};
}

StatusResult statusOf(int descriptor)
{
    return status(descriptor, "", AT_EMPTY_PATH);
}

FileDescriptor openDirectoryAt(int directory, const char* name)
{
    int number = -1;
    do {
        number = ::openat(directory, name, kOpenFlags);
    } while (number < 0 && errno == EINTR);
    return FileDescriptor(number);
}

std::optional<FileDescriptor> openDirectoryOnSameMountAt(int directory, const char* name)
{
    open_how how{};
    how.flags = kOpenFlags;
    how.resolve = RESOLVE_NO_XDEV;
    long number = -1;
    do {
        number = ::syscall(SYS_openat2, directory, name, &how, sizeof(how));
    } while (number < 0 && errno == EINTR);
    // Container sandboxes older than the call answer EPERM where an old kernel answers ENOSYS.
    if (number < 0 && (errno == ENOSYS || errno == EPERM)) {
        return std::nullopt;
    }
    return FileDescriptor(static_cast<int>(number));
}

FileDescriptor openDirectoryAt(int directory, const char* name, const FileIdentity& expected)
{
    FileDescriptor opened = openDirectoryAt(directory, name);
    if (!opened.isOpen()) {
        return opened;
    }
    const StatusResult found = statusOf(opened.number());
    if (found && found.status.identity == expected) {
        return opened;
    }
    opened = FileDescriptor();
    errno = found ? ENOENT : found.error;
    return opened;
}

} // namespace tessera
