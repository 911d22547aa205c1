// SPDX-License-Identifier: MIT
#include "Compress/ArchivePaths.h"
#include "HelperPrograms/Archiver/ArchiverSystem.h"
#include "Platform/Linux/Archive/EndLater.h"
#include "Platform/Linux/Archive/LinuxArchiveOutput.h"
#include "Platform/Linux/Archive/LinuxSourceWalk.h"
#include "Platform/Linux/Files/LongPath.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstring>
#include <string>
#include <string_view>
#include <utility>

namespace tessera {

namespace {

bool canBeArchived(const FileStatus& status)
{
    const std::uint32_t kind = status.mode & S_IFMT;
    return kind == S_IFDIR || kind == S_IFREG || kind == S_IFLNK;
}

// What the signal handler needs, which no argument can bring it.
std::atomic<const char*> endLine{nullptr};
std::atomic<std::size_t> endLineLength{0};
std::atomic<int> endStatus{0};
std::atomic<int> endStatusWithFragment{0};
static_assert(
    std::atomic<const char*>::is_always_lock_free && std::atomic<int>::is_always_lock_free);

extern "C" void endProcess(int /*signal*/)
{
    // Ending right here takes no longer in the middle of a large file than between two small ones.
    [[maybe_unused]] const ssize_t written
        = ::write(STDERR_FILENO, endLine.load(), endLineLength.load());
    ::_exit(endStatus.load());
}

/// Whoever started the archiver learns which file is its work, however it ends.
void announce(const FileIdentity& identity)
{
    const std::string line = fileIdentityLine(identity);
    [[maybe_unused]] const ssize_t written = ::write(STDOUT_FILENO, line.data(), line.size());
    endStatus = endStatusWithFragment.load();
}

/// A path without the slashes at its end.
std::string_view withoutSlashes(std::string_view path)
{
    while (path.ends_with('/')) {
        path.remove_suffix(1);
    }
    return path;
}

std::size_t nameStart(std::string_view path)
{
    return withoutSlashes(path).rfind('/') + 1;
}

/// The folder of an item that the path names outright.
struct NamedPath {
    std::string_view folder; ///< with its slash
    std::string_view name;

    explicit NamedPath(std::string_view path)
        : folder(path.substr(0, nameStart(path)))
        , name(withoutSlashes(path).substr(folder.size()))
    {
    }
    bool isPlain() const { return !name.empty() && name != "." && name != ".."; }
};

/// Over no link, since whoever calls has the path from a walk that follows none. Relative paths are
/// typed by people.
NamedPlace openPlace(const std::string& path)
{
    return path.starts_with('/') && NamedPath(path).isPlain()
        ? openFolderOfWithoutLinks(std::string(withoutSlashes(path)))
        : openFolderOf(path);
}

class LinuxArchiverSystem final : public ArchiverSystem {
public:
    [[nodiscard]] Result<SourceWalk> openSource(const std::string& path, SourceKind kind) override
    {
        NamedPlace place = openPlace(path);
        if (place.error != 0) {
            return ArchiveFailure{place.error, "read", path};
        }
        const StatusResult found = statusAt(place.folder.number(), place.name.c_str());
        if (!found) {
            return ArchiveFailure{found.error, "read", path};
        }
        if (!canBeArchived(found.status)) {
            return ArchiveFailure{ENOTSUP, "read", path};
        }
        if (kind != SourceKind::Any && found.status.isDirectory != (kind == SourceKind::Folder)) {
            return ArchiveFailure{found.status.isDirectory ? EISDIR : ENOTDIR, "read", path};
        }
        m_sourcePath = path;
        m_sourceFolder = duplicate(place.folder);
        return std::make_unique<LinuxSourceWalk>(std::move(place), found.status);
    }

    [[nodiscard]] Result<ArchiveOutput> createTarget(const std::string& path) override
    {
        NamedPlace place = placeOf(path);
        if (place.error != 0) {
            return ArchiveFailure{place.error, "create", path};
        }
        const StatusResult taken = statusAt(place.folder.number(), place.name.c_str());
        if (taken.error != ENOENT) {
            return ArchiveFailure{taken ? EEXIST : taken.error, "create", path};
        }
        return createPart(path, std::move(place));
    }

private:
    /// Beside the source it is the folder that the source was found in, whatever has its path now.
    NamedPlace placeOf(const std::string& path) const
    {
        const NamedPath target(path);
        if (target.isPlain() && m_sourceFolder.isOpen()
            && target.folder == NamedPath(m_sourcePath).folder) {
            return {0, duplicate(m_sourceFolder), std::string(target.name)};
        }
        return openPlace(path);
    }

    static FileDescriptor duplicate(const FileDescriptor& folder)
    {
        return FileDescriptor(::fcntl(folder.number(), F_DUPFD_CLOEXEC, 0));
    }

    static Result<ArchiveOutput> createPart(const std::string& path, NamedPlace place)
    {
        constexpr int kFlags = O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC;
        constexpr mode_t kOwnerAlone = 0600; // it may hold what others may not read
        std::string name = partName(place.name);
        // There is no moment in which the file is there and an end would say that it is not.
        const EndLater endLater;
        FileDescriptor file(::openat(place.folder.number(), name.c_str(), kFlags, kOwnerAlone));
        if (!file.isOpen()) {
            return ArchiveFailure{errno, "create", partPath(path)};
        }
        const StatusResult made = statusOf(file.number());
        if (!made) {
            return ArchiveFailure{made.error, "create", partPath(path)};
        }
        announce(made.status.identity);
        return std::make_unique<LinuxArchiveOutput>(
            std::move(file), made.status.identity, std::move(place), std::move(name));
    }

    std::string m_sourcePath;
    FileDescriptor m_sourceFolder;
};

} // namespace

std::unique_ptr<ArchiverSystem> makeArchiverSystem()
{
    return std::make_unique<LinuxArchiverSystem>();
}

void endOnTerminationSignals(const char* line, StoppedStatus status)
{
    endLine = line;
    endLineLength = std::strlen(line);
    endStatus = status.nothingMade;
    endStatusWithFragment = status.fragmentMade;
    struct sigaction action { };
    action.sa_handler = endProcess;
    for (const int signal : EndLater::kRequests) {
        ::sigaction(signal, &action, nullptr);
    }
    // Whoever started the process may have left them blocked.
    const sigset_t requests = EndLater::requests();
    ::pthread_sigmask(SIG_UNBLOCK, &requests, nullptr);
    // A limit on the size of files is a failed write like others, and so is a reader of standard
    // output that is gone: no reasons to be killed.
    action.sa_handler = SIG_IGN;
    ::sigaction(SIGXFSZ, &action, nullptr);
    ::sigaction(SIGPIPE, &action, nullptr);
}

} // namespace tessera
