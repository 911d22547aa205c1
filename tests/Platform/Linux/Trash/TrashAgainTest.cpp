// SPDX-License-Identifier: MIT
// What it takes to move an item to the trash again that was put back.
#include "PutBackFixture.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>
#include <string>
#include <utility>

namespace tessera::test {
namespace {

using testing::IsEmpty;
using testing::SizeIs;

class TrashAgain : public PutBackFixture {
protected:
    /// What is at that place by now, if it is the item that was put back.
    RecycleResult again(const PutBackResult& back) const { return again(back.place, back.item); }

    RecycleResult again(const Url& place, const ItemOnDisk& item) const
    {
        ItemToRecycle wanted(place);
        wanted.identity = item.identity;
        wanted.birth = item.birth;
        return m_keepingTrash.recycle({wanted});
    }

    PutBackResult backAgain(const std::string& name) { return putBack(trashed(name)); }

    static void expectRefused(const RecycleResult& result, const std::string& name)
    {
        EXPECT_EQ(
            result.error,
            '\'' + name
                + "' cannot be moved to the trash, because something else is called so now.");
        EXPECT_THAT(result.trashed, IsEmpty());
    }
};

TEST_F(TrashAgain, WhatWasPutBackIsToldAsItIsOnTheDisk)
{
    m_tree.writeFile("work/a", std::string(10'000, 'x'));
    std::filesystem::create_hard_link(m_tree.pathOf("work/a"), m_tree.pathOf("work/other"));
    const PutBackResult result = backAgain("work/a");
    struct stat values { };
    ASSERT_EQ(::lstat(m_tree.pathOf("work/a").c_str(), &values), 0);
    EXPECT_EQ(result.item.identity, identityAt(m_tree.pathOf("work/a")));
    EXPECT_EQ(result.item.linkCount, 2U);
    EXPECT_EQ(result.item.bytes, static_cast<std::uint64_t>(values.st_blocks) * 512);
}

TEST_F(TrashAgain, NobodyMeasuresAFolder)
{
    m_tree.makeFolder("work/folder");
    EXPECT_EQ(backAgain("work/folder/").item.bytes, std::nullopt);
}

TEST_F(TrashAgain, NoFolderIsMadeWhereThereIsOne)
{
    m_tree.makeFile("work/a");
    EXPECT_TRUE(backAgain("work/a").madeFolder.empty());
}

TEST_F(TrashAgain, TheOutermostFolderThatWasMadeIsTold)
{
    m_tree.makeFolder("work/outer");
    m_tree.makeFolder("work/outer/inner");
    m_tree.makeFile("work/outer/inner/a");
    const TrashedItem item = trashed("work/outer/inner/a");
    std::filesystem::remove_all(m_tree.pathOf("work/outer"));
    const PutBackResult result = putBack({item, "", MissingFolders::Make});
    EXPECT_EQ(result.madeFolder, Url(m_tree.pathOf("work/outer"), true));
}

TEST_F(TrashAgain, TheVeryFileMoves)
{
    m_tree.writeFile("work/a", "content");
    const PutBackResult back = backAgain("work/a");
    const RecycleResult result = again(back);
    ASSERT_THAT(result.trashed, SizeIs(1));
    EXPECT_EQ(result.trashed[0].identity, back.item.identity);
    EXPECT_EQ(fileContent(m_homeTrash + "/files/a"), "content");
}

TEST_F(TrashAgain, TheVeryFolderMoves)
{
    m_tree.makeFolder("work/folder");
    m_tree.makeFile("work/folder/a");
    const RecycleResult result = again(backAgain("work/folder/"));
    EXPECT_EQ(result.error, "");
    EXPECT_TRUE(std::filesystem::exists(m_homeTrash + "/files/folder/a"));
}

TEST_F(TrashAgain, AFileThatTookItsNameStays)
{
    m_tree.makeFile("work/a");
    const PutBackResult back = backAgain("work/a");
    std::filesystem::rename(m_tree.pathOf("work/a"), m_tree.pathOf("work/kept"));
    m_tree.writeFile("work/a", "new");
    expectRefused(again(back), "a");
    EXPECT_EQ(fileContent(m_tree.pathOf("work/a")), "new");
    EXPECT_THAT(namesIn(m_homeTrash + "/info"), IsEmpty());
}

TEST_F(TrashAgain, AFolderThatTookItsNameStays)
{
    m_tree.makeFolder("work/folder");
    const PutBackResult back = backAgain("work/folder/");
    std::filesystem::rename(m_tree.pathOf("work/folder"), m_tree.pathOf("work/kept"));
    m_tree.makeFolder("work/folder");
    expectRefused(again(back), "folder");
}

TEST_F(TrashAgain, ALinkThatTookItsNameStays)
{
    m_tree.makeSymbolicLink("work/link", "kept");
    const PutBackResult back = backAgain("work/link");
    std::filesystem::rename(m_tree.pathOf("work/link"), m_tree.pathOf("work/kept"));
    m_tree.makeSymbolicLink("work/link", "kept");
    expectRefused(again(back), "link");
}

TEST_F(TrashAgain, AFileOfTheSameNumberThatWasMadeLaterStays)
{
    m_tree.makeFile("work/a");
    PutBackResult back = backAgain("work/a");
    if (!back.item.birth) {
        GTEST_SKIP() << "this file system does not say when a file was made";
    }
    ++*back.item.birth;
    expectRefused(again(back), "a");
}

TEST_F(TrashAgain, WithoutATimeOfBirthTheNumberTells)
{
    m_tree.makeFile("work/a");
    PutBackResult back = backAgain("work/a");
    back.item.birth.reset();
    EXPECT_EQ(again(back).error, "");
}

TEST_F(TrashAgain, OfSeveralItemsTheOthersMove)
{
    m_tree.makeFile("work/a");
    m_tree.makeFile("work/b");
    ItemToRecycle another(Url(m_tree.pathOf("work/a"), false));
    another.identity = identityAt(m_tree.pathOf("work/b"));
    const RecycleResult result
        = m_keepingTrash.recycle({another, Url(m_tree.pathOf("work/b"), false)});
    ASSERT_THAT(result.trashed, SizeIs(1));
    EXPECT_EQ(result.trashed[0].from, Url(m_tree.pathOf("work/b"), false));
    EXPECT_NE(result.error, "");
}

} // namespace
} // namespace tessera::test
