// SPDX-License-Identifier: MIT
// What a scan found beside the nodes stays true when a folder is scanned anew, or trashed.
#include "FolderRescanFixture.h"
#include "Ledger/FoundSpace.h"

#include <gmock/gmock.h>

#include <cerrno>

namespace tessera {
namespace {

using testing::ElementsAre;

/// A rescanned folder holds "closed", which cannot be read, and takes 512 bytes itself.
class FolderRescanFindings : public test::FolderRescanTest {
protected:
    FolderRescanFindings()
        : FolderRescanTest("/me", "closed/ ( a:1 ) new:6")
    {
        services.files.makeUnreadable("closed");
        services.files.setOwnAllocation("", 512);
        services.files.setOwnAllocation("closed", 1024);
    }

    void close(std::string_view path)
    {
        const File& closed = node(path);
        model.topFolder()->findings().addUnreadable(
            {closed.absolutePath(), std::error_code(EIO, std::system_category()), &closed});
    }

    std::vector<std::string> unreadable() const
    {
        std::vector<std::string> paths;
        for (const UnreadableFolder& closed : model.topFolder()->findings().unreadable()) {
            paths.push_back(closed.path);
        }
        return paths;
    }

    void end()
    {
        services.mainThread.runUntil([this] { return !isRescanning(); });
    }
};

TEST_F(FolderRescanFindings, ARescanReplacesWhatWasFoundBelowIt)
{
    close("docs/gone");
    close("other");
    rescan("docs");
    finish();
    EXPECT_THAT(unreadable(), ElementsAre("/data/other", "/data/docs/closed"));
}

/// A disk that fails may let a folder be opened, and not be listed.
TEST_F(FolderRescanFindings, ARescanThatCouldNotListItsFolderKeepsWhatWasThere)
{
    services.files.makeUnreadable("");
    close("docs/gone");
    rescan("docs");
    end();
    EXPECT_TRUE(has("docs/gone/deep/x"));
    EXPECT_THAT(unreadable(), ElementsAre("/data/docs/gone"));
    ASSERT_EQ(services.alert.told.size(), 1U);
    EXPECT_EQ(services.alert.told[0].messageText, QStringLiteral("The folder cannot be scanned"));
}

TEST_F(FolderRescanFindings, ARescanReadsTheFoldersOwnBlocksAnew)
{
    folder("docs").setOwnAllocation(8192);
    folder("docs/gone").setOwnAllocation(4096);
    folder("other").setOwnAllocation(2048);
    rescan("docs");
    finish();
    EXPECT_EQ(foundSpace(*model.topFolder()).folders, 2048U + 512U + 1024U);
}

TEST_F(FolderRescanFindings, AFolderThatIsTrashedTakesThemAlong)
{
    close("docs/gone");
    close("other");
    folder("docs").setOwnAllocation(8192);
    trash("docs");
    EXPECT_THAT(unreadable(), ElementsAre("/data/other"));
    EXPECT_EQ(foundSpace(*model.topFolder()).folders, 0U);
}

TEST_F(FolderRescanFindings, AFolderThatIsTrashedIntoTheTreeBringsThemThere)
{
    close("docs/gone");
    folder("docs").setOwnAllocation(8192);
    trashTo("docs", "/data/other/trash/files/docs 2");
    EXPECT_THAT(unreadable(), ElementsAre("/data/other/trash/files/docs 2/gone"));
    EXPECT_EQ(foundSpace(*model.topFolder()).folders, 8192U);
}

TEST_F(FolderRescanFindings, AFolderThatIsTrashedDuringARescanLeavesNone)
{
    close("docs/gone");
    rescan("docs");
    trash("docs/gone");
    finish();
    EXPECT_THAT(unreadable(), ElementsAre("/data/docs/closed"));
}

TEST_F(FolderRescanFindings, AFolderThatIsTrashedIntoOneThatIsRescannedBringsThemThere)
{
    close("other");
    rescan("docs");
    trashTo("other", "/data/docs/other");
    finish();
    EXPECT_THAT(unreadable(), ElementsAre("/data/docs/closed", "/data/docs/other"));
}

} // namespace
} // namespace tessera
