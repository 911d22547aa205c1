// SPDX-License-Identifier: MIT
#include "Model/TimeMachine.h"
#include "Model/Volume.h"
#include "ScannerFixture.h"
#include "support/MakeTree.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tessera {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class ScannerPlacesTest : public test::ScannerFixture { };

TEST_F(ScannerPlacesTest, AFolderGivesATopFolder)
{
    EXPECT_EQ(scanToEnd("a:1").type(), NodeType::TopFolder);
}

TEST_F(ScannerPlacesTest, AMountedVolumeGivesAVolumeWithItsPseudoNodes)
{
    resourceValues.volumes = {"/data"};
    TopFolder& volume = scanToEnd("a:600");
    ASSERT_EQ(volume.type(), NodeType::Volume);
    EXPECT_EQ(volume.totalAllocation(), 700U);
    EXPECT_EQ(test::at(volume, "Free Space").totalAllocation(), 300U);
    EXPECT_EQ(test::at(volume, "Restricted Files").totalAllocation(), 100U);
}

TEST_F(ScannerPlacesTest, TheHomeFolderGivesATopFolderEvenWhenItIsAVolume)
{
    resourceValues.volumes = {"/home/me"};
    EXPECT_EQ(scanToEnd("a:600", "/home/me").type(), NodeType::TopFolder);
}

TEST_F(ScannerPlacesTest, APartOfATreeIsAFolderWhateverIsMountedInThere)
{
    resourceValues.mountPoints = {"/data/disk"};
    Scanner& scanner = scannerOf("disk/ ( a:600 ) b:50");
    scanner.scan(Url("/data", true), ScanPurpose::PartOfTree);
    mainThread.runUntil([this] { return delegate.hasEnded(); });
    EXPECT_EQ(delegate.tree->type(), NodeType::TopFolder);
    EXPECT_EQ(delegate.tree->totalAllocation(), 650U);
}

TEST_F(ScannerPlacesTest, AVolumeStaysEmptyAsPartOfATree)
{
    resourceValues.volumes = {"/data"};
    Scanner& scanner = scannerOf("a:600");
    scanner.scan(Url("/data", true), ScanPurpose::PartOfTree);
    mainThread.runUntil([this] { return delegate.hasEnded(); });
    EXPECT_EQ(delegate.tree->type(), NodeType::TopFolder);
    EXPECT_THAT(delegate.tree->children().span(), IsEmpty());
    EXPECT_THAT(files->enumeratedPaths(), IsEmpty()) << "nor is it looked into";
}

TEST_F(ScannerPlacesTest, AMountedPartOfADiskStaysEmptyAsPartOfATree)
{
    resourceValues.mountPoints = {"/data"};
    Scanner& scanner = scannerOf("a:600");
    scanner.scan(Url("/data", true), ScanPurpose::PartOfTree);
    mainThread.runUntil([this] { return delegate.hasEnded(); });
    EXPECT_EQ(delegate.tree->totalAllocation(), 0U);
}

TEST_F(ScannerPlacesTest, AnEncryptedHomeIsWalkedAsPartOfATreeToo)
{
    resourceValues.volumes = {"/data/home/me"};
    Scanner& scanner = scannerOf("a:600");
    scanner.scan(Url("/data/home/me", true), ScanPurpose::PartOfTree);
    mainThread.runUntil([this] { return delegate.hasEnded(); });
    EXPECT_EQ(delegate.tree->type(), NodeType::TopFolder);
    EXPECT_EQ(delegate.tree->totalAllocation(), 600U);
}

TEST_F(ScannerPlacesTest, TheHomeIsOneByAnyPathThatLeadsThere)
{
    resourceValues.volumes = {"/home/link"};
    resourceValues.links["/home/link"] = "/home/me";
    EXPECT_EQ(scanToEnd("a:600", "/home/link").type(), NodeType::TopFolder);
}

TEST_F(ScannerPlacesTest, ABackupStoreAtTheTopOfAVolumeIsNotWalked)
{
    resourceValues.volumes = {"/data"};
    TopFolder& root = scanToEnd("Backups.backupdb/ ( old/ ( a:50 ) ) b:200");
    EXPECT_TRUE(static_cast<Folder&>(test::at(root, "Backups.backupdb")).children().empty());
    EXPECT_EQ(test::at(root, "Time Machine").totalAllocation(), 500U);
    EXPECT_EQ(test::at(root, "Time Machine").type(), NodeType::TimeMachine);
    EXPECT_EQ(root.findings().leftOut().size(), 1U);
}

TEST_F(ScannerPlacesTest, OfAVolumeWhoseLinksAddUpToMoreThanIsInUseTheBackupsAreEmpty)
{
    resourceValues.volumes = {"/data"};
    TopFolder& root = scanToEnd("Backups.backupdb/ ( ) b:400 link:400");
    EXPECT_EQ(test::at(root, "Time Machine").totalAllocation(), 0U);
    EXPECT_EQ(root.totalAllocation(), 700U);
}

TEST_F(ScannerPlacesTest, OfAVolumeWithMoreFreeThanItHasTheBackupsAreEmpty)
{
    resourceValues.volumes = {"/data"};
    fileSystem.setSizes(FileSystemSizes{300, 1000});
    TopFolder& root = scanToEnd("Backups.backupdb/ ( ) b:200");
    EXPECT_EQ(test::at(root, "Time Machine").totalAllocation(), 0U);
}

TEST_F(ScannerPlacesTest, ABackupStoreInAFolderIsWalkedLikeAnyFolder)
{
    TopFolder& root = scanToEnd("Backups.backupdb/ ( old/ ( a:50 ) ) b:200");
    EXPECT_EQ(test::at(root, "Backups.backupdb").totalAllocation(), 50U);
    EXPECT_EQ(root.children().size(), 2U);
    EXPECT_EQ(root.totalAllocation(), 250U);
    EXPECT_EQ(root.findings().leftOut().size(), 0U);
}

TEST_F(ScannerPlacesTest, AFileWithTheNameOfABackupStoreIsNone)
{
    resourceValues.volumes = {"/data"};
    TopFolder& root = scanToEnd("Backups.backupdb:50 b:200");
    EXPECT_EQ(root.children().size(), 4U) << "two files, free space, restricted files";
    EXPECT_EQ(test::at(root, "Restricted Files").totalAllocation(), 450U);
}

TEST_F(ScannerPlacesTest, ABackupStoreDeeperDownIsWalkedLikeAnyFolder)
{
    TopFolder& root = scanToEnd("f/ ( Backups.backupdb/ ( a:50 ) )");
    EXPECT_EQ(test::at(root, "f/Backups.backupdb/a").totalAllocation(), 50U);
    EXPECT_EQ(root.children().size(), 1U);
}

TEST_F(ScannerPlacesTest, AHiddenFolderNamedAfterTheUserIsNotWalkedInTheUpperTwoLevels)
{
    TopFolder& root = scanToEnd(".me/ ( a:1 ) f/ ( .me/ ( b:2 ) g/ ( .me/ ( c:4 ) ) )");
    EXPECT_TRUE(static_cast<Folder&>(test::at(root, ".me")).children().empty());
    EXPECT_TRUE(static_cast<Folder&>(test::at(root, "f/.me")).children().empty());
    EXPECT_EQ(test::at(root, "f/g/.me/c").totalAllocation(), 4U);
    EXPECT_THAT(
        root.findings().leftOut(), ElementsAre(&test::at(root, ".me"), &test::at(root, "f/.me")));
    EXPECT_EQ(root.findings().leftOut().size(), 2U);
}

TEST_F(ScannerPlacesTest, AFolderThatIsLeftOutIsNeitherEnteredNorUnreadable)
{
    Scanner& scanner = scannerOf(".me/ ( a:1 ) b:2");
    files->makeUnreadable(".me");
    files->setOwnAllocation(".me", 4096);
    scanner.scan(Url("/data", true));
    mainThread.runUntil([this] { return delegate.hasEnded(); });
    EXPECT_EQ(delegate.tree->findings().unreadableCount(), 0U);
    EXPECT_EQ(delegate.tree->findings().leftOut().size(), 1U);
    EXPECT_EQ(static_cast<Folder&>(test::at(*delegate.tree, ".me")).ownAllocation(), 0U);
}

TEST_F(ScannerPlacesTest, AHiddenFileNamedAfterTheUserIsNotLeftOut)
{
    TopFolder& root = scanToEnd(".me:7");
    EXPECT_EQ(root.findings().leftOut().size(), 0U);
    EXPECT_EQ(root.totalAllocation(), 7U);
}

TEST_F(ScannerPlacesTest, AHomeThatIsMountedInTheTreeIsKnownAsSuch)
{
    resourceValues.mountPoints = {"/data/me"};
    Scanner& scanner = scannerOf("a:600");
    scanner.scan(Url("/data/me", true), ScanPurpose::PartOfTree);
    mainThread.runUntil([this] { return delegate.hasEnded(); });
    EXPECT_EQ(delegate.tree->totalAllocation(), 600U);
    EXPECT_TRUE(delegate.tree->findings().isMounted(*delegate.tree));
}

TEST_F(ScannerPlacesTest, AMountThatATreeBeginsAtIsNotInATree)
{
    resourceValues.mountPoints = {"/data/me"};
    EXPECT_FALSE(scanToEnd("a:600", "/data/me").findings().isMounted(*delegate.tree));
}

TEST_F(ScannerPlacesTest, FileVaultsHoldsOnlyVolumesNamedAfterTheUserInTheUpperTwoLevels)
{
    resourceValues.volumes = {"/data/home/me", "/data/home/you", "/data/a/b/me"};
    Scanner& scanner = scannerOf("home/ ( me/ ( ) you/ ( ) ) a/ ( me/ ( ) b/ ( me/ ( ) ) )");
    scanner.scan(Url("/data", true));
    mainThread.runUntil([this] { return delegate.hasEnded(); });
    EXPECT_THAT(scanner.fileVaults(), ElementsAre(Url("/data/home/me", true)));
}

TEST_F(ScannerPlacesTest, AHomeIsInFileVaultsToWhereOnlyAPartOfADiskIsMountedThere)
{
    resourceValues.mountPoints = {"/data/me"};
    Scanner& scanner = scannerOf("me/ ( )");
    scanner.scan(Url("/data", true));
    mainThread.runUntil([this] { return delegate.hasEnded(); });
    EXPECT_THAT(scanner.fileVaults(), ElementsAre(Url("/data/me", true)));
}

} // namespace
} // namespace tessera
