// SPDX-License-Identifier: MIT
#include "Platform/Linux/Trash/TrashJournal.h"

#include "History/TrashJournalText.h"
#include "LostAnswers.h"
#include "Platform/Linux/Mounts/FileSystemQuestions.h"
#include "Platform/Linux/Trash/TrashJournalFile.h"
#include "PutBackFixture.h"
#include "support/Machine/Meanwhile.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <future>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace tessera::test {
namespace {

using testing::EndsWith;
using testing::IsEmpty;
using testing::SizeIs;
using testing::StartsWith;

using TrashJournalTest = PutBackFixture;

constexpr uid_t kSomebodyElse = 4711;

mode_t accessTo(const std::string& path)
{
    struct stat values { };
    return ::lstat(path.c_str(), &values) == 0 ? values.st_mode & 07777 : 0;
}

TrashedItem someItem(const std::string& name = "a")
{
    return {Url("/home/" + name, false), Url("/trash/files/" + name, false), {1, 2}, 0};
}

/// As long as it lives, the user's folder for states is said to be there; nothing is said with
/// null.
class StateHome {
public:
    explicit StateHome(const char* path) { set(path); }
    StateHome(const StateHome&) = delete;
    StateHome& operator=(const StateHome&) = delete;
    ~StateHome() { set(m_before ? m_before->c_str() : nullptr); }

private:
    static constexpr const char* kVariable = "XDG_STATE_HOME";

    // NOLINTBEGIN(concurrency-mt-unsafe): no other thread is running
    static void set(const char* path)
    {
        if (path != nullptr) {
            ::setenv(kVariable, path, 1);
        } else {
            ::unsetenv(kVariable);
        }
    }
    static std::optional<std::string> current()
    {
        const char* const value = std::getenv(kVariable);
        return value != nullptr ? std::optional<std::string>(value) : std::nullopt;
    }
    // NOLINTEND(concurrency-mt-unsafe)

    const std::optional<std::string> m_before = current();
};

TEST(TrashJournal, IsWhereTheUserKeepsStates)
{
    const StateHome home("/somewhere/states");
    EXPECT_EQ(TrashJournal::defaultStateHome(), "/somewhere/states");
}

TEST(TrashJournal, IsInTheHomeWhenNothingIsSaidOrNoAbsolutePath)
{
    for (const char* said : {static_cast<const char*>(nullptr), "", "states", "./states"}) {
        const StateHome home(said);
        const std::string path = TrashJournal::defaultStateHome();
        EXPECT_THAT(path, StartsWith("/"));
        EXPECT_THAT(path, EndsWith("/.local/state"));
    }
}

TEST_F(TrashJournalTest, TheFileIsTheUsersAlone)
{
    EXPECT_NE(m_journal->begin(someItem(), 5), 0U);
    EXPECT_EQ(accessTo(m_stateHome), 0700U);
    EXPECT_EQ(accessTo(m_stateHome + "/tessera"), 0700U);
    EXPECT_EQ(accessTo(m_stateHome + "/tessera/trash-journal"), 0600U);
}

TEST_F(TrashJournalTest, AFileThatOthersMayReadIsTheirsNoMore)
{
    EXPECT_NE(m_journal->begin(someItem(), 5), 0U);
    m_tree.setMode("state/tessera/trash-journal", 0644);
    m_journal->note(1, TrashState::Moved);
    EXPECT_EQ(accessTo(m_stateHome + "/tessera/trash-journal"), 0600U);
}

TEST_F(TrashJournalTest, WhatIsWrittenIsReadAgainNewestFirst)
{
    const std::uint64_t first = m_journal->begin(someItem("first"), 5);
    const std::uint64_t second = m_journal->begin(someItem("second"), std::nullopt);
    m_journal->note(first, TrashState::Moved);
    const std::vector<TrashRecord> records = m_journal->records();
    ASSERT_THAT(records, SizeIs(2));
    EXPECT_EQ(records[0].item.number, second);
    EXPECT_EQ(records[0].item.from.path(), "/home/second");
    EXPECT_EQ(records[0].bytes, std::nullopt);
    EXPECT_EQ(records[0].state, TrashState::Begun);
    EXPECT_EQ(records[1].item.number, first);
    EXPECT_EQ(records[1].bytes, 5U);
    EXPECT_EQ(records[1].time, 1'795'347'571);
    EXPECT_EQ(records[1].state, TrashState::Moved);
}

TEST_F(TrashJournalTest, ALineThatWasCutOffIsEndedBeforeTheNext)
{
    EXPECT_NE(m_journal->begin(someItem("first"), 5), 0U);
    const std::string path = trashJournalPath(m_stateHome);
    std::filesystem::resize_file(path, std::filesystem::file_size(path) - 5);
    EXPECT_NE(m_journal->begin(someItem("second"), 5), 0U);
    const std::vector<TrashRecord> records = m_journal->records();
    ASSERT_THAT(records, SizeIs(1));
    EXPECT_EQ(records[0].item.from.path(), "/home/second");
}

TEST_F(TrashJournalTest, AMoveIsEnteredAfterTheInfoFileAndBeforeTheItemMoves)
{
    m_tree.writeFile("work/a", "content");
    std::optional<TrashRecord> seen;
    bool hasInfo = false;
    const Meanwhile look(Call::Rename, [&] {
        seen = newestRecord();
        hasInfo = exists(infoPath("a"));
    });
    const RecycleResult result
        = m_keepingTrash.recycle({{Url(m_tree.pathOf("work/a"), false), 4096}});
    ASSERT_TRUE(seen);
    EXPECT_TRUE(hasInfo);
    EXPECT_EQ(seen->item, result.trashed.at(0));
    EXPECT_EQ(seen->bytes, 4096U);
    EXPECT_EQ(seen->state, TrashState::Begun);
    EXPECT_EQ(newestRecord()->state, TrashState::Moved);
}

TEST_F(TrashJournalTest, AnEntryIsOnTheDiskBeforeTheItemMoves)
{
    m_tree.makeFile("work/a");
    std::string entered;
    bool wasInPlace = false;
    std::optional<Meanwhile> secondSync;
    // The first is the info file's.
    const Meanwhile firstSync(Call::Sync, [&] {
        secondSync.emplace(Call::Sync, [&] {
            entered = journalText();
            wasInPlace = exists(m_tree.pathOf("work/a"));
        });
    });
    trashed("work/a");
    EXPECT_THAT(entered, StartsWith("trash "));
    EXPECT_TRUE(wasInPlace);
}

TEST_F(TrashJournalTest, AMoveThatFailedIsEnteredAsNone)
{
    m_tree.makeFile("work/a");
    const BrokenRenames broken(Renames::Fail);
    const RecycleResult result = m_keepingTrash.recycle({Url(m_tree.pathOf("work/a"), false)});
    EXPECT_NE(result.error, "");
    EXPECT_THAT(result.trashed, IsEmpty());
    EXPECT_EQ(newestRecord()->state, TrashState::NotMoved);
}

TEST_F(TrashJournalTest, ANameThatIsTakenInTheTrashWithoutAnInfoFileIsNoMove)
{
    std::filesystem::create_directories(m_homeTrash + "/files");
    m_tree.writeFile("home/.local/share/Trash/files/a", "another's");
    m_tree.makeFile("work/a");
    const TrashedItem item = trashed("work/a");
    EXPECT_EQ(item.to.path(), m_homeTrash + "/files/a 2");
    EXPECT_THAT(m_journal->records(), SizeIs(1));
    EXPECT_THAT(namesIn(m_homeTrash + "/info"), testing::ElementsAre("a 2.trashinfo"));
}

TEST_F(TrashJournalTest, AMoveOfWhichNobodyCanTellStaysOpen)
{
    m_tree.makeFolder("work/folder");
    const BrokenRenames broken(Renames::Fail, false);
    (void)m_keepingTrash.recycle({Url(m_tree.pathOf("work/folder"), true)});
    EXPECT_EQ(newestRecord()->state, TrashState::Begun);
}

TEST_F(TrashJournalTest, AFileThatIsMovedByItsIdentityIsEnteredWithWhatItTakes)
{
    m_tree.makeFile("work/a", 10'000);
    const std::uint64_t bytes = m_tree.allocatedBytes("work/a");
    const Url place(m_tree.pathOf("work/a"), false);
    const RecycleResult result = m_keepingTrash.recycleFile(identityAt(place.path()), {place});
    EXPECT_EQ(newestRecord()->bytes, bytes);
    EXPECT_EQ(newestRecord()->item, result.trashed.at(0));
}

TEST_F(TrashJournalTest, AnItemThatWasPutBackIsEnteredWithItsPlace)
{
    m_tree.makeFile("work/a");
    putBack(trashed("work/a"));
    EXPECT_EQ(newestRecord()->state, TrashState::PutBack);
    EXPECT_EQ(newestRecord()->place, Url(m_tree.pathOf("work/a"), false));
}

TEST_F(TrashJournalTest, ThatAnItemWasNotFoundIsNotEntered)
{
    m_tree.makeFile("work/a");
    const TrashedItem item = trashed("work/a");
    m_tree.makeFile("work/a");
    putBack({item, "a 2"});
    const std::string before = journalText();
    EXPECT_EQ(putBack(item).obstacle, PutBackObstacle::ItemGone);
    EXPECT_EQ(journalText(), before) << "another window put it back";
}

TEST_F(TrashJournalTest, WhereAnItemIsPutBackIsEnteredBeforeItMoves)
{
    m_tree.makeFile("work/a");
    const TrashedItem item = trashed("work/a");
    std::optional<TrashRecord> seen;
    std::optional<Meanwhile> rename;
    const Meanwhile sync(
        Call::Sync, [&] { rename.emplace(Call::Rename, [&] { seen = newestRecord(); }); });
    putBack({item, "b"});
    ASSERT_TRUE(seen) << "it was on the disk by then";
    EXPECT_EQ(seen->state, TrashState::Moved);
    EXPECT_EQ(seen->place, Url(m_tree.pathOf("work/b"), false));
}

TEST_F(TrashJournalTest, AnItemThatCannotBePutBackIsNotEnteredAsOnItsWay)
{
    m_tree.makeFile("work/a");
    const TrashedItem item = trashed("work/a");
    m_tree.makeFile("work/a");
    const std::string before = journalText();
    EXPECT_EQ(putBack(item).obstacle, PutBackObstacle::NameTaken);
    EXPECT_EQ(journalText(), before);
}

TEST_F(TrashJournalTest, ADiskThatGivesNoAnswerHoldsUpNothing)
{
    const auto questions
        = std::make_shared<const FileSystemQuestions>(std::chrono::milliseconds(1));
    std::promise<void> answer;
    const auto stuck = [end = answer.get_future().share()] {
        end.wait();
        return std::optional(true);
    };
    ASSERT_FALSE(questions->ask<bool>(m_stateHome, LinkMode::Follow, stuck));
    TrashJournal journal(m_stateHome, questions);
    EXPECT_EQ(journal.begin(someItem(), 5), 0U);
    journal.note(1, TrashState::Moved);
    EXPECT_THAT(journal.records(), IsEmpty());
    EXPECT_THAT(journal.takeError(), EndsWith("(Connection timed out)."));
    EXPECT_FALSE(exists(m_stateHome));
    answer.set_value();
}

TEST_F(TrashJournalTest, AnItemWithoutAnEntryIsPutBackWithoutOne)
{
    m_tree.makeFile("work/a");
    ASSERT_EQ(move("work/a"), "");
    EXPECT_EQ(m_trashed.number, 0U);
    putBack(m_trashed);
    EXPECT_FALSE(exists(trashJournalPath(m_stateHome)));
}

/// What stands in the journal's way, and that it is left alone. The move goes on.
class JournalInTheWay : public PutBackFixture {
protected:
    void expectLeftAlone(const std::string& reason)
    {
        m_tree.makeFile("work/a");
        m_tree.makeFile("work/b");
        const std::vector<std::string> before = snapshotOf(m_stateHome);
        const RecycleResult first = recycle("work/a");
        EXPECT_EQ(first.error, "");
        EXPECT_THAT(first.trashed, SizeIs(1));
        EXPECT_THAT(first.journalError, EndsWith(reason));
        EXPECT_EQ(recycle("work/b").journalError, "") << "told once";
        m_journal->shorten();
        EXPECT_THAT(m_journal->records(), IsEmpty());
        EXPECT_EQ(snapshotOf(m_stateHome), before);
    }

    RecycleResult recycle(const std::string& name) const
    {
        return m_keepingTrash.recycle({Url(m_tree.pathOf(name), false)});
    }

    const std::string m_notOurs
        = "(it is not a file of your own in a folder that nobody else can write to).";
};

TEST_F(JournalInTheWay, ALinkIsNotFollowed)
{
    m_tree.makeFolder("state");
    m_tree.makeFolder("state/tessera");
    m_tree.setMode("state/tessera", 0700);
    m_tree.writeFile("state/victim", "trash ");
    m_tree.makeSymbolicLink("state/tessera/trash-journal", m_stateHome + "/victim");
    expectLeftAlone(m_notOurs);
}

TEST_F(JournalInTheWay, ALinkInTheFoldersPlaceIsNotFollowed)
{
    m_tree.makeFolder("state");
    m_tree.makeFolder("state/victim");
    m_tree.makeSymbolicLink("state/tessera", m_stateHome + "/victim");
    expectLeftAlone(m_notOurs);
}

TEST_F(JournalInTheWay, APipeIsNotWrittenTo)
{
    m_tree.makeFolder("state");
    m_tree.makeFolder("state/tessera");
    m_tree.makeFifo("state/tessera/trash-journal");
    const int reader
        = ::open(trashJournalPath(m_stateHome).c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    expectLeftAlone(m_notOurs);
    ::close(reader);
}

TEST_F(JournalInTheWay, AFolderIsLeftAlone)
{
    m_tree.makeFolder("state");
    m_tree.makeFolder("state/tessera");
    m_tree.makeFolder("state/tessera/trash-journal");
    expectLeftAlone(m_notOurs);
}

TEST_F(JournalInTheWay, AFolderThatOthersMayWriteToIsNotTrusted)
{
    m_tree.makeFolder("state");
    m_tree.makeFolder("state/tessera");
    m_tree.setMode("state/tessera", 0770);
    expectLeftAlone(m_notOurs);
}

TEST_F(JournalInTheWay, AnothersFolderIsLeftAlone)
{
    m_tree.makeFolder("state");
    m_tree.makeFolder("state/tessera");
    if (::chown((m_stateHome + "/tessera").c_str(), kSomebodyElse, kSomebodyElse) != 0) {
        GTEST_SKIP() << "only the super-user can give a folder away";
    }
    expectLeftAlone(m_notOurs);
}

TEST_F(JournalInTheWay, AnothersFileIsLeftAlone)
{
    m_tree.makeFolder("state");
    m_tree.makeFolder("state/tessera");
    m_tree.makeFile("state/tessera/trash-journal");
    if (::chown(trashJournalPath(m_stateHome).c_str(), kSomebodyElse, kSomebodyElse) != 0) {
        GTEST_SKIP() << "only the super-user can give a file away";
    }
    expectLeftAlone(m_notOurs);
}

TEST_F(JournalInTheWay, AFileThatBecomesAnothersInTheLastMomentIsNotRead)
{
    EXPECT_NE(m_journal->begin(someItem(), 5), 0U);
    bool isGiven = false;
    const Meanwhile other(Call::Open, [&] {
        isGiven = ::chown(trashJournalPath(m_stateHome).c_str(), kSomebodyElse, -1U) == 0;
    });
    const std::vector<TrashRecord> records = m_journal->records();
    if (!isGiven) {
        GTEST_SKIP() << "only the super-user can give a file away";
    }
    EXPECT_THAT(records, IsEmpty());
}

TEST_F(JournalInTheWay, AFileInTheStateHomesPlaceIsLeftAlone)
{
    m_tree.writeFile("state", "content");
    m_tree.makeFile("work/a");
    EXPECT_THAT(recycle("work/a").journalError, EndsWith("(Not a directory)."));
    EXPECT_EQ(fileContent(m_stateHome), "content");
}

TEST_F(TrashJournalTest, AFileThatIsMovedByItsIdentityLeavesTheErrorToWhoShowsIt)
{
    m_tree.writeFile("state", "content");
    m_tree.makeFile("work/a");
    m_tree.makeFile("work/b");
    const Url place(m_tree.pathOf("work/a"), false);
    EXPECT_EQ(m_keepingTrash.recycleFile(identityAt(place.path()), {place}).journalError, "");
    EXPECT_NE(m_keepingTrash.recycle({Url(m_tree.pathOf("work/b"), false)}).journalError, "");
}

} // namespace
} // namespace tessera::test
