// SPDX-License-Identifier: MIT
// Another program is at the trash while an item leaves it.
#include "Platform/Linux/Trash/TrashPutBack.h"
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

class TrashPutBackRaces : public PutBackFixture {
protected:
    /// Empties the trash and moves another item there, which gets the same name.
    void trashAnother() const
    {
        std::filesystem::rename(m_homeTrash + "/files/a", m_tree.pathOf("kept"));
        std::filesystem::remove(infoPath("a"));
        m_tree.writeFile("home/.local/share/Trash/files/a", "another's");
        m_tree.writeFile("home/.local/share/Trash/info/a.trashinfo", m_anothersInfo);
    }

    void expectAnothersInTheTrash() const
    {
        EXPECT_THAT(namesIn(m_tree.pathOf("work")), IsEmpty());
        EXPECT_EQ(fileContent(m_homeTrash + "/files/a"), "another's");
        EXPECT_EQ(fileContent(infoPath("a")), m_anothersInfo);
    }

    void trashItsFolder() const
    {
        std::filesystem::rename(m_tree.pathOf("work"), m_homeTrash + "/files/work");
    }

    void expectItemInTheTrash() const
    {
        EXPECT_TRUE(exists(m_homeTrash + "/files/a"));
        EXPECT_TRUE(exists(infoPath("a")));
        EXPECT_THAT(namesIn(m_homeTrash + "/files/work"), IsEmpty());
    }

    const std::string m_anothersInfo = "[Trash Info]\nPath=/other/a\n";
};

TEST_F(TrashPutBackRaces, AnotherItemThatComesInTheLastMomentGoesBackToTheTrash)
{
    m_tree.makeFile("work/a");
    const TrashedItem item = trashed("work/a");
    const Meanwhile other(Call::Rename, [this] { trashAnother(); });
    EXPECT_EQ(putBack(item).obstacle, PutBackObstacle::ItemGone);
    expectAnothersInTheTrash();
}

TEST_F(TrashPutBackRaces, WhatWasInTheSamePlaceByItsInfoFileStaysThere)
{
    m_tree.writeFile("work/a", "old");
    const TrashedItem item = trashed("work/a");
    m_tree.writeFile("new", "new");
    // It looks no different from what another program saves over the item once that is back.
    const Meanwhile other(Call::Rename, [this, &item] {
        std::filesystem::remove(item.to.path());
        m_tree.rename("new", "home/.local/share/Trash/files/a");
    });
    EXPECT_EQ(putBack(item).obstacle, PutBackObstacle::None);
    EXPECT_EQ(fileContent(m_tree.pathOf("work/a")), "new");
    EXPECT_THAT(namesIn(m_homeTrash + "/files"), IsEmpty());
}

TEST_F(TrashPutBackRaces, TheItemStaysInTheTrashWhenItsFolderGoesThereRightBefore)
{
    m_tree.makeFile("work/a");
    const TrashedItem item = trashed("work/a");
    bool wasMoved = false;
    const Meanwhile other(Call::Rename, [&wasMoved] { wasMoved = true; });
    const PutBackResult result
        = putBackFromTrash({.item = item}, [this](const Url& /*place*/) { trashItsFolder(); });
    EXPECT_EQ(result.obstacle, PutBackObstacle::FolderGone);
    EXPECT_FALSE(wasMoved);
    expectItemInTheTrash();
}

TEST_F(TrashPutBackRaces, TheItemGoesBackToTheTrashWhenItsFolderGoesThereInTheLastMoment)
{
    m_tree.makeFile("work/a");
    const TrashedItem item = trashed("work/a");
    const Meanwhile other(Call::Rename, [this] { trashItsFolder(); });
    EXPECT_EQ(putBack(item).obstacle, PutBackObstacle::FolderGone);
    expectItemInTheTrash();
}

TEST_F(TrashPutBackRaces, AnotherFolderInThePlaceOfTheItemsIsNotTheOneThatWasLookedAt)
{
    m_tree.makeFile("work/a");
    const TrashedItem item = trashed("work/a");
    const Meanwhile other(Call::Rename, [this] {
        trashItsFolder();
        m_tree.makeFolder("work");
    });
    EXPECT_EQ(putBack(item).obstacle, PutBackObstacle::FolderGone);
    expectItemInTheTrash();
    EXPECT_EQ(putBack(item).obstacle, PutBackObstacle::None);
    EXPECT_TRUE(exists(m_tree.pathOf("work/a")));
}

TEST_F(TrashPutBackRaces, TheInfoFileGoesWhenTheMoveIsOnTheDisk)
{
    m_tree.makeFile("work/a");
    const TrashedItem item = trashed("work/a");
    bool isBack = false;
    bool hasInfo = false;
    std::optional<Meanwhile> sync;
    const Meanwhile rename(Call::Rename, [&] {
        sync.emplace(Call::Sync, [&] {
            isBack = exists(item.from.path());
            hasInfo = exists(infoPath("a"));
        });
    });
    EXPECT_EQ(putBack(item).obstacle, PutBackObstacle::None);
    EXPECT_TRUE(isBack);
    EXPECT_TRUE(hasInfo);
    EXPECT_FALSE(exists(infoPath("a")));
}

} // namespace
} // namespace tessera::test
