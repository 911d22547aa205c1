// SPDX-License-Identifier: MIT
#include "EndToEnd/Session/WholeProgramFixture.h"

namespace tessera::test {
namespace {

/// The dialog that lets the user choose any folder, used by keys.
class OpenFolder : public WholeProgram {
protected:
    /// The folder should have none in it: offered for completion, they would take the last key.
    void chooseByKeys(const std::string& path)
    {
        desk().typeKeys({key::kControl, 'o'});
        ASSERT_TRUE(opens(XWindow::Kind::Dialog));
        ASSERT_TRUE(becomesActive(XWindow::Kind::Dialog));
        desk().typeText(path + '/');
        desk().typeKey(key::kReturn);
    }
};

TEST_F(OpenFolder, ATypedPathIsScanned)
{
    chooseByKeys(home("Downloads/fonts"));
    EXPECT_TRUE(showsTree("Downloads/fonts"));
}

TEST_F(OpenFolder, EscapeLeavesTheHomeScreen)
{
    desk().typeKeys({key::kControl, 'o'});
    ASSERT_TRUE(rejectDialog());
    EXPECT_TRUE(isHome());
}

TEST_F(OpenFolder, TheButtonOfTheHomeScreenOpensIt)
{
    clickOn("Open Folder…", "push button");
    ASSERT_TRUE(rejectDialog());
    EXPECT_TRUE(isHome());
}

TEST_F(OpenFolder, WorksOnTheTreeScreenToo)
{
    ASSERT_TRUE(scan("Documents"));
    chooseByKeys(home("Downloads/fonts"));
    EXPECT_TRUE(showsTree("Downloads/fonts"));
}

TEST_F(OpenFolder, ABackupIsRefusedInTheWordsOfThisSystem)
{
    session->folders().makeFolder("home/Backups.backupdb");
    session->folders().makeFolder("home/Backups.backupdb/Latest");
    chooseByKeys(home("Backups.backupdb/Latest"));
    see("Backup Detected", "alert message");
    EXPECT_TRUE(acceptDialog());
    EXPECT_TRUE(isHome());
}

} // namespace
} // namespace tessera::test
