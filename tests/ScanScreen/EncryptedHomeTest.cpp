// SPDX-License-Identifier: MIT
#include "Ledger/FoundSpace.h"
#include "Ledger/UnseenFolders.h"
#include "Model/NodeLookup.h"
#include "ScanningViewControllerFixture.h"
#include "support/MakeTree.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tessera {
namespace {

using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;

/// Scans of /Users where /Users/me is an encrypted home, a volume of its own.
class EncryptedHomeTest : public test::ScanningViewControllerFixture {
protected:
    void scanHome(
        std::string_view items = "me/ ( a:300 b:100 ) other/ ( c:200 )",
        const std::string& home = "/me")
    {
        userHome = home;
        makeScanner(items);
        system->scanResourceValues.volumes.insert("/Users/me");
        controller->startScanning(Url("/Users", true));
    }
};

TEST_F(EncryptedHomeTest, TheHomeIsScannedInASecondPass)
{
    scanHome();
    runUntil([this] { return controller->fileVault() != nullptr; });
    EXPECT_THAT(posted, IsEmpty());
    EXPECT_EQ(controller->rootURL(), Url("/Users/me", true));
    EXPECT_EQ(text("readRate"), "");
    runToEnd();
    EXPECT_THAT(posted, ElementsAre("complete"));
    EXPECT_TRUE(controller->rootURL().empty());
}

TEST_F(EncryptedHomeTest, TheSecondPassBeginsWithoutARateAgain)
{
    const std::size_t reports = 27; // a pass meets the home folder and its files
    makeScanner("me/ ( " + test::filesText(26) + ")");
    system->scanResourceValues.volumes.insert("/Users/me");
    controller->startScanning(Url("/Users", true));
    runToEnd();

    ASSERT_EQ(rates.size(), 2 * reports);
    EXPECT_EQ(rates.at(reports - 1), "2 files/sec");
    EXPECT_THAT(
        std::vector(rates.begin() + reports, rates.begin() + reports + 19), Each(std::string()));
    EXPECT_EQ(rates.at(reports + 19), "2 files/sec");
}

TEST_F(EncryptedHomeTest, ASecondPassThatIsCancelledLeavesNoTree)
{
    scanHome();
    runUntil([this] { return controller->fileVault() != nullptr; });
    controller->stopScan();
    runUntilIdle();
    EXPECT_THAT(posted, ElementsAre("cancelled"));
    EXPECT_EQ(model.topFolder(), nullptr);
}

TEST_F(EncryptedHomeTest, WhatTheSecondPassFoundStandsInTheHomesPlace)
{
    scanHome();
    runToEnd();
    TopFolder& top = *model.topFolder();
    EXPECT_EQ(top.origin(), "/Users");
    const File& home = test::at(top, "me");

    EXPECT_EQ(home.type(), NodeType::Folder);
    EXPECT_NE(nodeAtPath(top, "/Users/me/other/c"), nullptr);
    EXPECT_EQ(nodeAtPath(top, "/Users/other/c")->totalAllocation(), 200U);
}

TEST_F(EncryptedHomeTest, WhatIsInTheHomeTakesNothingOfTheDiskAroundIt)
{
    userHome = "/Users/me";
    makeScanner("me/ ( a:300 b:100 ) other/ ( c:200 )");
    system->scanResourceValues.volumes.insert("/Users/me");
    system->files.setOwnAllocation("", 4096);
    controller->startScanning(Url("/Users", true));
    runToEnd();
    const TopFolder& top = *model.topFolder();
    EXPECT_EQ(top.totalAllocation(), 800U);
    EXPECT_EQ(foundSpace(top), (FoundSpace{200, 4096}));
}

TEST_F(EncryptedHomeTest, WhatTheSecondPassCouldNotReadIsToldWithTheRest)
{
    userHome = "/Users/me";
    makeScanner("me/ ( a:300 ) other/ ( c:200 )");
    system->scanResourceValues.volumes.insert("/Users/me");
    system->files.makeUnreadable("other");
    controller->startScanning(Url("/Users", true));
    runToEnd();
    const auto& unreadable = model.topFolder()->findings().unreadable();
    ASSERT_EQ(unreadable.size(), 2U);
    EXPECT_EQ(unreadable[0].path, "/Users/other");
    EXPECT_EQ(unreadable[1].path, "/Users/me/other");
    const UnseenFolders unseen = unseenFolders(*model.topFolder());
    EXPECT_EQ(unseen.unreadableCount, 1U) << "the home is not of the disk around it";
    ASSERT_EQ(unseen.unreadable.size(), 1U);
    EXPECT_EQ(unseen.unreadable[0].path, "/Users/other");
}

TEST_F(EncryptedHomeTest, TheUsersOwnHomeIsAFolderOfWhatWasFoundInIt)
{
    scanHome("me/ ( a:300 b:100 ) other/ ( c:200 )", "/Users/me");
    runToEnd();
    const auto& home = static_cast<const Folder&>(test::at(*model.topFolder(), "me"));
    // The second scan meets the same items once more: 300, 100 and 200 bytes.
    EXPECT_EQ(home.totalAllocation(), 600U);
    EXPECT_EQ(home.children().size(), 2U) << "no free space and no restricted files";
    EXPECT_EQ(model.topFolder()->totalAllocation(), 800U);
}

TEST_F(EncryptedHomeTest, ASiblingWhoseNameTheHomesBeginsWithDoesNotHideIt)
{
    userHome = "/Users/me";
    makeScanner("m/ ( large:5000 ) me/ ( a:300 )");
    system->scanResourceValues.volumes.insert("/Users/me");
    // Before the scan starts: its thread reads the same set.
    system->files.makeUnreadable("me");
    controller->startScanning(Url("/Users", true));
    runToEnd();
    EXPECT_EQ(nodeAtPath(*model.topFolder(), "/Users/me/m/large")->totalAllocation(), 5000U);
    EXPECT_EQ(model.topFolder()->totalAllocation(), 10000U);
}

TEST_F(EncryptedHomeTest, AMountedFolderOfTheUsersNameInTheHomeStartsNoThirdPass)
{
    makeScanner("me/ ( a:300 )");
    system->scanResourceValues.volumes = {"/Users/me", "/Users/me/me"};
    controller->startScanning(Url("/Users", true));
    runToEnd();
    EXPECT_EQ(model.topFolder()->origin(), "/Users");
    EXPECT_THAT(
        system->files.enumeratedPaths(),
        testing::Not(testing::Contains(std::string("/Users/me/me"))));
}

TEST_F(EncryptedHomeTest, TheHomesFreeSpaceIsLeftOut)
{
    scanHome();
    runToEnd();
    const auto& home = static_cast<const Folder&>(test::at(*model.topFolder(), "me"));

    for (const File* child : home.children()) {
        EXPECT_NE(child->type(), NodeType::FreeSpace);
    }
    // The home's volume has 700 of its 1000 bytes in use.
    EXPECT_EQ(home.totalAllocation(), 700U);
    EXPECT_EQ(model.topFolder()->totalAllocation(), 900U);
}

} // namespace
} // namespace tessera
