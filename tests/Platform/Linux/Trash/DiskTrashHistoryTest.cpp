// SPDX-License-Identifier: MIT
#include "Platform/Linux/Trash/DiskTrashHistory.h"

#include "DeadMounts/DeadMountLimits.h"
#include "LostAnswers.h"
#include "Platform/Linux/Mounts/FileSystemQuestions.h"
#include "Platform/Linux/Trash/TrashJournalFile.h"
#include "PutBackFixture.h"
#include "support/Fakes/FakeMainThread.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <thread>
#include <vector>

namespace tessera::test {
namespace {

using testing::IsEmpty;
using testing::SizeIs;

class DiskTrashHistoryTest : public PutBackFixture {
protected:
    std::vector<TrashRecord> entries()
    {
        std::optional<std::vector<TrashRecord>> told;
        m_history.entries([&told](const std::vector<TrashRecord>& records) { told = records; });
        EXPECT_FALSE(told) << "before the call has returned";
        m_mainThread.runUntil([&told] { return told.has_value(); });
        return *told;
    }

    TrashState newestState()
    {
        const std::vector<TrashRecord> records = entries();
        return records.empty() ? TrashState::Begun : records.front().state;
    }

    /// What a program writes that ends before it can say what became of the item.
    void enter(const TrashedItem& item) { EXPECT_NE(m_journal->begin(item, 5), 0U); }

    FakeMainThread m_mainThread;
    DiskTrashHistory m_history{
        m_journal, std::make_shared<const FileSystemQuestions>(kWorkerPatience), m_mainThread};
};

TEST_F(DiskTrashHistoryTest, WithoutAJournalThereIsNothingToTell)
{
    EXPECT_THAT(entries(), IsEmpty());
    EXPECT_FALSE(exists(m_stateHome));
}

TEST_F(DiskTrashHistoryTest, TheNewestMoveComesFirst)
{
    m_tree.makeFile("work/a");
    m_tree.makeFile("work/b");
    const TrashedItem a = trashed("work/a");
    const TrashedItem b = trashed("work/b");
    const std::vector<TrashRecord> records = entries();
    ASSERT_THAT(records, SizeIs(2));
    EXPECT_EQ(records[0].item, b);
    EXPECT_EQ(records[1].item, a);
    EXPECT_EQ(records[1].state, TrashState::Moved);
}

TEST_F(DiskTrashHistoryTest, AnItemThatTheListNamesCanBePutBack)
{
    m_tree.writeFile("work/a", "content");
    trashed("work/a");
    EXPECT_EQ(putBack(entries().at(0).item).obstacle, PutBackObstacle::None);
    EXPECT_EQ(fileContent(m_tree.pathOf("work/a")), "content");
    EXPECT_EQ(newestState(), TrashState::PutBack);
}

TEST_F(DiskTrashHistoryTest, AMoveThatWasCutOffIsSettledByWhereTheItemIs)
{
    m_tree.makeFile("work/a");
    TrashedItem item = trashed("work/a");
    enter(item);
    EXPECT_EQ(newestState(), TrashState::Moved);
    std::filesystem::rename(item.to.path(), item.from.path());
    EXPECT_EQ(newestState(), TrashState::NotMoved);
    std::filesystem::remove(item.from.path());
    EXPECT_EQ(newestState(), TrashState::Gone);
}

TEST_F(DiskTrashHistoryTest, AnotherItemInThePlaceIsNotTheItem)
{
    m_tree.makeFile("work/a");
    const TrashedItem item = trashed("work/a");
    std::filesystem::rename(item.to.path(), m_tree.pathOf("work/kept"));
    m_tree.makeFile("home/.local/share/Trash/files/a");
    m_tree.makeFile("work/a");
    EXPECT_EQ(newestState(), TrashState::Gone);
}

TEST_F(DiskTrashHistoryTest, WhatAnotherProgramRestoredCountsAsPutBack)
{
    m_tree.makeFile("work/a");
    const TrashedItem item = trashed("work/a");
    std::filesystem::rename(item.to.path(), item.from.path());
    const std::vector<TrashRecord> records = entries();
    EXPECT_EQ(records.at(0).state, TrashState::PutBack);
    EXPECT_EQ(records.at(0).place, item.from);
}

TEST_F(DiskTrashHistoryTest, WhatWasPutBackUnderAnotherNameIsFoundWhenTheEndOfItIsMissing)
{
    m_tree.makeFile("work/a");
    const TrashedItem item = trashed("work/a");
    const Url place(m_tree.pathOf("work/a 2"), false);
    m_journal->beginReturn(item.number, place);
    EXPECT_EQ(newestState(), TrashState::Moved);
    std::filesystem::rename(item.to.path(), place.path());
    const std::vector<TrashRecord> records = entries();
    EXPECT_EQ(records.at(0).state, TrashState::PutBack);
    EXPECT_EQ(records.at(0).place, place);
}

TEST_F(DiskTrashHistoryTest, OfATrashThatIsReachedOverALinkNobodyCanTell)
{
    m_tree.makeFile("work/a");
    trashed("work/a");
    std::filesystem::rename(m_homeTrash, m_tree.pathOf("work/moved"));
    m_tree.makeSymbolicLink("home/.local/share/Trash", m_tree.pathOf("work/moved"));
    EXPECT_EQ(newestState(), TrashState::Moved);
}

TEST_F(DiskTrashHistoryTest, AnItemThatWentToTheSamePlaceTwiceIsThereOnce)
{
    m_tree.makeFile("work/a");
    const TrashedItem item = trashed("work/a");
    std::filesystem::rename(item.to.path(), item.from.path());
    std::filesystem::remove(infoPath("a"));
    ASSERT_EQ(trashed("work/a").to, item.to);
    const std::vector<TrashRecord> records = entries();
    EXPECT_EQ(records.at(0).state, TrashState::Moved);
    EXPECT_EQ(records.at(1).state, TrashState::PutBack);
    EXPECT_EQ(records.at(1).place, item.from);
}

TEST_F(DiskTrashHistoryTest, AnItemInItsPlaceThatWasMadeLaterIsAnother)
{
    m_tree.makeFile("work/a");
    const bool isUsedAgain = succeedsAtLast([this] {
        const TrashedItem item = trashed("work/a");
        std::filesystem::remove(item.to.path());
        m_tree.makeFile("work/a");
        return identityAt(item.from.path()) == item.identity && item.birth;
    });
    if (!isUsedAgain) {
        GTEST_SKIP() << "this file system uses no inode again, or tells no times";
    }
    EXPECT_EQ(newestState(), TrashState::Gone);
}

TEST_F(DiskTrashHistoryTest, LookingWritesNothing)
{
    m_tree.makeFile("work/a");
    std::filesystem::remove(trashed("work/a").to.path());
    const std::vector<std::string> before = snapshotOf(m_tree.path());
    EXPECT_EQ(newestState(), TrashState::Gone);
    EXPECT_EQ(snapshotOf(m_tree.path()), before);
}

TEST_F(DiskTrashHistoryTest, TheJournalIsShortenedAlthoughTheHistoryEnds)
{
    std::string lines;
    for (int i = 0; i < 70'000; ++i) {
        lines += "x\n";
    }
    ASSERT_EQ(appendToTrashJournal(m_stateHome, lines, Durability::Later), 0);
    {
        DiskTrashHistory history(
            m_journal, std::make_shared<const FileSystemQuestions>(kWorkerPatience), m_mainThread);
        history.shortenJournal();
    }
    while (!journalText().empty()) {
        std::this_thread::yield();
    }
}

} // namespace
} // namespace tessera::test
