// SPDX-License-Identifier: MIT
#include "LostAnswers.h"

#include "Platform/Linux/Files/RenameWithoutReplacing.h"
#include "support/Machine/TrashFixture.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <string>

namespace tessera::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

/// Whether the file system can rename without replacing, or needs a placeholder for that.
class LostAnswers : public TrashFixture, public testing::WithParamInterface<bool> {
protected:
    std::string moveWith(Renames renames, const std::string& name)
    {
        const BrokenRenames broken(renames, GetParam());
        return move(name);
    }

    std::string nowIn(const char* part) const { return m_homeTrash + '/' + part; }
};

TEST_P(LostAnswers, AFileThatMovedAllTheSameCountsAsMoved)
{
    m_tree.writeFile("work/a", "precious");
    EXPECT_EQ(moveWith(Renames::LoseTheirAnswer, "work/a"), "");
    EXPECT_EQ(m_newPath, nowIn("files/a"));
    EXPECT_EQ(fileContent(nowIn("files/a")), "precious");
    EXPECT_THAT(namesIn(nowIn("info")), ElementsAre("a.trashinfo"));
}

TEST_P(LostAnswers, AnEmptyFileThatMovedAllTheSameCountsAsMoved)
{
    m_tree.makeFile("work/a");
    EXPECT_EQ(moveWith(Renames::LoseTheirAnswer, "work/a"), "");
    EXPECT_EQ(fileContent(nowIn("files/a")), "");
    EXPECT_THAT(namesIn(nowIn("info")), ElementsAre("a.trashinfo"));
}

TEST_P(LostAnswers, AFolderThatMovedAllTheSameCountsAsMoved)
{
    m_tree.makeFolder("work/folder");
    m_tree.makeFile("work/folder/file");
    EXPECT_EQ(moveWith(Renames::LoseTheirAnswer, "work/folder/"), "");
    EXPECT_THAT(namesIn(nowIn("files/folder")), ElementsAre("file"));
    EXPECT_THAT(namesIn(nowIn("info")), ElementsAre("folder.trashinfo"));
}

TEST_P(LostAnswers, AnEmptyFolderThatMovedAllTheSameCountsAsMoved)
{
    m_tree.makeFolder("work/folder");
    EXPECT_EQ(moveWith(Renames::LoseTheirAnswer, "work/folder/"), "");
    EXPECT_THAT(namesIn(nowIn("files")), ElementsAre("folder"));
    EXPECT_THAT(namesIn(nowIn("info")), ElementsAre("folder.trashinfo"));
}

TEST_P(LostAnswers, ALinkThatMovedAllTheSameCountsAsMoved)
{
    m_tree.makeSymbolicLink("work/a", "nowhere");
    EXPECT_EQ(moveWith(Renames::LoseTheirAnswer, "work/a"), "");
    EXPECT_EQ(std::filesystem::read_symlink(nowIn("files/a")), "nowhere");
}

TEST_P(LostAnswers, AFileThatDidNotMoveLeavesNothingInTheTrash)
{
    m_tree.writeFile("work/a", "precious");
    const auto before = snapshotOf(m_tree.path());
    EXPECT_THAT(moveWith(Renames::Fail, "work/a"), HasSubstr("was not moved to the trash"));
    EXPECT_EQ(snapshotOf(m_tree.path()), before);
}

TEST_P(LostAnswers, AFolderThatDidNotMoveLeavesNothingInTheTrash)
{
    m_tree.makeFolder("work/folder");
    m_tree.makeFile("work/folder/file");
    const auto before = snapshotOf(m_tree.path());
    EXPECT_THAT(moveWith(Renames::Fail, "work/folder/"), HasSubstr("was not moved to the trash"));
    EXPECT_EQ(snapshotOf(m_tree.path()), before);
}

TEST_P(LostAnswers, AnotherNameOfTheSameFileInTheTrashIsNoMove)
{
    std::filesystem::create_directories(nowIn("files"));
    m_tree.writeFile("work/a", "precious");
    m_tree.makeHardLink("home/.local/share/Trash/files/a", "work/a");
    EXPECT_THAT(moveWith(Renames::Fail, "work/a"), HasSubstr("was not moved to the trash"));
    EXPECT_EQ(fileContent(m_tree.pathOf("work/a")), "precious");
    EXPECT_THAT(namesIn(nowIn("info")), IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(
    FileSystems,
    LostAnswers,
    testing::Bool(),
    [](const testing::TestParamInfo<bool>& knowsNoReplace) {
        return knowsNoReplace.param ? "ThatKnowNoReplace" : "ThatNeedAPlaceholder";
    });

TEST_F(TrashFixture, AnEmptyFolderOfWhichNobodyCanTellWhereItIsKeepsItsInfoFile)
{
    m_tree.makeFolder("work/folder");
    const BrokenRenames broken(Renames::Fail, false);
    EXPECT_EQ(
        move("work/folder/"),
        "'folder' may be in the trash or where it was, because its disk broke off while it was "
        "moved. Nothing has been removed.");
    EXPECT_TRUE(exists(m_tree.pathOf("work/folder")));
    EXPECT_THAT(namesIn(m_homeTrash + "/info"), ElementsAre("folder.trashinfo"));
}

TEST_F(TrashFixture, WhereAnItemMayBeInTheTrashIsToldOnlyWhereNobodyCanTell)
{
    m_tree.makeFolder("work/folder");
    const BrokenRenames broken(Renames::Fail, false);
    const RecycleResult result = m_trash.recycle(
        {Url(m_tree.pathOf("work/folder"), true), Url(m_tree.pathOf("work/none"), false)});
    ASSERT_EQ(result.notMoved.size(), 2U);
    EXPECT_EQ(result.notMoved[0].mayBeAt, Url(m_homeTrash + "/files/folder", true));
    EXPECT_EQ(result.notMoved[1].mayBeAt, std::nullopt);
}

} // namespace
} // namespace tessera::test
