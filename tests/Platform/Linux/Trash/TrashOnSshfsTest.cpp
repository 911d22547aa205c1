// SPDX-License-Identifier: MIT
#include "support/Machine/BuiltPaths.h"
#include "support/Machine/RunProgram.h"
#include "support/Machine/TrashFixture.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <string>

namespace tessera::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::StartsWith;

/// The folder "server" mounted at "disk" over a line that can be told to break.
class TrashOnSshfs : public TrashFixture {
protected:
    void SetUp() override
    {
        if (::access("/dev/fuse", R_OK | W_OK) != 0) {
            GTEST_SKIP() << "there is no /dev/fuse that this process may use";
        }
        m_tree.makeFolder("server");
        m_tree.makeFolder("disk");
        const ProgramResult result = runProgram(
            "sshfs",
            {"-o",
             std::string("reconnect,ssh_command=python3 ") + test::built::sftpRelay() + " "
                 + m_flag,
             "server:" + m_tree.pathOf("server"),
             m_tree.pathOf("disk")});
        ASSERT_EQ(result.exitStatus, 0) << result.standardError;
    }

    void TearDown() override
    {
        (void)runProgram("fusermount3", {"-u", "-z", m_tree.pathOf("disk")});
    }

    /// Moves the item when the server's answer to the rename gets lost.
    std::string moveOverABreakingLine(const std::string& name)
    {
        m_tree.makeFile("flag");
        std::string error = move("disk/" + name);
        EXPECT_FALSE(exists(m_flag)) << "the line did not break";
        return error;
    }

    std::vector<std::string> infoFiles() const { return namesIn(serversTrash("info")); }
    std::string serversTrash(const std::string& name) const
    {
        return m_tree.pathOf("server/.Trash-" + m_userId + '/' + name);
    }

private:
    const std::string m_flag = m_tree.pathOf("flag");
};

TEST_F(TrashOnSshfs, AFileMoves)
{
    m_tree.writeFile("server/a", "precious");
    EXPECT_EQ(move("disk/a"), "");
    EXPECT_EQ(fileContent(serversTrash("files/a")), "precious");
    EXPECT_THAT(infoFiles(), ElementsAre("a.trashinfo"));
}

TEST_F(TrashOnSshfs, AFileWhoseMoveGotNoAnswerIsInTheTrash)
{
    m_tree.writeFile("server/a", "precious");
    EXPECT_EQ(moveOverABreakingLine("a"), "");
    EXPECT_EQ(m_newPath, m_tree.pathOf("disk/.Trash-" + m_userId + "/files/a"));
    EXPECT_EQ(fileContent(serversTrash("files/a")), "precious");
    EXPECT_THAT(infoFiles(), ElementsAre("a.trashinfo"));
}

TEST_F(TrashOnSshfs, AnEmptyFileWhoseMoveGotNoAnswerIsInTheTrash)
{
    m_tree.makeFile("server/a");
    EXPECT_EQ(moveOverABreakingLine("a"), "");
    EXPECT_TRUE(exists(serversTrash("files/a")));
    EXPECT_THAT(infoFiles(), ElementsAre("a.trashinfo"));
}

/// Through the disk no more is seen of it than the placeholder was long.
TEST_F(TrashOnSshfs, AFileThatBeginsLikeAPlaceholderIsInTheTrash)
{
    const std::string content = "Something is being moved here: 1-2\nIt is the attic.\n";
    m_tree.writeFile("server/a", content);
    EXPECT_EQ(moveOverABreakingLine("a"), "");
    EXPECT_EQ(fileContent(serversTrash("files/a")), content);
}

TEST_F(TrashOnSshfs, AFolderWhoseMoveGotNoAnswerIsInTheTrash)
{
    m_tree.makeFolder("server/folder");
    m_tree.writeFile("server/folder/file", "precious");
    EXPECT_EQ(moveOverABreakingLine("folder/"), "");
    EXPECT_EQ(fileContent(serversTrash("files/folder/file")), "precious");
    EXPECT_THAT(infoFiles(), ElementsAre("folder.trashinfo"));
}

TEST_F(TrashOnSshfs, AnEmptyFolderWhoseMoveGotNoAnswerIsInTheTrash)
{
    m_tree.makeFolder("server/folder");
    EXPECT_EQ(moveOverABreakingLine("folder/"), "");
    EXPECT_THAT(namesIn(serversTrash("files")), ElementsAre("folder"));
    EXPECT_THAT(infoFiles(), ElementsAre("folder.trashinfo"));
}

TEST_F(TrashOnSshfs, AFolderThatTheDiskStillShowsInItsOldPlaceIsNotRemovedFromItsNewOne)
{
    m_tree.makeFolder("server/folder");
    m_tree.writeFile("server/folder/file", "precious");
    ASSERT_THAT(namesIn(m_tree.pathOf("disk/folder")), ElementsAre("file"));
    EXPECT_EQ(moveOverABreakingLine("folder/"), "");
    EXPECT_EQ(fileContent(serversTrash("files/folder/file")), "precious");
    EXPECT_THAT(infoFiles(), ElementsAre("folder.trashinfo"));
}

TEST_F(TrashOnSshfs, OfAnEmptyFolderThatTheDiskStillShowsThereNobodyCanTell)
{
    m_tree.makeFolder("server/folder");
    ASSERT_THAT(namesIn(m_tree.pathOf("disk/folder")), IsEmpty());
    EXPECT_THAT(
        moveOverABreakingLine("folder/"),
        StartsWith("'folder' may be in the trash or where it was"));
    EXPECT_THAT(namesIn(serversTrash("files")), ElementsAre("folder"));
    EXPECT_THAT(infoFiles(), ElementsAre("folder.trashinfo"));
}

} // namespace
} // namespace tessera::test
