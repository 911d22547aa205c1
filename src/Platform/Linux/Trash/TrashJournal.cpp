// SPDX-License-Identifier: MIT
#include "Platform/Linux/Trash/TrashJournal.h"

#include "Platform/Linux/Mounts/FileSystemQuestions.h"
#include "Platform/Linux/Process/LinuxUserAccount.h"
#include "Platform/Linux/Trash/TrashSentences.h"

#include <QtGlobal>

#include <fcntl.h>

#include <cerrno>
#include <cstdlib>
#include <ctime>
#include <random>
#include <utility>

namespace tessera {

namespace {

/// So rarely the same that several programs need not agree on whose turn it is.
std::uint64_t newEntryNumber()
{
    constexpr unsigned kBits = 20;
    std::random_device random;
    return (std::uint64_t{random()} << kBits | random() % (1U << kBits)) + 1;
}

std::string entryErrorSentence(const std::string& path, const std::error_code& error)
{
    const std::string reason = error.value() == kNotTheUsersOwn
        ? trashSentence(QT_TRANSLATE_NOOP(
            "TrashSentences",
            "it is not a file of your own in a folder that nobody else can write to"))
        : error.value() == EWOULDBLOCK
        ? trashSentence(QT_TRANSLATE_NOOP("TrashSentences", "another program is writing to it"))
        : error.message();
    return trashSentence(
        //: %2 says why: the texts above, or what the system says
        QT_TRANSLATE_NOOP(
            "TrashSentences",
            "What is moved to the trash can be restored there, but this program will not list it: "
            "'%1' cannot be written (%2)."),
        path,
        reason);
}

} // namespace

std::string TrashJournal::defaultStateHome()
{
    // NOLINTNEXTLINE(concurrency-mt-unsafe): what is set while threads run has room already
    const char* const set = std::getenv("XDG_STATE_HOME");
    return set != nullptr && *set == '/' ? set
                                         : LinuxUserAccount().homeDirectory() + "/.local/state";
}

TrashJournal::TrashJournal(
    std::string stateHome, std::shared_ptr<const FileSystemQuestions> questions)
    : TrashJournal(
        std::move(stateHome), [] { return std::int64_t{std::time(nullptr)}; }, std::move(questions))
{
}

TrashJournal::TrashJournal(
    std::string stateHome, Clock clock, std::shared_ptr<const FileSystemQuestions> questions)
    : m_stateHome(std::move(stateHome))
    , m_clock(std::move(clock))
    , m_questions(std::move(questions))
{
}

std::uint64_t TrashJournal::begin(TrashedItem item, std::optional<std::uint64_t> bytes)
{
    item.number = newEntryNumber();
    TrashRecord record;
    record.item = std::move(item);
    record.time = m_clock();
    record.bytes = bytes;
    const int error = append(trashBeginningLine(record), Durability::Now);
    keepError({error, std::generic_category()});
    return error == 0 ? record.item.number : 0;
}

void TrashJournal::beginReturn(std::uint64_t number, const Url& place)
{
    if (number != 0) {
        const std::string line = trashStateLine(number, TrashState::Moved, place);
        // Without it the item goes back all the same, and is found if it gets its old name.
        (void)append(line, Durability::Now);
    }
}

void TrashJournal::note(std::uint64_t number, TrashState state, const Url& place)
{
    if (number == 0) {
        return;
    }
    // It need not be on the disk at once: what is missing is found out by looking at the item.
    const std::string line = trashStateLine(number, state, place);
    (void)append(line, Durability::Later);
}

std::vector<TrashRecord> TrashJournal::records() const
{
    const std::optional<TrashJournalReader> reader
        = answers() ? readTrashJournal(m_stateHome) : std::nullopt;
    if (!reader) {
        return {};
    }
    return {reader->records().rbegin(), reader->records().rend()};
}

void TrashJournal::shorten() const
{
    if (answers()) {
        shortenTrashJournal(m_stateHome);
    }
}

std::string TrashJournal::takeError()
{
    const std::lock_guard lock(m_mutex);
    if (!m_error || m_isErrorTaken) {
        return {};
    }
    m_isErrorTaken = true;
    return entryErrorSentence(trashJournalPath(m_stateHome), m_error);
}

/// Whether the disk that the journal is on does.
bool TrashJournal::answers() const
{
    return m_questions == nullptr
        || m_questions->ask<bool>(m_stateHome, LinkMode::Follow, [path = m_stateHome] {
               (void)statusAt(AT_FDCWD, path.c_str(), LinkMode::Follow);
               return std::optional(true);
           });
}

int TrashJournal::append(const std::string& line, Durability durability)
{
    if (!answers()) {
        return ETIMEDOUT;
    }
    const LockPatience patience = m_isBusy ? LockPatience::None : LockPatience::ASecond;
    const int error = appendToTrashJournal(m_stateHome, line, durability, patience);
    m_isBusy = error == EWOULDBLOCK;
    return error;
}

void TrashJournal::keepError(std::error_code error)
{
    const std::lock_guard lock(m_mutex);
    if (error && !m_error) {
        m_error = error;
    }
}

} // namespace tessera
