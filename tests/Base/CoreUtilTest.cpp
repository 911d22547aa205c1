// SPDX-License-Identifier: MIT
#include "Base/CoreUtil.h"

#include "Desktop/UserAccount.h"
#include "Model/UserDefaults.h"
#include "Model/Volume.h"
#include "support/Fakes/FakeFileSystem.h"
#include "support/Fakes/FakeRecentDocuments.h"
#include "support/Fakes/FakeUserDefaults.h"
#include "support/Fakes/FakeWorkspace.h"
#include "support/MakeTree.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>
#include <optional>
#include <utility>

namespace tessera {
namespace {

TEST(FormatSize, BytesAndKilobytesHaveNoDecimals)
{
    EXPECT_EQ(CoreUtil::formatSize(0), "0 B");
    EXPECT_EQ(CoreUtil::formatSize(1), "1 B");
    EXPECT_EQ(CoreUtil::formatSize(999), "999 B");
    EXPECT_EQ(CoreUtil::formatSize(1000), "1 KB");
    EXPECT_EQ(CoreUtil::formatSize(1500), "2 KB");
    EXPECT_EQ(CoreUtil::formatSize(999999), "1000 KB");
}

TEST(FormatSize, MegabytesAndAboveHaveOne)
{
    EXPECT_EQ(CoreUtil::formatSize(1000000), "1.0 MB");
    EXPECT_EQ(CoreUtil::formatSize(1234567890), "1.2 GB");
    EXPECT_EQ(CoreUtil::formatSize(5000000000000), "5.0 TB");
}

TEST(FormatSize, NothingIsLargerThanATerabyte)
{
    EXPECT_EQ(CoreUtil::formatSize(5000000000000000), "5000.0 TB");
    EXPECT_EQ(CoreUtil::formatSize(std::numeric_limits<std::uint64_t>::max()), "18446744.1 TB");
}

TEST(FormatSize, AHalfIsRoundedToTheEvenDigit)
{
    EXPECT_EQ(CoreUtil::formatSize(2500), "2 KB");
    EXPECT_EQ(CoreUtil::formatSize(1250000), "1.2 MB");
}

TEST(LocateParent, IsTheFolderThatHoldsTheItem)
{
    const auto top = test::makeTree("/home/me", "docs/ ( deep/ ( a:1 ) )");
    EXPECT_EQ(
        CoreUtil::locateParent(Url("/home/me/docs/deep/new.zip", false), *top),
        &test::at(*top, "docs/deep"));
}

TEST(LocateParent, IsTheTopFolderForWhatLiesInIt)
{
    const auto top = test::makeTree("/home/me", "docs/ ( a:1 )");
    EXPECT_EQ(CoreUtil::locateParent(Url("/home/me/new", false), *top), top.get());
    const auto root = test::makeTree("/", "docs/ ( a:1 )");
    EXPECT_EQ(CoreUtil::locateParent(Url("/new", false), *root), root.get());
}

TEST(LocateParent, IsNothingOutsideTheTree)
{
    const auto top = test::makeTree("/home/me", "docs/ ( a:1 )");
    EXPECT_EQ(CoreUtil::locateParent(Url("/home/you/new", false), *top), nullptr);
    EXPECT_EQ(CoreUtil::locateParent(Url("/home/me/gone/new", false), *top), nullptr);
    EXPECT_EQ(CoreUtil::locateParent(Url(), *top), nullptr);
}

TEST(LocateParent, IsNothingBelowADocument)
{
    const auto top = test::makeTree("/home/me", "docs:1");
    EXPECT_EQ(CoreUtil::locateParent(Url("/home/me/docs/new", false), *top), nullptr);
}

TEST(LocateParent, ALargerSiblingWhoseNameIsAPrefixHidesTheFolder)
{
    const auto top = test::makeTree("/a", "b/ ( x:9 ) bc/ ( y:1 )");
    EXPECT_EQ(CoreUtil::locateParent(Url("/a/bc/new", false), *top), nullptr);
}

TEST(AspectRatio, IsThatOfTheLargerSideToTheSmaller)
{
    EXPECT_EQ(CoreUtil::aspectRatio(2, 8), 4);
    EXPECT_EQ(CoreUtil::aspectRatio(8, 2), 4);
    EXPECT_EQ(CoreUtil::aspectRatio(3, 3), 1);
}

TEST(FolderTitle, IsNameAndSize)
{
    const auto top = test::makeTree("/home/me", "docs\xFF/ ( a:1500 )");
    EXPECT_EQ(CoreUtil::getFolderTitle(*top), "me (2 KB)");
    EXPECT_EQ(CoreUtil::getFolderTitle(test::at(*top, "docs\xFF")), "docs\xFF (2 KB)");
    EXPECT_EQ(CoreUtil::getFolderTitle(test::at(*top, "docs\xFF/a")), "a (2 KB)");
}

TEST(FolderTitle, OfAVolumeShowsTheUsedSpace)
{
    const auto volume = makeNode<Volume>("disk");
    volume->setOrigin("/mnt/disk");
    volume->refreshVolume(test::FixedFileSystem(FileSystemSizes{5000000, 2000000}));
    volume->setTotalAllocation(1);
    EXPECT_EQ(CoreUtil::getFolderTitle(*volume), "disk (3.0 MB)");
}

TEST(LocateUrl, TheTreesOwnPathIsTheRoot)
{
    const auto top = test::makeTree("/home/me", "a:1");
    EXPECT_EQ(CoreUtil::locateURL(Url("/home/me", true), *top), top.get());
}

TEST(LocateUrl, FindsFoldersAndDocumentsBelow)
{
    const auto top = test::makeTree("/home/me", "docs/ ( deep/ ( a:700 ) ) c:50");
    EXPECT_EQ(
        CoreUtil::locateURL(Url("/home/me/docs/deep/a", false), *top),
        &test::at(*top, "docs/deep/a"));
    EXPECT_EQ(CoreUtil::locateURL(Url("/home/me/docs", true), *top), &test::at(*top, "docs"));
}

TEST(LocateUrl, FindsWhatLiesUnderTheFileSystemsRoot)
{
    const auto top = test::makeTree("/", "home/ ( me/ ( a:1 ) )");
    EXPECT_EQ(CoreUtil::locateURL(Url("/", true), *top), top.get());
    EXPECT_EQ(CoreUtil::locateURL(Url("/home/me/a", false), *top), &test::at(*top, "home/me/a"));
}

TEST(LocateUrl, ThereIsNothingOutsideTheTree)
{
    const auto top = test::makeTree("/home/me", "docs/ ( a:700 )");
    for (const char* path :
         {"/",
          "/home",
          "/home/mexico",
          "/home/me/x",
          "/home/me/docs/b",
          "/home/me/docs/a/x",
          "/home/me/doc"}) {
        EXPECT_EQ(CoreUtil::locateURL(Url(path, false), *top), nullptr) << path;
    }
}

TEST(LocateUrl, ALargerFolderHidesASiblingThatItsNameStarts)
{
    const auto top = test::makeTree("/home", "a/ ( x:700 ) ab/ ( y:300 )");
    EXPECT_EQ(CoreUtil::locateURL(Url("/home/ab", true), *top), nullptr);
    EXPECT_EQ(CoreUtil::locateURL(Url("/home/ab/y", false), *top), nullptr);
}

TEST(LocateUrl, ASmallerFolderHidesNoSibling)
{
    const auto top = test::makeTree("/home", "a/ ( x:300 ) ab/ ( y:700 )");
    EXPECT_EQ(CoreUtil::locateURL(Url("/home/ab/y", false), *top), &test::at(*top, "ab/y"));
}

TEST(LocateUrl, TheSpaceNodesOfAVolumeHideNothing)
{
    const auto volume = makeNode<Volume>("/");
    volume->setOrigin("/");
    auto home = makeNode<Folder>("home");
    const Folder& expected = *home;
    volume->addChild(std::move(home));
    volume->refreshVolume(test::FixedFileSystem(FileSystemSizes{1000, 900}));
    EXPECT_EQ(CoreUtil::locateURL(Url("/home", true), *volume), &expected);
}

TEST(LocateUrl, ARescannedFolderIsFoundAtItsOwnPath)
{
    const auto top = test::makeTree("/home", "old/ ( )");
    top->replaceChild(test::at(*top, "old"), test::makeTree("/elsewhere/new", "x:5"));
    EXPECT_EQ(CoreUtil::locateURL(Url("/elsewhere/new/x", false), *top), &test::at(*top, "new/x"));
    EXPECT_EQ(CoreUtil::locateURL(Url("/home/new/x", false), *top), nullptr);
}

TEST(LocateUrl, AVeryDeepTreeTakesNoLongerThanItsPath)
{
    constexpr int kDepth = 100000;
    std::string path = "/top";
    auto folder = makeNode<Folder>("d");
    const Folder& deepest = *folder;
    for (int i = 1; i < kDepth; ++i) {
        auto above = makeNode<Folder>("d");
        above->addChild(std::move(folder));
        folder = std::move(above);
    }
    for (int i = 0; i < kDepth; ++i) {
        path += "/d";
    }
    const auto top = test::makeTree("/top", "");
    top->addChild(std::move(folder));
    EXPECT_EQ(CoreUtil::locateURL(Url(path, true), *top), &deepest);
}

class SaveFolderToRecents : public testing::Test {
protected:
    test::FakeUserDefaults m_defaults;
    test::FakeRecentDocuments m_documents;
};

TEST_F(SaveFolderToRecents, PutsANewRecordInFrontAndKeepsTheOthers)
{
    const RecentRecord other{"/photos", 20, {}};
    m_defaults.setRecentRecords("recents", {RecentRecord{"/music", 10, {}}, other});
    CoreUtil::saveFolderToRecents(*test::makeTree("/music", "a:700"), m_defaults, m_documents);
    const std::vector<RecentRecord> records = m_defaults.recentRecords("recents");
    ASSERT_EQ(records.size(), 2U);
    EXPECT_EQ(records[0].path, "/music");
    EXPECT_EQ(records[0].size, 700U);
    EXPECT_GT(records[0].date, std::chrono::sys_seconds{});
    EXPECT_EQ(records[1], other);
}

TEST_F(SaveFolderToRecents, MakesTheFolderTheNewestOfTheDesktopsList)
{
    m_documents.urls = {Url("/photos", true), Url("/music", true), Url("/films", true)};
    CoreUtil::saveFolderToRecents(*test::makeTree("/music", "a:700"), m_defaults, m_documents);
    EXPECT_THAT(
        m_documents.urls,
        testing::ElementsAre(Url("/music", true), Url("/photos", true), Url("/films", true)));
}

class FakeAccount final : public UserAccount {
public:
    explicit FakeAccount(std::optional<PasswordEntry> entry)
        : m_entry(std::move(entry))
    {
    }

    std::optional<PasswordEntry> realUser() const override { return m_entry; }
    std::string homeDirectory() const override { return "/root"; }

private:
    std::optional<PasswordEntry> m_entry;
};

TEST(RealUser, IsThatOfThePasswordDatabase)
{
    const FakeAccount account(PasswordEntry{"ada", "/home/ada"});
    EXPECT_EQ(CoreUtil::realUserName(account), "ada");
    EXPECT_EQ(CoreUtil::realHomeDirectory(account), "/home/ada");
}

TEST(RealUserDeathTest, AMissingEntryStopsTheProcess)
{
    const FakeAccount account(std::nullopt);
    EXPECT_DEATH((void)CoreUtil::realUserName(account), "\\(pw\\), function realUserName");
    EXPECT_DEATH(
        (void)CoreUtil::realHomeDirectory(account), "\\(pw\\), function realHomeDirectory");
}

TEST(RevealInFinder, AsksTheDesktopForDirectoriesAndForOtherItems)
{
    test::FakeWorkspace workspace;
    CoreUtil::revealInFinder(Url("/data/a b", true), workspace, [](bool) {});
    CoreUtil::revealInFinder(Url("/data/a\xFF", false), workspace, [](bool) {});
    EXPECT_THAT(workspace.revealed, testing::ElementsAre("/data/a b", "/data/a\xFF"));
}

TEST(RevealInFinder, GivesTheDesktopsAnswer)
{
    for (const bool answer : {true, false}) {
        test::FakeWorkspace workspace;
        workspace.answer = answer;
        std::optional<bool> isShown;
        CoreUtil::revealInFinder(
            Url("/data", true), workspace, [&isShown](bool given) { isShown = given; });
        EXPECT_EQ(isShown, answer);
    }
}

} // namespace
} // namespace tessera
