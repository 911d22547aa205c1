// SPDX-License-Identifier: MIT
#include "Platform/Linux/Files/WriteWholeFile.h"

#include "Platform/Linux/Files/FileDescriptor.h"
#include "Platform/Linux/Files/LastError.h"
#include "Platform/Linux/Files/RenameWithoutReplacing.h"
#include "Platform/Linux/Files/WriteAll.h"

#include <fcntl.h>
#include <linux/magic.h>
#include <sys/stat.h>
#include <sys/vfs.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <climits>
#include <csignal>
#include <cstdio>
#include <ctime>
#include <optional>
#include <random>
#include <utility>
#include <vector>

namespace tessera {

namespace {

constexpr mode_t kNewFileMode = 0666; // of which the system takes what the user's umask says
constexpr mode_t kTemporaryMode = 0600;
constexpr mode_t kPermissions = 0777;
constexpr const char* kAccessList = "system.posix_acl_access";
constexpr int kMostTries = 100;

using Status = struct stat;

/// An open folder and the name of a file in it.
struct Target {
    FileDescriptor folder;
    std::string name;
};

bool isOnProc(const FileDescriptor& folder)
{
    struct statfs values { };
    return ::fstatfs(folder.number(), &values) == 0 && values.f_type == PROC_SUPER_MAGIC;
}

/// One step from `base`, an open folder or AT_FDCWD.
std::optional<Target> placeOf(int base, const std::string& path)
{
    const std::size_t slash = path.rfind('/');
    const std::string folder = slash == std::string::npos ? "." : path.substr(0, slash + 1);
    const std::string name = slash == std::string::npos ? path : path.substr(slash + 1);
    FileDescriptor opened(::openat(base, folder.c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC));
    if (!opened.isOpen()) {
        return std::nullopt;
    }
    return Target{std::move(opened), name};
}

/// Where the links at the path's end lead to, also when nothing is there yet. None, with errno,
/// when that is no place in a folder: the standard output's link in /proc has a path as its text,
/// but leads to what is open, which others go on writing to.
std::optional<Target> followLinks(const std::string& path)
{
    constexpr int kMostLinks = 40; // as the kernel's limit
    std::array<char, PATH_MAX> text{};
    std::optional<Target> place = placeOf(AT_FDCWD, path);
    for (int links = 0; place && links < kMostLinks; ++links) {
        const ssize_t length
            = ::readlinkat(place->folder.number(), place->name.c_str(), text.data(), text.size());
        if (length < 0) {
            return place;
        }
        if (isOnProc(place->folder)) {
            errno = ENOENT;
            return std::nullopt;
        }
        place = placeOf(
            place->folder.number(), std::string(text.data(), static_cast<std::size_t>(length)));
    }
    return place ? std::nullopt : std::move(place);
}

bool isSameFile(const Target& place, const Status& file)
{
    Status found{};
    return ::fstatat(place.folder.number(), place.name.c_str(), &found, AT_SYMLINK_NOFOLLOW) == 0
        && found.st_dev == file.st_dev && found.st_ino == file.st_ino;
}

/// A new file in a folder, which is gone again unless it was moved into its place.
class Temporary {
public:
    Temporary(const FileDescriptor& folder, mode_t mode)
        : m_folder(folder)
    {
        std::random_device random;
        do {
            // Not derived from the file's own name, which may be as long as names can be.
            m_name = ".tessera-" + std::to_string(random());
            m_file = FileDescriptor(::openat(
                folder.number(), m_name.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, mode));
            m_error = m_file.isOpen() ? 0 : errno;
        } while (m_error == EEXIST && ++m_tries < kMostTries);
    }
    Temporary(const Temporary&) = delete;
    Temporary& operator=(const Temporary&) = delete;
    ~Temporary()
    {
        if (m_file.isOpen() && !m_isMoved) {
            ::unlinkat(m_folder.number(), m_name.c_str(), 0);
        }
    }

    /// Why there is none, as errno; 0 when there is.
    int error() const { return m_error; }
    const FileDescriptor& file() const { return m_file; }

    /// 0, or errno.
    int replace(const Target& place)
    {
        m_isMoved
            = ::renameat(
                  m_folder.number(), m_name.c_str(), place.folder.number(), place.name.c_str())
            == 0;
        return m_isMoved ? 0 : errno;
    }

    int moveTo(const Target& place)
    {
        const int error = renameWithoutReplacing({m_folder, m_name}, {place.folder, place.name});
        m_isMoved = error == 0;
        return error;
    }

private:
    const FileDescriptor& m_folder;
    std::string m_name;
    FileDescriptor m_file;
    int m_error = 0;
    int m_tries = 0;
    bool m_isMoved = false;
};

/// Gives a file the same access list as another, or none: its folder may have given it one. Not
/// every file system has such lists.
bool copyAccessList(const FileDescriptor& from, const FileDescriptor& to)
{
    const ssize_t length = ::fgetxattr(from.number(), kAccessList, nullptr, 0);
    if (length < 0) {
        return errno == ENOTSUP
            || (errno == ENODATA
                && (::fremovexattr(to.number(), kAccessList) == 0 || errno == ENODATA));
    }
    std::vector<char> list(static_cast<std::size_t>(length));
    return ::fgetxattr(from.number(), kAccessList, list.data(), list.size()) == length
        && ::fsetxattr(to.number(), kAccessList, list.data(), list.size(), 0) == 0;
}

/// The mode last: the other two change it.
bool copyAccess(const FileDescriptor& from, const Status& status, const FileDescriptor& to)
{
    Status made{};
    if (::fstat(to.number(), &made) != 0) {
        return false;
    }
    const bool isOwned = made.st_uid == status.st_uid && made.st_gid == status.st_gid;
    return (isOwned || ::fchown(to.number(), status.st_uid, status.st_gid) == 0)
        && copyAccessList(from, to) && ::fchmod(to.number(), status.st_mode & kPermissions) == 0;
}

/// None when the file has to be written where it is.
std::optional<std::error_code> replace(
    const std::string& path,
    const FileDescriptor& file,
    const Status& status,
    std::string_view bytes)
{
    const std::optional<Target> place = followLinks(path);
    if (!place || status.st_nlink != 1 || !isSameFile(*place, status)) {
        return std::nullopt;
    }
    Temporary temporary(place->folder, kTemporaryMode);
    const int error = temporary.error();
    if (error == EACCES || error == EPERM || error == EROFS) {
        return std::nullopt;
    }
    if (error != 0) {
        return std::error_code(error, std::generic_category());
    }
    if (!copyAccess(file, status, temporary.file())) {
        return std::nullopt;
    }
    if (const std::error_code failure = writeAll(temporary.file(), bytes)) {
        return failure;
    }
    if (!isSameFile(*place, status) || temporary.replace(*place) != 0) {
        return std::nullopt;
    }
    return std::error_code{};
}

/// While it lives, writing to a pipe that nobody reads any more fails in this thread, instead of
/// ending the process.
class NoBrokenPipeSignal {
public:
    NoBrokenPipeSignal()
    {
        ::sigemptyset(&m_signal);
        ::sigaddset(&m_signal, SIGPIPE);
        ::pthread_sigmask(SIG_BLOCK, &m_signal, &m_before);
    }
    NoBrokenPipeSignal(const NoBrokenPipeSignal&) = delete;
    NoBrokenPipeSignal& operator=(const NoBrokenPipeSignal&) = delete;
    ~NoBrokenPipeSignal()
    {
        const timespec now{};
        (void)::sigtimedwait(&m_signal, nullptr, &now);
        ::pthread_sigmask(SIG_SETMASK, &m_before, nullptr);
    }

private:
    sigset_t m_signal{};
    sigset_t m_before{};
};

std::error_code writeInPlace(
    const FileDescriptor& file, const Status& status, std::string_view bytes)
{
    if (!S_ISREG(status.st_mode)) {
        const NoBrokenPipeSignal noSignal;
        return writeBytes(file, bytes);
    }
    return ::ftruncate(file.number(), 0) == 0 ? writeAll(file, bytes) : lastError();
}

std::error_code writeExisting(
    const std::string& path, const FileDescriptor& file, std::string_view bytes)
{
    Status status{};
    if (::fstat(file.number(), &status) != 0) {
        return lastError();
    }
    if (S_ISREG(status.st_mode)) {
        if (const std::optional<std::error_code> result = replace(path, file, status, bytes)) {
            return *result;
        }
    }
    return writeInPlace(file, status, bytes);
}

/// EEXIST when something has come to be there meanwhile.
std::error_code writeNew(const std::string& path, std::string_view bytes)
{
    const std::optional<Target> place = followLinks(path);
    if (!place) {
        return lastError();
    }
    Temporary temporary(place->folder, kNewFileMode);
    if (temporary.error() != 0) {
        return {temporary.error(), std::generic_category()};
    }
    if (const std::error_code error = writeAll(temporary.file(), bytes)) {
        return error;
    }
    return {temporary.moveTo(*place), std::generic_category()};
}

} // namespace

std::error_code writeWholeFile(const std::string& path, std::string_view bytes)
{
    std::error_code error;
    for (int i = 0; i < kMostTries; ++i) {
        const FileDescriptor file(::open(path.c_str(), O_WRONLY | O_NOCTTY | O_CLOEXEC));
        if (file.isOpen()) {
            return writeExisting(path, file, bytes);
        }
        if (errno != ENOENT) {
            return lastError();
        }
        error = writeNew(path, bytes);
        if (error != std::errc::file_exists) {
            break;
        }
    }
    return error;
}

} // namespace tessera
