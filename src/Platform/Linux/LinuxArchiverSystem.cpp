// SPDX-License-Identifier: MIT
#include "Archiver/ArchiverSystem.h"
#include "Platform/Linux/LinuxArchiveOutput.h"
#include "Platform/Linux/LinuxSourceWalk.h"
#include "Platform/Linux/LongPath.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstring>

namespace tessera {

namespace {

bool canBeArchived(const FileStatus& status)
{
    const std::uint32_t kind = status.mode & S_IFMT;
    return kind == S_IFDIR || kind == S_IFREG || kind == S_IFLNK;
}

class LinuxArchiverSystem final : public ArchiverSystem {
public:
    [[nodiscard]] Result<SourceWalk> openSource(const std::string& path) override
    {
        NamedPlace place = openFolderOf(path);
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
        return std::make_unique<LinuxSourceWalk>(std::move(place), found.status);
    }

    [[nodiscard]] Result<ArchiveOutput> createTarget(
        const std::string& path, std::uint32_t permissions) override
    {
        const NamedPlace place = openFolderOf(path);
        if (place.error != 0) {
            return ArchiveFailure{place.error, "create", path};
        }
        constexpr int kFlags = O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC;
        const int number = ::openat(place.folder.number(), place.name.c_str(), kFlags, permissions);
        if (number < 0) {
            return ArchiveFailure{errno, "create", path};
        }
        return std::make_unique<LinuxArchiveOutput>(FileDescriptor(number));
    }
};

// What the signal handler needs, which no argument can bring it.
std::atomic<const char*> endLine{nullptr};
std::atomic<std::size_t> endLineLength{0};
std::atomic<int> endStatus{1};
static_assert(
    std::atomic<const char*>::is_always_lock_free && std::atomic<int>::is_always_lock_free);

extern "C" void endProcess(int /*signal*/)
{
    // Ending right here takes no longer in the middle of a large file than between two small ones.
    [[maybe_unused]] const ssize_t written
        = ::write(STDERR_FILENO, endLine.load(), endLineLength.load());
    ::_exit(endStatus.load());
}

} // namespace

std::unique_ptr<ArchiverSystem> makeArchiverSystem()
{
    return std::make_unique<LinuxArchiverSystem>();
}

void endOnTerminationSignals(const char* line, int exitStatus)
{
    endLine = line;
    endLineLength = std::strlen(line);
    endStatus = exitStatus;
    struct sigaction action { };
    action.sa_handler = endProcess;
    ::sigaction(SIGTERM, &action, nullptr);
    ::sigaction(SIGINT, &action, nullptr);
    // Whoever started the process may have left them blocked.
    sigset_t signals{};
    ::sigemptyset(&signals);
    ::sigaddset(&signals, SIGTERM);
    ::sigaddset(&signals, SIGINT);
    ::pthread_sigmask(SIG_UNBLOCK, &signals, nullptr);
    // A limit on the size of files is a failed write like others, not a reason to be killed.
    action.sa_handler = SIG_IGN;
    ::sigaction(SIGXFSZ, &action, nullptr);
}

} // namespace tessera
