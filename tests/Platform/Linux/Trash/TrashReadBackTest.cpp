// SPDX-License-Identifier: MIT
// The trash as another program reads it.
#include "support/Machine/RunProgram.h"
#include "support/Machine/TrashFixture.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace tessera::test {
namespace {

using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

/// Asks the other program, whose user has the home of these surroundings.
template <typename Surroundings>
class ReadBack : public Surroundings {
protected:
    std::string listed() const
    {
        return runProgram("/usr/bin/trash-list", {}, environment()).standardOutput;
    }

    /// Brings back the only item that was at this path or below it.
    void restore(const std::string& name) const
    {
        const std::string command = "echo 0 | trash-restore '" + this->m_tree.pathOf(name) + "'";
        const ProgramResult result = runProgram("/bin/sh", {"-c", command}, environment());
        EXPECT_EQ(result.exitStatus, 0) << result.standardError;
    }

private:
    std::vector<std::string> environment() const
    {
        return {
            "XDG_DATA_HOME=" + this->m_tree.pathOf("home/.local/share"),
            "HOME=" + this->m_tree.pathOf("home"),
            "LC_ALL=C.UTF-8"};
    }
};

using TrashReadBack = ReadBack<TrashFixture>;
using TrashReadBackOnAMount = ReadBack<TrashOnAMount>;

TEST_F(TrashReadBack, AnItemInTheHomesTrashIsListedWhereItWas)
{
    m_tree.makeFile("work/\xC3\xBC 100%");
    ASSERT_EQ(move("work/\xC3\xBC 100%"), "");
    EXPECT_THAT(listed(), HasSubstr(' ' + m_tree.pathOf("work/\xC3\xBC 100%") + '\n'));
}

TEST_F(TrashReadBack, AnItemInTheHomesTrashIsBroughtBack)
{
    m_tree.writeFile("work/\xC3\xBC 100%", "content");
    ASSERT_EQ(move("work/\xC3\xBC 100%"), "");
    restore("work");
    EXPECT_EQ(fileContent(m_tree.pathOf("work/\xC3\xBC 100%")), "content");
    EXPECT_THAT(namesIn(m_homeTrash + "/files"), IsEmpty());
    EXPECT_THAT(namesIn(m_homeTrash + "/info"), IsEmpty());
}

TEST_F(TrashReadBack, AnItemWhoseNameWasTakenComesBackUnderItsOwn)
{
    m_tree.writeFile("work/a.txt", "first");
    ASSERT_EQ(move("work/a.txt"), "");
    m_tree.makeFolder("work/b");
    m_tree.writeFile("work/b/a.txt", "second");
    ASSERT_EQ(move("work/b/a.txt"), "");
    restore("work/b");
    EXPECT_EQ(fileContent(m_tree.pathOf("work/b/a.txt")), "second");
}

TEST_F(TrashReadBack, AnItemWithTheLongestNameComesBackUnderIt)
{
    const std::string name = "work/" + std::string(251, 'x') + ".txt";
    m_tree.makeFile(name);
    ASSERT_EQ(move(name), "");
    restore("work");
    EXPECT_TRUE(exists(m_tree.pathOf(name)));
}

TEST_F(TrashReadBack, AnItemThatWasPutBackIsListedNoMore)
{
    m_tree.makeFile("work/a");
    ASSERT_EQ(move("work/a"), "");
    EXPECT_EQ(m_trash.putBack({m_trashed}).error, "");
    EXPECT_THAT(listed(), IsEmpty());
}

TEST_F(TrashReadBack, AnItemThatCouldNotBePutBackIsListedAndBroughtBack)
{
    m_tree.writeFile("work/a", "old");
    ASSERT_EQ(move("work/a"), "");
    m_tree.writeFile("work/a", "new");
    EXPECT_EQ(m_trash.putBack({m_trashed}).obstacle, PutBackObstacle::NameTaken);
    m_tree.removeFile("work/a");
    restore("work");
    EXPECT_EQ(fileContent(m_tree.pathOf("work/a")), "old");
}

TEST_F(TrashReadBackOnAMount, AnItemIsListedAndBroughtBack)
{
    m_tree.makeFolder("disk/folder");
    m_tree.makeFolder("disk/folder/inner");
    m_tree.makeFile("disk/folder/inner/file");
    ASSERT_EQ(move("disk/folder/inner/"), "");
    EXPECT_THAT(listed(), HasSubstr(' ' + m_disk + "/folder/inner\n"));
    restore("disk");
    EXPECT_TRUE(exists(m_tree.pathOf("disk/folder/inner/file")));
    EXPECT_THAT(listed(), Not(HasSubstr(m_disk)));
}

TEST_F(TrashReadBackOnAMount, AnItemInTheTrashForAllUsersIsListedAndBroughtBack)
{
    m_tree.makeFolder("disk/.Trash");
    m_tree.setMode("disk/.Trash", 01777);
    m_tree.makeFile("disk/a");
    ASSERT_EQ(move("disk/a"), "");
    EXPECT_THAT(listed(), HasSubstr(' ' + m_disk + "/a\n"));
    restore("disk");
    EXPECT_TRUE(exists(m_tree.pathOf("disk/a")));
}

} // namespace
} // namespace tessera::test
