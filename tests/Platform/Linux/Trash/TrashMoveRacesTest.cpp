// SPDX-License-Identifier: MIT
// Another program is at an item, or at the trash, while the item moves there.
#include "PutBackFixture.h"
#include "support/Machine/Meanwhile.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <optional>
#include <string>

namespace tessera::test {
namespace {

using testing::IsEmpty;

class TrashMoveRaces : public PutBackFixture {
protected:
    TrashMoveRaces() { m_tree.writeFile("work/a", "old"); }

    RecycleResult recycle() const { return m_keepingTrash.recycle({m_place}); }
    RecycleResult recycleFile() const
    {
        return m_keepingTrash.recycleFile(identityAt(m_place.path()), {m_place});
    }

    /// As programs save: the new file is complete before it takes the name.
    void save() const
    {
        m_tree.writeFile("new", "new");
        m_tree.rename("new", "work/a");
    }

    void expectNewFileInItsPlace() const
    {
        EXPECT_EQ(fileContent(m_place.path()), "new");
        EXPECT_THAT(namesIn(m_homeTrash + "/files"), IsEmpty());
        EXPECT_THAT(namesIn(m_homeTrash + "/info"), IsEmpty());
    }

    const Url m_place{m_tree.pathOf("work/a"), false};
};

TEST_F(TrashMoveRaces, WhatIsSavedWhileTheEntryIsWrittenStays)
{
    std::optional<Meanwhile> entry;
    // The first is the info file's.
    const Meanwhile info(Call::Sync, [&] { entry.emplace(Call::Sync, [this] { save(); }); });
    EXPECT_EQ(recycle().error, "'a' was not moved to the trash, because it is not there any more.");
    expectNewFileInItsPlace();
    EXPECT_EQ(newestRecord()->state, TrashState::NotMoved);
}

TEST_F(TrashMoveRaces, WhatIsSavedInTheLastMomentCanBePutBack)
{
    RecycleResult result;
    {
        const Meanwhile other(Call::Rename, [this] { save(); });
        result = recycle();
    }
    ASSERT_EQ(result.trashed.size(), 1U);
    const TrashedItem& item = result.trashed.front();
    EXPECT_EQ(item.identity, identityAt(item.to.path()));
    EXPECT_EQ(newestRecord()->item, item);
    EXPECT_EQ(newestRecord()->state, TrashState::Moved);
    EXPECT_EQ(putBack(item).obstacle, PutBackObstacle::None);
    EXPECT_EQ(fileContent(m_place.path()), "new");
}

TEST_F(TrashMoveRaces, AnotherFileThanTheOneThatWasMeantStaysInTheLastMoment)
{
    const Meanwhile other(Call::Rename, [this] { save(); });
    EXPECT_EQ(
        recycleFile().error, "'a' was not moved to the trash, because it is not there any more.");
    expectNewFileInItsPlace();
    EXPECT_EQ(newestRecord()->state, TrashState::NotMoved);
}

TEST_F(TrashMoveRaces, AFolderThatComesInTheLastMomentInAFilesPlaceStays)
{
    const Meanwhile other(Call::Rename, [this] {
        m_tree.removeFile("work/a");
        m_tree.makeFolder("work/a");
    });
    EXPECT_NE(recycle().error, "");
    EXPECT_TRUE(std::filesystem::is_directory(m_place.path()));
    EXPECT_THAT(namesIn(m_homeTrash + "/info"), IsEmpty());
}

TEST_F(TrashMoveRaces, AnInfoFileThatSomebodyRemovedMeanwhileIsMadeAgain)
{
    const Meanwhile other(Call::Rename, [this] { std::filesystem::remove(infoPath("a")); });
    const RecycleResult result = recycle();
    EXPECT_EQ(result.error, "");
    EXPECT_EQ(whereaboutsOf(m_place.path(), m_homeTrash, "old"), Whereabouts::InTheTrash);
}

TEST_F(TrashMoveRaces, WithoutAnInfoFileAnItemGoesBackWhereItWas)
{
    const Meanwhile other(
        Call::Rename, [this] { std::filesystem::remove_all(m_homeTrash + "/info"); });
    EXPECT_NE(recycle().error, "");
    EXPECT_EQ(fileContent(m_place.path()), "old");
    EXPECT_THAT(namesIn(m_homeTrash + "/files"), IsEmpty());
    EXPECT_EQ(newestRecord()->state, TrashState::NotMoved);
}

} // namespace
} // namespace tessera::test
