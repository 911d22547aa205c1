// SPDX-License-Identifier: MIT
// Several programs write to the journal.
#include "History/TrashJournalText.h"
#include "Platform/Linux/Trash/TrashJournal.h"
#include "Platform/Linux/Trash/TrashJournalFile.h"
#include "PutBackFixture.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <filesystem>
#include <future>
#include <set>
#include <string>
#include <thread>
#include <vector>

namespace tessera::test {
namespace {

using testing::EndsWith;
using testing::SizeIs;

using TrashJournalLock = PutBackFixture;

TrashedItem itemCalled(const std::string& name)
{
    return {Url("/home/" + name, false), Url("/trash/files/" + name, false), {1, 2}, 0};
}

TEST_F(TrashJournalLock, AProgramThatKeepsTheLockHoldsUpNoMove)
{
    EXPECT_NE(m_journal->begin(itemCalled("a"), 5), 0U);
    const int file = ::open(trashJournalPath(m_stateHome).c_str(), O_RDONLY | O_CLOEXEC);
    ASSERT_EQ(::flock(file, LOCK_EX), 0);
    EXPECT_EQ(m_journal->begin(itemCalled("a"), 5), 0U);
    EXPECT_THAT(m_journal->takeError(), EndsWith("(another program is writing to it)."));
    ::close(file);
    EXPECT_NE(m_journal->begin(itemCalled("a"), 5), 0U) << "the next one is entered again";
}

TEST_F(TrashJournalLock, NobodyAppendsWhileAnotherProgramDoes)
{
    EXPECT_NE(m_journal->begin(itemCalled("a"), 5), 0U);
    const int file = ::open(trashJournalPath(m_stateHome).c_str(), O_RDONLY | O_CLOEXEC);
    ASSERT_EQ(::flock(file, LOCK_SH), 0);
    EXPECT_EQ(
        appendToTrashJournal(m_stateHome, "x\n", Durability::Later, LockPatience::None),
        EWOULDBLOCK);
    ::close(file);
}

TEST_F(TrashJournalLock, ThatAStateWasNotEnteredIsNoErrorOfAMove)
{
    const std::uint64_t number = m_journal->begin(itemCalled("a"), 5);
    const int file = ::open(trashJournalPath(m_stateHome).c_str(), O_RDONLY | O_CLOEXEC);
    ASSERT_EQ(::flock(file, LOCK_EX), 0);
    m_journal->note(number, TrashState::Moved);
    EXPECT_EQ(m_journal->takeError(), "");
    ::close(file);
}

/// How often this process has the file open.
int timesOpen(const std::string& path)
{
    int count = 0;
    for (const auto& entry : std::filesystem::directory_iterator("/proc/self/fd")) {
        std::error_code error;
        count += std::filesystem::read_symlink(entry.path(), error) == path ? 1 : 0;
    }
    return count;
}

TEST_F(TrashJournalLock, AMoveThatWaitedForTheLockIsEnteredInTheFileThatIsThereByThen)
{
    EXPECT_NE(m_journal->begin(itemCalled("first"), 5), 0U);
    const std::string path = trashJournalPath(m_stateHome);
    const int file = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
    ASSERT_EQ(::flock(file, LOCK_EX), 0);
    // On a machine that is busy it may give up, and tries again.
    std::thread mover([this] {
        while (m_journal->begin(itemCalled("second"), 5) == 0) {
            std::this_thread::yield();
        }
    });
    while (timesOpen(path) < 2) {
        std::this_thread::yield();
    }
    m_tree.makeFile("state/tessera/other");
    m_tree.rename("state/tessera/other", "state/tessera/trash-journal");
    ::close(file);
    mover.join();
    const std::vector<TrashRecord> records = m_journal->records();
    ASSERT_THAT(records, SizeIs(1));
    EXPECT_EQ(records[0].item.from.path(), "/home/second");
}

/// Enters moves of its own, and gives their numbers. The lock may not be had in time while others
/// shorten without end.
std::set<std::uint64_t> enterMoves(const std::string& stateHome, int count)
{
    TrashJournal journal(stateHome);
    std::set<std::uint64_t> numbers;
    for (int i = 0; i < count; ++i) {
        std::uint64_t number = 0;
        while (number == 0) {
            number = journal.begin(itemCalled("new"), 5);
        }
        journal.note(number, TrashState::Moved);
        numbers.insert(number);
    }
    return numbers;
}

std::string movesOfLongAgo(std::size_t count)
{
    std::string lines;
    TrashRecord record;
    record.item = itemCalled("old");
    for (record.item.number = 1; record.item.number <= count; ++record.item.number) {
        lines += trashBeginningLine(record);
    }
    return lines;
}

TEST_F(TrashJournalLock, SeveralThatWriteWhileOthersShortenLoseNothing)
{
    constexpr int kWriters = 4;
    constexpr int kMoves = 25;
    // As many as are kept, so that every shortening after a move writes a new file.
    const std::string old = movesOfLongAgo(kMostTrashRecords);
    ASSERT_EQ(appendToTrashJournal(m_stateHome, old, Durability::Later), 0);
    std::vector<std::future<std::set<std::uint64_t>>> writers;
    writers.reserve(kWriters);
    for (int i = 0; i < kWriters; ++i) {
        writers.push_back(
            std::async(std::launch::async, [this] { return enterMoves(m_stateHome, kMoves); }));
    }
    std::set<std::uint64_t> entered;
    for (auto& writer : writers) {
        while (writer.wait_for(std::chrono::seconds(0)) != std::future_status::ready) {
            m_journal->shorten();
        }
        entered.merge(writer.get());
    }
    std::set<std::uint64_t> found;
    for (const TrashRecord& record : m_journal->records()) {
        if (record.item.from.path() != "/home/old") {
            found.insert(record.item.number);
        }
    }
    EXPECT_THAT(entered, SizeIs(kWriters * kMoves));
    EXPECT_TRUE(std::includes(found.begin(), found.end(), entered.begin(), entered.end()))
        << found.size() << " of " << entered.size();
}

} // namespace
} // namespace tessera::test
