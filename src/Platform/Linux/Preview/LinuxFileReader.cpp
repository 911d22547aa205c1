// SPDX-License-Identifier: MIT
#include "Platform/Linux/Preview/LinuxFileReader.h"

#include "Platform/Linux/Files/FileDescriptor.h"
#include "Platform/Linux/Files/LastError.h"
#include "Platform/Linux/Files/LongPath.h"
#include "Platform/Linux/Preview/LinuxReadableFile.h"

#include <fcntl.h>
#include <linux/stat.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <climits>
#include <utility>
#include <variant>

namespace tessera {

namespace {

/// Names a place in the file system without opening what is there: no driver, no writer of a pipe
/// and no automounter notices.
constexpr int kPlaceFlags = O_PATH | O_CLOEXEC;

/// A lease or a pipe in disguise answers "not now" instead of making us wait; a terminal does not
/// become ours.
constexpr int kContentFlags = O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC;

using Opened = std::variant<FileDescriptor, std::error_code>;

Opened openAt(int directory, const std::string& name, int flags)
{
    int number = -1;
    do {
        number = ::openat(directory, name.c_str(), flags);
    } while (number < 0 && errno == EINTR);
    if (number < 0) {
        return lastError();
    }
    return FileDescriptor(number);
}

/// A link that is met on the way was put there after the scan, and may lead to anything.
Opened openPlace(const std::string& path)
{
    const NamedPlace place = openFolderOfWithoutLinks(path);
    if (place.error != 0) {
        return std::error_code(place.error, std::generic_category());
    }
    return openAt(place.folder.number(), place.name, kPlaceFlags | O_NOFOLLOW);
}

FileKind kindOf(mode_t mode)
{
    switch (mode & S_IFMT) {
    case S_IFREG:
        return FileKind::Regular;
    case S_IFDIR:
        return FileKind::Folder;
    case S_IFLNK:
        return FileKind::SymbolicLink;
    case S_IFIFO:
        return FileKind::Fifo;
    case S_IFSOCK:
        return FileKind::Socket;
    case S_IFBLK:
        return FileKind::BlockDevice;
    case S_IFCHR:
        return FileKind::CharacterDevice;
    default:
        return FileKind::Unknown;
    }
}

std::optional<std::int64_t> creationTime(const FileDescriptor& place)
{
    struct statx values { };
    const int result = ::statx(place.number(), "", AT_EMPTY_PATH, STATX_BTIME, &values);
    if (result != 0 || (values.stx_mask & STATX_BTIME) == 0) {
        return std::nullopt;
    }
    return values.stx_btime.tv_sec;
}

std::string linkTarget(const FileDescriptor& place)
{
    std::string target(PATH_MAX, '\0');
    const ssize_t length = ::readlinkat(place.number(), "", target.data(), target.size());
    target.resize(length < 0 ? 0 : static_cast<std::size_t>(length));
    return target;
}

FileDescription describe(const FileDescriptor& place)
{
    FileDescription description;
    struct stat values { };
    if (::fstat(place.number(), &values) != 0) {
        description.error = lastError();
        return description;
    }
    description.kind = kindOf(values.st_mode);
    description.modified = values.st_mtim.tv_sec;
    description.created = creationTime(place);
    if (description.kind == FileKind::Regular) {
        description.length = static_cast<std::uint64_t>(values.st_size);
    } else if (description.kind == FileKind::SymbolicLink) {
        description.linkTarget = linkTarget(place);
    }
    return description;
}

/// Opens what `place` stands for, whatever has taken its name meanwhile.
Opened openContent(const FileDescriptor& place)
{
    const std::string link = "/proc/self/fd/" + std::to_string(place.number());
    // A look at a file should not count as use of it, but only its owner may ask for that.
    Opened content = openAt(AT_FDCWD, link, kContentFlags | O_NOATIME);
    const auto* error = std::get_if<std::error_code>(&content);
    if (error != nullptr && *error == std::errc::operation_not_permitted) {
        return openAt(AT_FDCWD, link, kContentFlags);
    }
    return content;
}

} // namespace

OpenedFile LinuxFileReader::open(const std::string& path) const
{
    OpenedFile opened;
    const Opened place = openPlace(path);
    if (const auto* error = std::get_if<std::error_code>(&place)) {
        opened.description.error = *error;
        return opened;
    }
    const auto& found = std::get<FileDescriptor>(place);
    opened.description = describe(found);
    if (opened.description.kind != FileKind::Regular) {
        return opened;
    }
    Opened content = openContent(found);
    if (const auto* error = std::get_if<std::error_code>(&content)) {
        opened.contentError = *error;
    } else {
        opened.content
            = std::make_unique<LinuxReadableFile>(std::get<FileDescriptor>(std::move(content)));
    }
    return opened;
}

} // namespace tessera
