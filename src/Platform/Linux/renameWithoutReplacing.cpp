// SPDX-License-Identifier: MIT
#include "Platform/Linux/renameWithoutReplacing.h"

#include "Platform/Linux/FileStatus.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <cerrno>
#include <cstdio>

namespace tessera {

namespace {

constexpr mode_t kPlaceholderFileMode = 0600;
constexpr mode_t kPlaceholderFolderMode = 0700;

int makePlaceholder(const FolderEntry& place, bool isDirectory)
{
    if (isDirectory) {
        const int result
            = ::mkdirat(place.folder.number(), place.name.c_str(), kPlaceholderFolderMode);
        return result == 0 ? 0 : errno;
    }
    const FileDescriptor file(::openat(
        place.folder.number(),
        place.name.c_str(),
        O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC,
        kPlaceholderFileMode));
    return file.isOpen() ? 0 : errno;
}

} // namespace

int renameWithoutReplacing(const FolderEntry& from, const FolderEntry& to)
{
    const int result = ::renameat2(
        from.folder.number(),
        from.name.c_str(),
        to.folder.number(),
        to.name.c_str(),
        RENAME_NOREPLACE);
    const int error = result == 0 ? 0 : errno;
    // What the file system or the kernel does not know is one of these two.
    return error == EINVAL || error == ENOSYS ? renameOntoPlaceholder(from, to) : error;
}

int renameOntoPlaceholder(const FolderEntry& from, const FolderEntry& to)
{
    // Not a second link and the removal of the first: what another program puts under the old name
    // in between would be removed.
    const StatusResult found = statusAt(from.folder.number(), from.name.c_str());
    if (!found) {
        return found.error;
    }
    const bool isDirectory = found.status.isDirectory;
    if (const int error = makePlaceholder(to, isDirectory); error != 0) {
        return error;
    }
    const int result
        = ::renameat(from.folder.number(), from.name.c_str(), to.folder.number(), to.name.c_str());
    const int error = result == 0 ? 0 : errno;
    if (error != 0) {
        ::unlinkat(to.folder.number(), to.name.c_str(), isDirectory ? AT_REMOVEDIR : 0);
    }
    return error;
}

} // namespace tessera
