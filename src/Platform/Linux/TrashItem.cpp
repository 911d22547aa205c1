// SPDX-License-Identifier: MIT
#include "Platform/Linux/TrashItem.h"

#include <fcntl.h>

#include <array>
#include <cerrno>
#include <climits>
#include <system_error>
#include <utility>

namespace tessera {

namespace {

FileDescriptor openParent(const std::string& path)
{
    // Links above the item are followed, as for everybody who uses this path.
    const std::size_t slash = path.rfind('/');
    const std::string parent = slash == 0 ? "/" : path.substr(0, slash);
    return FileDescriptor(::open(parent.c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC));
}

std::string changedKindSentence(const std::string& name, bool isDirectory)
{
    return '\'' + name + "' was not moved, because it has changed since the scan: it is "
        + (isDirectory ? "a folder now." : "no folder any more.");
}

TrashItemResult failure(std::string sentence)
{
    TrashItemResult result;
    result.error = std::move(sentence);
    return result;
}

} // namespace

TrashItemResult findTrashItem(const Url& url)
{
    TrashItemResult result;
    TrashItem& item = result.item;
    item.name = url.lastPathComponent();
    if (!url.path().starts_with('/') || item.name == "/" || item.name == "." || item.name == "..") {
        return failure('\'' + url.path() + "' cannot be moved to the trash.");
    }
    item.parent = openParent(url.path());
    if (!item.parent.isOpen()) {
        return failure(trashErrorSentence(item.name, errno));
    }
    const StatusResult parent = statusOf(item.parent.number());
    const StatusResult found = statusAt(item.parent.number(), item.name.c_str());
    const std::string parentPath = pathOf(item.parent);
    if (!parent || !found || parentPath.empty()) {
        return failure(trashErrorSentence(item.name, found ? ENOENT : found.error));
    }
    item.parentStatus = parent.status;
    item.status = found.status;
    item.path = (parentPath == "/" ? "" : parentPath) + '/' + item.name;
    if (item.status.isDirectory != url.isDirectory()) {
        return failure(changedKindSentence(item.name, item.status.isDirectory));
    }
    return result;
}

std::string trashErrorSentence(const std::string& name, int error)
{
    const std::string quoted = '\'' + name + '\'';
    switch (error) {
    case ENOENT:
    case ENOTDIR:
        return quoted + " was not moved to the trash, because it is not there any more.";
    case EACCES:
    case EPERM:
        return quoted + " was not moved to the trash, because you have no permission to do so.";
    case EROFS:
        return quoted + " was not moved to the trash, because its disk can only be read.";
    case ENOSPC:
    case EDQUOT:
        return quoted + " was not moved to the trash, because its disk has no space left.";
    case EXDEV:
        return quoted + " was not moved to the trash, because it could only be copied there.";
    case EBUSY:
        return quoted + " was not moved to the trash, because the system is using it.";
    case ENAMETOOLONG:
        return quoted + " was not moved to the trash, because its path is too long.";
    default:
        return quoted + " was not moved to the trash: " + std::generic_category().message(error)
            + '.';
    }
}

std::string noTrashSentence(const std::string& name, int error)
{
    switch (error) {
    case EROFS:
    case ENOSPC:
    case EDQUOT:
        return trashErrorSentence(name, error);
    default:
        return '\'' + name + "' was not moved to the trash, because its disk has no trash for you.";
    }
}

std::string pathOf(const FileDescriptor& opened)
{
    const std::string link = "/proc/self/fd/" + std::to_string(opened.number());
    std::array<char, PATH_MAX> buffer{};
    const ssize_t length = ::readlink(link.c_str(), buffer.data(), buffer.size());
    const std::string path(buffer.data(), length > 0 ? static_cast<std::size_t>(length) : 0);
    // The path of what was removed goes on with a note, and may by chance be another one's.
    const StatusResult there = statusAt(AT_FDCWD, path.c_str());
    const StatusResult wanted = statusOf(opened.number());
    return there && wanted && there.status.identity == wanted.status.identity ? path : "";
}

} // namespace tessera
