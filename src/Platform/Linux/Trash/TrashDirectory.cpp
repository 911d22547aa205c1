// SPDX-License-Identifier: MIT
#include "Platform/Linux/Trash/TrashDirectory.h"

#include "Base/Log.h"
#include "Platform/Linux/Trash/TrashItem.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <utility>

namespace tessera {

namespace {

constexpr std::string_view kSharedName = ".Trash";

/// A folder by its path as far as it is there, and the components that are still to be made.
struct PartOfPath {
    FileDescriptor deepest;
    std::vector<std::string> missing;
    int error = 0; ///< why what is there cannot be entered
};

FileDescriptor enter(const FileDescriptor& parent, const std::string& name, int linkFlag = 0)
{
    return FileDescriptor(
        ::openat(parent.number(), name.c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC | linkFlag));
}

std::vector<std::string> componentsOf(std::string_view path)
{
    std::vector<std::string> components;
    while (!path.empty()) {
        const std::size_t end = std::min(path.find('/'), path.size());
        if (end > 0) {
            components.emplace_back(path.substr(0, end));
        }
        path.remove_prefix(std::min(end + 1, path.size()));
    }
    return components;
}

PartOfPath enterAsFarAsPossible(std::string_view path)
{
    PartOfPath part;
    part.deepest = enter(FileDescriptor(), "/");
    for (std::string& component : componentsOf(path)) {
        if (part.missing.empty()) {
            FileDescriptor next = enter(part.deepest, component);
            if (next.isOpen()) {
                part.deepest = std::move(next);
                continue;
            }
            part.error = errno == ENOENT ? 0 : errno;
        }
        part.missing.push_back(std::move(component));
    }
    return part;
}

bool isPrivateFolderOf(uid_t user, const FileDescriptor& folder)
{
    struct stat values { };
    return ::fstat(folder.number(), &values) == 0 && S_ISDIR(values.st_mode)
        && values.st_uid == user;
}

/// Whether ".Trash" is what the specification asks for: a folder, no link to one, in which nobody
/// can remove what belongs to others.
bool isForAllUsers(const FileDescriptor& folder)
{
    struct stat values { };
    return ::fstat(folder.number(), &values) == 0 && (values.st_mode & S_ISVTX) != 0;
}

int openParts(TrashDirectory& trash, const FileDescriptor& folder)
{
    for (auto [name, part] : {std::pair("files", &trash.files), std::pair("info", &trash.info)}) {
        if (const int error = trash.newFolders.make(folder, name); error != 0) {
            return error;
        }
        *part = enter(folder, name, O_NOFOLLOW);
        if (!part->isOpen()) {
            return errno;
        }
    }
    trash.path = pathOf(folder);
    return trash.path.empty() ? ENOENT : 0;
}

/// The administrator made one for all users, and should learn why it is passed over.
void logUnsafeTrash(const std::string& topDirectory)
{
    logLine(
        "%s/%s is not used as a trash: it is no folder, or others may remove what is in it",
        topDirectory == "/" ? "" : topDirectory.c_str(),
        kSharedName.data());
}

TrashDirectoryResult openOwnTrash(const FileDescriptor& parent, const std::string& name, uid_t user)
{
    TrashDirectoryResult result;
    result.error = result.trash.newFolders.make(parent, name);
    if (result.error != 0) {
        return result;
    }
    const FileDescriptor folder = enter(parent, name, O_NOFOLLOW);
    if (!folder.isOpen()) {
        result.error = errno;
    } else if (!isPrivateFolderOf(user, folder)) {
        result.error = EPERM;
    } else {
        result.error = openParts(result.trash, folder);
    }
    return result;
}

} // namespace

NewFolders::~NewFolders()
{
    while (!m_made.empty()) {
        const Folder& last = m_made.back();
        ::unlinkat(last.parent.number(), last.name.c_str(), AT_REMOVEDIR);
        m_made.pop_back();
    }
}

int NewFolders::make(const FileDescriptor& parent, const std::string& name, mode_t mode)
{
    if (::mkdirat(parent.number(), name.c_str(), mode) != 0) {
        return errno == EEXIST ? 0 : errno;
    }
    m_made.push_back({FileDescriptor(::fcntl(parent.number(), F_DUPFD_CLOEXEC, 0)), name});
    return 0;
}

int NewFolders::sync() const
{
    for (const Folder& made : m_made) {
        if (const int error = syncFolder(made.parent); error != 0) {
            return error;
        }
    }
    return 0;
}

bool isOnSameMount(const FileStatus& folder, const FileStatus& other)
{
    const bool isSameNumber
        = !folder.mountId || !other.mountId || *folder.mountId == *other.mountId;
    return isSameNumber && folder.identity.device == other.identity.device;
}

bool isTrashOnMountOf(const FileStatus& folder, std::string_view path)
{
    const PartOfPath part = enterAsFarAsPossible(path);
    const StatusResult there = statusOf(part.deepest.number());
    return part.error == 0 && there && isOnSameMount(folder, there.status);
}

bool isInTopTrash(std::string_view path, const std::string& topDirectory)
{
    const std::vector<std::string> components = componentsOf(path.substr(topDirectory.size()));
    if (components.empty() || !components.front().starts_with(kSharedName)) {
        return false;
    }
    const std::string_view rest = std::string_view(components.front()).substr(kSharedName.size());
    if (rest.empty()) {
        return isForAllUsers(
            enter(enter(FileDescriptor(), topDirectory), std::string(kSharedName), O_NOFOLLOW));
    }
    const std::string_view number = rest.substr(1);
    return rest.starts_with('-') && !number.empty()
        && number.find_first_not_of("0123456789") == std::string_view::npos;
}

int openPrivateFolder(std::string_view path, FileDescriptor& folder, NewFolders& newFolders)
{
    PartOfPath part = enterAsFarAsPossible(path);
    int error = part.error;
    for (const std::string& component : part.missing) {
        if (error == 0) {
            error = newFolders.make(part.deepest, component);
        }
        if (error != 0) {
            return error;
        }
        part.deepest = enter(part.deepest, component);
        error = part.deepest.isOpen() ? 0 : errno;
    }
    folder = std::move(part.deepest);
    return error;
}

int syncFolder(const FileDescriptor& folder)
{
    // One that is opened for reaching what is in it cannot be synced.
    constexpr int kFlags = O_RDONLY | O_DIRECTORY | O_CLOEXEC;
    const FileDescriptor opened(::openat(folder.number(), ".", kFlags));
    if (!opened.isOpen()) {
        return errno;
    }
    const int error = ::fsync(opened.number()) == 0 ? 0 : errno;
    return error == EINVAL || error == ENOSYS || error == EOPNOTSUPP ? 0 : error;
}

TrashDirectoryResult openHomeTrash(std::string_view path)
{
    TrashDirectoryResult result;
    FileDescriptor folder;
    result.error = openPrivateFolder(path, folder, result.trash.newFolders);
    if (result.error == 0) {
        result.error = openParts(result.trash, folder);
    }
    return result;
}

TrashDirectoryResult openTopTrash(const std::string& topDirectory, uid_t user)
{
    const std::string number = std::to_string(user);
    const FileDescriptor top = enter(FileDescriptor(), topDirectory);
    const FileDescriptor shared = enter(top, std::string(kSharedName), O_NOFOLLOW);
    const bool isThere = shared.isOpen() || errno != ENOENT;
    TrashDirectoryResult result;
    result.error = EPERM;
    if (shared.isOpen() && isForAllUsers(shared)) {
        result = openOwnTrash(shared, number, user);
    } else if (isThere) {
        logUnsafeTrash(topDirectory);
    }
    if (!result) {
        result = openOwnTrash(top, std::string(kSharedName) + '-' + number, user);
    }
    result.trash.topDirectory = topDirectory;
    return result;
}

} // namespace tessera
