// SPDX-License-Identifier: MIT
#include "Platform/Linux/Trash/TrashJournalFile.h"

#include "Platform/Linux/Files/WriteAll.h"
#include "Platform/Linux/Trash/TrashDirectory.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <string>
#include <thread>
#include <utility>
#include <vector>

namespace tessera {

namespace {

constexpr const char* kStateFolderName = "tessera";
constexpr const char* kJournalName = "trash-journal";
constexpr const char* kNewJournalName = "trash-journal.new";
constexpr mode_t kJournalMode = 0600;
constexpr mode_t kOthersMayUse = 077;
constexpr mode_t kOthersMayWrite = 022;
constexpr std::uint64_t kMostBytesRead = 64 << 20;

/// Another program may just have put a new file in the journal's place.
constexpr int kMostOpenings = 10;

enum class MissingJournal : bool { Leave, Make };

/// Whether a file system that knows no locks will do.
enum class LockNeed : bool { WhereThereAreLocks, Always };

/// The journal, open, and the folder it is in.
struct OpenJournal {
    int error = 0;
    FileDescriptor folder;
    FileDescriptor file;
    FileStatus status;
    NewFolders newFolders;
};

bool isUsersOwn(const FileStatus& status)
{
    return status.owner == ::geteuid();
}

/// 0, or the errno.
int openStateFolder(OpenJournal& journal, const std::string& stateHome, MissingJournal missing)
{
    if (missing == MissingJournal::Make) {
        FileDescriptor home;
        if (const int error = openPrivateFolder(stateHome, home, journal.newFolders); error != 0) {
            return error;
        }
        if (const int error = journal.newFolders.make(home, kStateFolderName); error != 0) {
            return error;
        }
    }
    constexpr int kFlags = O_PATH | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC;
    journal.folder = FileDescriptor(::open((stateHome + '/' + kStateFolderName).c_str(), kFlags));
    if (!journal.folder.isOpen()) {
        return errno == ELOOP || errno == ENOTDIR ? kNotTheUsersOwn : errno;
    }
    const StatusResult found = statusOf(journal.folder.number());
    if (!found) {
        return found.error;
    }
    const bool isSafe = isUsersOwn(found.status) && (found.status.mode & kOthersMayWrite) == 0;
    return isSafe ? 0 : kNotTheUsersOwn;
}

/// 0, or the errno. Looks before it opens: to open a device may be to use it.
int openFile(OpenJournal& journal, int flags)
{
    constexpr int kFlags = O_NOFOLLOW | O_NONBLOCK | O_NOCTTY | O_CLOEXEC;
    const auto isOurs
        = [](const FileStatus& status) { return status.isRegular && isUsersOwn(status); };
    const StatusResult before = statusAt(journal.folder.number(), kJournalName);
    if (before && !isOurs(before.status)) {
        return kNotTheUsersOwn;
    }
    journal.file = FileDescriptor(
        ::openat(journal.folder.number(), kJournalName, flags | kFlags, kJournalMode));
    if (!journal.file.isOpen()) {
        return errno;
    }
    const StatusResult opened = statusOf(journal.file.number());
    journal.status = opened.status;
    return opened && !isOurs(opened.status) ? kNotTheUsersOwn : opened.error;
}

bool isStillInPlace(const OpenJournal& journal)
{
    const StatusResult found = statusAt(journal.folder.number(), kJournalName);
    return found && found.status.identity == journal.status.identity;
}

/// Waits a second at most: a program that was stopped while it held the lock holds up no move. 0,
/// or the errno; one of those that isWithoutLocks() knows where there are no locks.
int lock(const OpenJournal& journal, LockPatience patience)
{
    constexpr auto kPause = std::chrono::milliseconds(10);
    const int mostPauses = patience == LockPatience::None ? 0 : 100;
    for (int i = 0;; ++i) {
        if (::flock(journal.file.number(), LOCK_EX | LOCK_NB) == 0) {
            return 0;
        }
        const int error = errno;
        if ((error != EWOULDBLOCK && error != EINTR) || i == mostPauses) {
            return error;
        }
        std::this_thread::sleep_for(kPause);
    }
}

bool isWithoutLocks(int error)
{
    return error == ENOLCK || error == EOPNOTSUPP || error == ENOSYS || error == EINVAL;
}

/// Opens the journal and locks it. What was replaced while it waited for its lock is opened anew.
OpenJournal openLocked(
    const std::string& stateHome,
    int flags,
    MissingJournal missing,
    LockNeed need,
    LockPatience patience)
{
    OpenJournal journal;
    journal.error = openStateFolder(journal, stateHome, missing);
    for (int i = 0; journal.error == 0 && i < kMostOpenings; ++i) {
        journal.error = openFile(journal, flags);
        if (journal.error == 0) {
            journal.error = lock(journal, patience);
        }
        if (need == LockNeed::WhereThereAreLocks && isWithoutLocks(journal.error)) {
            journal.error = 0;
        }
        if (journal.error != 0 || isStillInPlace(journal)) {
            return journal;
        }
    }
    journal.error = journal.error != 0 ? journal.error : EAGAIN;
    return journal;
}

bool endsInTheMiddleOfALine(const OpenJournal& journal)
{
    struct stat values { };
    char last = '\n';
    return ::fstat(journal.file.number(), &values) == 0 && values.st_size > 0
        && ::pread(journal.file.number(), &last, 1, values.st_size - 1) == 1 && last != '\n';
}

/// With a new file its name, too. 0, or the errno.
int bringToDisk(const OpenJournal& journal)
{
    if (::fsync(journal.file.number()) != 0) {
        return errno;
    }
    if (journal.status.length == 0) {
        // The line is there; whether its file is found after a power cut is all that is at stake.
        (void)syncFolder(journal.folder);
    }
    return 0;
}

/// In one call, which alone keeps the lines of several programs apart. 0, or the errno.
int writeAtOnce(const FileDescriptor& file, std::string_view text)
{
    ssize_t written = -1;
    do {
        written = ::write(file.number(), text.data(), text.size());
    } while (written < 0 && errno == EINTR);
    if (written < 0) {
        return errno;
    }
    return static_cast<std::size_t>(written) == text.size() ? 0 : ENOSPC;
}

/// Feeds the end of the file to the reader, beginning where a line may be cut apart. Whether all of
/// it could be read.
bool readInto(TrashJournalReader& reader, const OpenJournal& journal)
{
    constexpr std::size_t kPieceBytes = 65'536;
    std::string piece(kPieceBytes, '\0');
    const std::uint64_t length = journal.status.length;
    std::uint64_t at = length > kMostBytesRead ? length - kMostBytesRead : 0;
    // What others append meanwhile counts, but not without end.
    const std::uint64_t end = at + 2 * kMostBytesRead;
    while (at < end) {
        const ssize_t count
            = ::pread(journal.file.number(), piece.data(), piece.size(), static_cast<off_t>(at));
        if (count < 0 && errno == EINTR) {
            continue;
        }
        if (count <= 0) {
            return count == 0;
        }
        reader.feed(std::string_view(piece).substr(0, static_cast<std::size_t>(count)));
        at += static_cast<std::uint64_t>(count);
    }
    return true;
}

std::string textOf(const TrashJournalReader& reader)
{
    std::string text;
    for (const TrashRecord& record : reader.records()) {
        text += trashBeginningLine(record);
        text += trashStateLine(record.item.number, record.state, record.place);
    }
    return text;
}

/// Removes what a program that ended in the middle of its shortening left. False when something
/// else is there.
bool clearTheWay(const FileDescriptor& folder)
{
    const StatusResult found = statusAt(folder.number(), kNewJournalName);
    if (!found) {
        return found.error == ENOENT;
    }
    return found.status.isRegular && isUsersOwn(found.status)
        && ::unlinkat(folder.number(), kNewJournalName, 0) == 0;
}

/// Others that append wait for the lock, and then find the new file.
void replaceBy(const std::string& text, const OpenJournal& journal)
{
    constexpr int kFlags = O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC;
    const int folder = journal.folder.number();
    if (!clearTheWay(journal.folder)) {
        return;
    }
    const FileDescriptor file(::openat(folder, kNewJournalName, kFlags, kJournalMode));
    if (!file.isOpen()) {
        return;
    }
    if (writeAll(file, text) || !isStillInPlace(journal)
        || ::renameat(folder, kNewJournalName, folder, kJournalName) != 0) {
        ::unlinkat(folder, kNewJournalName, 0);
    }
}

} // namespace

std::string trashJournalPath(const std::string& stateHome)
{
    return stateHome + '/' + kStateFolderName + '/' + kJournalName;
}

int appendToTrashJournal(
    const std::string& stateHome,
    std::string_view lines,
    Durability durability,
    LockPatience patience)
{
    constexpr int kFlags = O_RDWR | O_APPEND | O_CREAT;
    const OpenJournal journal = openLocked(
        stateHome, kFlags, MissingJournal::Make, LockNeed::WhereThereAreLocks, patience);
    if (journal.error != 0) {
        return journal.error;
    }
    const int number = journal.file.number();
    if ((journal.status.mode & kOthersMayUse) != 0 && ::fchmod(number, kJournalMode) != 0) {
        return errno;
    }
    std::string text = endsInTheMiddleOfALine(journal) ? "\n" : "";
    text += lines;
    if (const int error = writeAtOnce(journal.file, text); error != 0) {
        return error;
    }
    if (durability == Durability::Later) {
        return 0;
    }
    // Others need not wait for the disk.
    ::flock(number, LOCK_UN);
    return bringToDisk(journal);
}

std::optional<TrashJournalReader> readTrashJournal(const std::string& stateHome)
{
    OpenJournal journal;
    TrashJournalReader reader;
    if (openStateFolder(journal, stateHome, MissingJournal::Leave) != 0
        || openFile(journal, O_RDONLY) != 0 || !readInto(reader, journal)) {
        return std::nullopt;
    }
    return reader;
}

void shortenTrashJournal(const std::string& stateHome)
{
    const OpenJournal journal = openLocked(
        stateHome, O_RDWR, MissingJournal::Leave, LockNeed::Always, LockPatience::ASecond);
    TrashJournalReader reader;
    if (journal.error != 0 || !readInto(reader, journal)) {
        return;
    }
    if (reader.isWasteful() || journal.status.length > kMostBytesRead) {
        replaceBy(textOf(reader), journal);
    }
}

} // namespace tessera
