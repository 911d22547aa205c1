// SPDX-License-Identifier: MIT
// An item whose folder is not what it was.
#include "LostAnswers.h"
#include "OrdinaryRights.h"
#include "PutBackFixture.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>
#include <string>

namespace tessera::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr auto kMake = MissingFolders::Make;

class PutBackToFolders : public PutBackFixture {
protected:
    void SetUp() override
    {
        m_tree.makeFolder("work/outer");
        m_tree.makeFolder("work/outer/inner");
        m_tree.writeFile("work/outer/inner/a", "content");
        m_item = trashed("work/outer/inner/a");
    }

    void expectBack() const
    {
        EXPECT_EQ(fileContent(m_item.from.path()), "content");
        EXPECT_THAT(namesIn(m_homeTrash + "/info"), IsEmpty());
    }

    TrashedItem m_item;
};

mode_t permissionsOf(const std::string& path)
{
    struct stat values { };
    return ::lstat(path.c_str(), &values) == 0 ? values.st_mode & 07777 : 0;
}

TEST_F(PutBackToFolders, AFolderThatIsGoneIsMadeOnlyWhenThatIsAskedFor)
{
    m_tree.removeFolder("work/outer/inner");
    const PutBackResult result = putBackInVain({m_item});
    EXPECT_EQ(result.obstacle, PutBackObstacle::FolderGone);
    EXPECT_EQ(
        result.error,
        "'a' was not put back, because the folder that it was in is not there any more.");
    EXPECT_EQ(putBack({m_item, "", kMake}).place, m_item.from);
    expectBack();
}

TEST_F(PutBackToFolders, AllFoldersThatAreGoneAreMadeAsTheUsersMaskSays)
{
    m_tree.removeFolder("work/outer/inner");
    m_tree.removeFolder("work/outer");
    const mode_t before = ::umask(027);
    EXPECT_EQ(putBack({m_item, "", kMake}).obstacle, PutBackObstacle::None);
    ::umask(before);
    expectBack();
    EXPECT_EQ(permissionsOf(m_tree.pathOf("work/outer")), 0750U);
    EXPECT_EQ(permissionsOf(m_tree.pathOf("work/outer/inner")), 0750U);
}

TEST_F(PutBackToFolders, AFolderThatIsThereIsNotMadeAnew)
{
    m_tree.setMode("work/outer/inner", 0711);
    EXPECT_EQ(putBack({m_item, "", kMake}).obstacle, PutBackObstacle::None);
    EXPECT_EQ(permissionsOf(m_tree.pathOf("work/outer/inner")), 0711U);
}

TEST_F(PutBackToFolders, FoldersThatWereMadeInVainGoAgain)
{
    m_tree.removeFolder("work/outer/inner");
    m_tree.removeFolder("work/outer");
    const BrokenRenames broken(Renames::Fail);
    EXPECT_EQ(putBack({m_item, "", kMake}).obstacle, PutBackObstacle::Failed);
    EXPECT_THAT(namesIn(m_tree.pathOf("work")), IsEmpty());
    EXPECT_EQ(whereaboutsOf(m_item.from.path(), m_homeTrash, "content"), Whereabouts::InTheTrash);
}

TEST_F(PutBackToFolders, AFileThatHasAFoldersNameStays)
{
    m_tree.removeFolder("work/outer/inner");
    m_tree.makeFile("work/outer/inner");
    for (const MissingFolders missing : {MissingFolders::Refuse, kMake}) {
        const PutBackResult result = putBackInVain({m_item, "", missing});
        EXPECT_EQ(result.obstacle, PutBackObstacle::FolderReplaced);
        EXPECT_EQ(
            result.error,
            "'a' was not put back, because what was a folder on the way to its place is none any "
            "more.");
    }
}

TEST_F(PutBackToFolders, NoLinkInAFoldersPlaceIsFollowed)
{
    m_tree.makeFolder("victim");
    m_tree.makeFolder("victim/inner");
    std::filesystem::rename(m_tree.pathOf("work/outer"), m_tree.pathOf("work/moved"));
    m_tree.makeSymbolicLink("work/outer", m_tree.pathOf("victim"));
    for (const MissingFolders missing : {MissingFolders::Refuse, kMake}) {
        const PutBackResult result = putBackInVain({m_item, "", missing});
        EXPECT_EQ(result.obstacle, PutBackObstacle::LinkOnTheWay);
        EXPECT_EQ(
            result.error,
            "'a' was not put back, because a folder on the way to its place has become a link.");
    }
}

TEST_F(PutBackToFolders, NoFolderIsMadeBehindALink)
{
    m_tree.makeFolder("victim");
    std::filesystem::rename(m_tree.pathOf("work/outer"), m_tree.pathOf("work/moved"));
    m_tree.makeSymbolicLink("work/outer", m_tree.pathOf("victim"));
    EXPECT_EQ(putBackInVain({m_item, "", kMake}).obstacle, PutBackObstacle::LinkOnTheWay);
    EXPECT_THAT(namesIn(m_tree.pathOf("victim")), IsEmpty());
}

TEST_F(PutBackToFolders, AFolderThatTakesNothingNewIsLeftAlone)
{
    m_tree.setMode("work/outer/inner", 0555);
    const OrdinaryRights rights;
    const PutBackResult result = putBackInVain({m_item});
    EXPECT_EQ(result.obstacle, PutBackObstacle::NoPermission);
    EXPECT_EQ(result.error, "'a' was not put back, because you have no permission to do so.");
}

TEST_F(PutBackToFolders, AFolderThatNobodyMayEnterIsLeftAlone)
{
    m_tree.setMode("work/outer", 0);
    {
        const OrdinaryRights rights;
        EXPECT_EQ(putBack({m_item, "", kMake}).obstacle, PutBackObstacle::NoPermission);
    }
    m_tree.setMode("work/outer", 0755);
    EXPECT_EQ(whereaboutsOf(m_item.from.path(), m_homeTrash, "content"), Whereabouts::InTheTrash);
}

TEST_F(PutBackToFolders, AnItemComesBackBesideWhatIsNewInItsFolder)
{
    m_tree.makeFile("work/outer/inner/new");
    putBack(m_item);
    EXPECT_THAT(namesIn(m_tree.pathOf("work/outer/inner")), ElementsAre("a", "new"));
}

} // namespace
} // namespace tessera::test
