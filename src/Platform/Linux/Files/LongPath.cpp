// SPDX-License-Identifier: MIT
#include "Platform/Linux/Files/LongPath.h"

#include "Platform/Linux/Files/FileStatus.h"

#include <fcntl.h>
#include <linux/openat2.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <climits>
#include <cstddef>
#include <filesystem>
#include <string_view>
#include <system_error>
#include <utility>

namespace tessera {

namespace {

constexpr std::size_t kMaxPieceLength = PATH_MAX - 1;

FileDescriptor openForReaching(int folder, const std::string& path)
{
    int number = -1;
    do {
        number = ::openat(folder, path.c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC);
    } while (number < 0 && errno == EINTR);
    return FileDescriptor(number);
}

FileDescriptor stepInto(int folder, const std::string& name)
{
    constexpr int kFlags = O_PATH | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC;
    FileDescriptor opened(::openat(folder, name.c_str(), kFlags));
    if (!opened.isOpen() && errno == ENOTDIR) {
        const StatusResult found = statusAt(folder, name.c_str());
        errno = found && S_ISLNK(found.status.mode) ? ELOOP : ENOTDIR;
    }
    return opened;
}

/// Goes down name by name, for kernels and sandboxes that cannot do it in one call.
FileDescriptor openStepByStep(int folder, std::string_view path)
{
    FileDescriptor reached = openForReaching(folder, path.starts_with('/') ? "/" : ".");
    while (reached.isOpen() && !path.empty()) {
        const std::string name(path.substr(0, path.find('/')));
        path.remove_prefix(std::min(name.size() + 1, path.size()));
        if (!name.empty()) {
            reached = stepInto(reached.number(), name);
        }
    }
    return reached;
}

/// As openForReaching(), but a link is ELOOP.
FileDescriptor openWithoutLinks(int folder, const std::string& path)
{
    open_how how{};
    how.flags = O_PATH | O_DIRECTORY | O_CLOEXEC;
    how.resolve = RESOLVE_NO_SYMLINKS;
    long number = -1;
    do {
        number = ::syscall(SYS_openat2, folder, path.c_str(), &how, sizeof(how));
    } while (number < 0 && errno == EINTR);
    // Container sandboxes older than the call answer EPERM where an old kernel answers ENOSYS.
    if (number < 0 && (errno == ENOSYS || errno == EPERM)) {
        return openStepByStep(folder, path);
    }
    return FileDescriptor(static_cast<int>(number));
}

/// Opens a folder; when that fails, errno says why.
using OpenFolder = FileDescriptor (*)(int folder, const std::string& path);

/// The longest beginning of a relative path that one call takes and that ends with a whole name.
std::string_view firstPiece(std::string_view path)
{
    if (path.size() <= kMaxPieceLength) {
        return path;
    }
    const std::size_t slash = path.rfind('/', kMaxPieceLength);
    return path.substr(0, slash == 0 || slash == std::string_view::npos ? path.size() : slash);
}

NamedPlace openFolder(std::string_view path, std::string name, OpenFolder open)
{
    NamedPlace place;
    place.name = std::move(name);
    std::string piece = path.starts_with('/') ? "/" : ".";
    int from = AT_FDCWD;
    do {
        place.folder = open(from, piece);
        if (!place.folder.isOpen()) {
            place.error = errno;
            return place;
        }
        from = place.folder.number();
        path.remove_prefix(std::min(path.find_first_not_of('/'), path.size()));
        piece = firstPiece(path);
        path.remove_prefix(piece.size());
    } while (!piece.empty());
    return place;
}

} // namespace

NamedPlace openFolderOf(const std::string& path)
{
    std::string_view rest = path;
    while (rest.ends_with('/')) {
        rest.remove_suffix(1);
    }
    const std::size_t slash = rest.rfind('/');
    const std::size_t nameStart = slash == std::string_view::npos ? 0 : slash + 1;
    const std::string_view name = rest.substr(nameStart);
    if (name != "." && name != ".." && !name.empty()) {
        return openFolder(rest.substr(0, nameStart), std::string(name), openForReaching);
    }
    std::error_code error;
    const std::filesystem::path resolved = std::filesystem::canonical(path, error);
    if (!error && !resolved.has_filename()) {
        error = std::make_error_code(std::errc::invalid_argument);
    }
    if (error) {
        return {error.value(), {}, {}};
    }
    return openFolder(
        resolved.parent_path().native(), resolved.filename().string(), openForReaching);
}

NamedPlace openFolderOfWithoutLinks(const std::string& path)
{
    const std::size_t nameStart = path.rfind('/') + 1;
    std::string name = path.substr(nameStart);
    if (!path.starts_with('/') || name.empty() || name == "." || name == "..") {
        return {EINVAL, {}, {}};
    }
    return openFolder(
        std::string_view(path).substr(0, nameStart), std::move(name), openWithoutLinks);
}

} // namespace tessera
