// SPDX-License-Identifier: MIT
#include "OrdinaryRights.h"
#include "Platform/Linux/Files/FileStatus.h"
#include "Platform/Linux/Trash/TrashItem.h"
#include "support/Machine/TrashFixture.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <string>

namespace tessera::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

using FreedesktopTrashTest = TrashFixture;

mode_t modeOf(const std::string& path)
{
    constexpr mode_t kPermissions = 07777;
    struct stat values { };
    return ::lstat(path.c_str(), &values) == 0 ? values.st_mode & kPermissions : 0;
}

ino_t inodeOf(const std::string& path)
{
    struct stat values { };
    return ::lstat(path.c_str(), &values) == 0 ? values.st_ino : 0;
}

FileIdentity identityOf(const std::string& path)
{
    return statusAt(AT_FDCWD, path.c_str()).status.identity;
}

TEST_F(FreedesktopTrashTest, AFileMovesIntoATrashThatIsMadeForIt)
{
    m_tree.writeFile("work/a", "content");
    EXPECT_EQ(move("work/a"), "");
    EXPECT_EQ(m_newPath, m_homeTrash + "/files/a");
    EXPECT_EQ(fileContent(m_newPath), "content");
    EXPECT_FALSE(exists(m_tree.pathOf("work/a")));
}

TEST_F(FreedesktopTrashTest, AFileIsFoundAtTheOneOfItsPlacesWhereItIs)
{
    m_tree.writeFile("work/a.part", "another's");
    m_tree.writeFile("work/a", "content");
    const Url place(m_tree.pathOf("work/a"), false);
    const RecycleResult result = m_trash.recycleFile(
        identityOf(place.path()), {Url(m_tree.pathOf("work/a.part"), false), place});
    EXPECT_EQ(result.error, "");
    EXPECT_EQ(result.newUrls.at(place.absoluteString()).path(), m_homeTrash + "/files/a");
    EXPECT_EQ(fileContent(m_tree.pathOf("work/a.part")), "another's");
}

TEST_F(FreedesktopTrashTest, AnotherFileInItsPlaceStays)
{
    m_tree.writeFile("work/mine", "mine");
    const FileIdentity mine = identityOf(m_tree.pathOf("work/mine"));
    m_tree.writeFile("work/a", "another's");
    const RecycleResult result = m_trash.recycleFile(mine, {Url(m_tree.pathOf("work/a"), false)});
    EXPECT_THAT(result.error, HasSubstr("it is not there any more"));
    EXPECT_THAT(result.newUrls, IsEmpty());
    EXPECT_EQ(fileContent(m_tree.pathOf("work/a")), "another's");
}

TEST_F(FreedesktopTrashTest, AFileThatIsAtItsFirstPlaceIsMovedFromThere)
{
    m_tree.writeFile("work/a.part", "content");
    const Url place(m_tree.pathOf("work/a.part"), false);
    const RecycleResult result = m_trash.recycleFile(
        identityOf(place.path()), {place, Url(m_tree.pathOf("work/a"), false)});
    EXPECT_EQ(result.error, "");
    EXPECT_FALSE(exists(place.path()));
}

TEST_F(FreedesktopTrashTest, OnlyTheUserMayEnterWhatIsMade)
{
    m_tree.makeFile("work/a");
    EXPECT_EQ(move("work/a"), "");
    for (const char* name :
         {"home/.local",
          "home/.local/share",
          "home/.local/share/Trash",
          "home/.local/share/Trash/files",
          "home/.local/share/Trash/info"}) {
        EXPECT_EQ(modeOf(m_tree.pathOf(name)), 0700U) << name;
    }
    EXPECT_EQ(modeOf(m_homeTrash + "/info/a.trashinfo"), 0600U);
}

TEST_F(FreedesktopTrashTest, TheInfoFileHasThePathsBytesPercentEncoded)
{
    m_tree.makeFile("work/a b\n\xFF%41");
    EXPECT_EQ(move("work/a b\n\xFF%41"), "");
    EXPECT_THAT(
        fileContent(m_homeTrash + "/info/a b\n\xFF%41.trashinfo"),
        StartsWith(
            "[Trash Info]\nPath=" + m_tree.pathOf("work/") + "a%20b%0A%FF%2541\nDeletionDate="));
}

TEST_F(FreedesktopTrashTest, WhatIsReachedOverALinkStays)
{
    m_tree.makeFolder("work/folder");
    m_tree.makeFile("work/folder/a");
    m_tree.makeSymbolicLink("link", "work");
    EXPECT_EQ(
        moveInVain("link/folder/a"),
        "'a' was not moved to the trash, because a folder on the way to it has become a link since "
        "the scan.");
    EXPECT_THAT(moveInVain("link/folder/"), HasSubstr("has become a link since the scan"));
}

TEST_F(FreedesktopTrashTest, WhatOnlyAResolvedPathLeadsToStays)
{
    m_tree.makeFolder("docs");
    m_tree.makeFile("docs/a");
    for (const char* name : {"docs/../docs/a", "docs/./a", "docs//a"}) {
        EXPECT_THAT(moveInVain(name), HasSubstr("cannot be moved to the trash.")) << name;
    }
}

TEST_F(FreedesktopTrashTest, AFolderMovesInOneStepWhateverIsInIt)
{
    m_tree.makeFolder("work/folder");
    m_tree.makeFile("work/folder/file");
    const ino_t folder = inodeOf(m_tree.pathOf("work/folder"));
    const ino_t file = inodeOf(m_tree.pathOf("work/folder/file"));
    EXPECT_EQ(move("work/folder/"), "");
    EXPECT_EQ(inodeOf(m_homeTrash + "/files/folder"), folder);
    EXPECT_EQ(inodeOf(m_homeTrash + "/files/folder/file"), file);
}

TEST_F(FreedesktopTrashTest, AFolderOfAHundredThousandFilesMovesInOneStep)
{
    const TempTree tree(TempTree::fastParent());
    tree.makeFolder("folder");
    for (int i = 0; i < 100'000; ++i) {
        tree.makeFile("folder/" + std::to_string(i));
    }
    const ino_t inode = inodeOf(tree.pathOf("folder"));
    const std::string homeTrash = tree.pathOf("Trash");
    const Url url(tree.pathOf("folder"), true);
    EXPECT_EQ(FreedesktopTrash({::geteuid(), homeTrash, {}}).recycle({url}).error, "");
    EXPECT_EQ(inodeOf(homeTrash + "/files/folder"), inode);
    EXPECT_EQ(namesIn(homeTrash + "/files/folder").size(), 100'000U);
}

TEST_F(FreedesktopTrashTest, ALinkMovesAndNotWhatItLeadsTo)
{
    m_tree.makeFolder("work/folder");
    m_tree.makeSymbolicLink("work/link", "folder");
    EXPECT_EQ(move("work/link"), "");
    EXPECT_EQ(std::filesystem::read_symlink(m_homeTrash + "/files/link"), "folder");
    EXPECT_TRUE(exists(m_tree.pathOf("work/folder")));
}

TEST_F(FreedesktopTrashTest, ALinkThatLeadsNowhereMovesToo)
{
    m_tree.makeSymbolicLink("work/link", "nowhere");
    EXPECT_EQ(move("work/link"), "");
    EXPECT_EQ(std::filesystem::read_symlink(m_homeTrash + "/files/link"), "nowhere");
}

TEST_F(FreedesktopTrashTest, SocketsAndPipesAreItemsLikeOthers)
{
    m_tree.makeFifo("work/fifo");
    m_tree.makeSocket("work/socket");
    EXPECT_EQ(move("work/fifo"), "");
    EXPECT_EQ(move("work/socket"), "");
    EXPECT_THAT(namesIn(m_homeTrash + "/files"), ElementsAre("fifo", "socket"));
}

TEST_F(FreedesktopTrashTest, ANameThatIsTakenGetsANumber)
{
    for (const char* content : {"first", "second", "third"}) {
        m_tree.writeFile("work/a.txt", content);
        EXPECT_EQ(move("work/a.txt"), "");
    }
    EXPECT_EQ(fileContent(m_homeTrash + "/files/a.txt"), "first");
    EXPECT_EQ(fileContent(m_homeTrash + "/files/a 2.txt"), "second");
    EXPECT_EQ(fileContent(m_homeTrash + "/files/a 3.txt"), "third");
    EXPECT_EQ(m_newPath, m_homeTrash + "/files/a 3.txt");
}

TEST_F(FreedesktopTrashTest, AnItemWithoutAnInfoFileIsNotReplaced)
{
    std::filesystem::create_directories(m_homeTrash + "/files/a");
    m_tree.writeFile("work/a", "content");
    EXPECT_EQ(move("work/a"), "");
    EXPECT_THAT(namesIn(m_homeTrash + "/files"), ElementsAre("a", "a 2"));
    EXPECT_THAT(namesIn(m_homeTrash + "/info"), ElementsAre("a 2.trashinfo"));
}

TEST_F(FreedesktopTrashTest, AnInfoFileWithoutAnItemKeepsItsName)
{
    std::filesystem::create_directories(m_homeTrash + "/info");
    m_tree.writeFile("home/.local/share/Trash/info/a.trashinfo", "of another program");
    m_tree.makeFile("work/a");
    EXPECT_EQ(move("work/a"), "");
    EXPECT_THAT(namesIn(m_homeTrash + "/files"), ElementsAre("a 2"));
    EXPECT_EQ(fileContent(m_homeTrash + "/info/a.trashinfo"), "of another program");
}

TEST_F(FreedesktopTrashTest, TheLongestNamesAreShortenedButNotInTheInfoFile)
{
    const std::string name = std::string(251, 'x') + ".txt";
    for (int i = 0; i < 2; ++i) {
        m_tree.makeFile("work/" + name);
        EXPECT_EQ(move("work/" + name), "");
    }
    const std::string first = std::string(241, 'x') + ".txt";
    const std::string second = std::string(239, 'x') + " 2.txt";
    EXPECT_THAT(namesIn(m_homeTrash + "/files"), testing::UnorderedElementsAre(first, second));
    EXPECT_THAT(
        fileContent(m_homeTrash + "/info/" + second + ".trashinfo"),
        HasSubstr("Path=" + m_tree.pathOf("work/" + name) + '\n'));
}

TEST_F(FreedesktopTrashTest, OneThatCannotBeMovedDoesNotStopTheOthers)
{
    m_tree.makeFile("work/a");
    m_tree.makeFile("work/b");
    const Url a(m_tree.pathOf("work/a"), false);
    const Url b(m_tree.pathOf("work/b"), false);
    const Url missing(m_tree.pathOf("work/missing"), false);
    const Url none(m_tree.pathOf("work/none"), false);
    const RecycleResult result = m_trash.recycle({a, missing, none, b});
    EXPECT_THAT(result.error, StartsWith("'missing' "));
    EXPECT_EQ(result.newUrls.size(), 2U);
    EXPECT_EQ(result.newUrls.at(a.absoluteString()).path(), m_homeTrash + "/files/a");
    EXPECT_EQ(result.newUrls.at(b.absoluteString()).path(), m_homeTrash + "/files/b");
}

TEST_F(FreedesktopTrashTest, AFoldersNewUrlIsAFoldersToo)
{
    m_tree.makeFolder("work/folder");
    const Url url(m_tree.pathOf("work/folder"), true);
    const RecycleResult result = m_trash.recycle({url});
    EXPECT_EQ(
        result.newUrls.at(url.absoluteString()).absoluteString(),
        Url(m_homeTrash + "/files/folder", true).absoluteString());
}

TEST_F(FreedesktopTrashTest, AnItemThatVanishedIsTold)
{
    EXPECT_EQ(
        moveInVain("work/a"), "'a' was not moved to the trash, because it is not there any more.");
    EXPECT_EQ(
        moveInVain("gone/a"), "'a' was not moved to the trash, because it is not there any more.");
}

TEST_F(FreedesktopTrashTest, AFolderThatBecameAFileStays)
{
    m_tree.makeFile("work/a");
    EXPECT_EQ(
        moveInVain("work/a/"),
        "'a' was not moved, because it has changed since the scan: it is no folder any more.");
}

TEST_F(FreedesktopTrashTest, AFileThatBecameAFolderStays)
{
    m_tree.makeFolder("work/a");
    EXPECT_EQ(
        moveInVain("work/a"),
        "'a' was not moved, because it has changed since the scan: it is a folder now.");
}

TEST_F(FreedesktopTrashTest, AFolderThatBecameALinkToOneStays)
{
    m_tree.makeFolder("work/folder");
    m_tree.makeSymbolicLink("work/a", "folder");
    EXPECT_THAT(moveInVain("work/a/"), HasSubstr("it is no folder any more"));
}

TEST_F(FreedesktopTrashTest, TheRootStays)
{
    for (const char* path : {"/", "//", "/..", "/.", "", "relative"}) {
        const RecycleResult result = m_trash.recycle({Url(path, true)});
        EXPECT_THAT(result.error, HasSubstr("cannot be moved to the trash")) << path;
        EXPECT_THAT(result.newUrls, IsEmpty()) << path;
    }
}

TEST_F(FreedesktopTrashTest, TheHomeFolderAndWhatItIsInStay)
{
    m_tree.makeFolder("work/users");
    m_tree.makeFolder("work/users/me");
    const FreedesktopTrash trash({::geteuid(), m_homeTrash, {m_tree.pathOf("work/users/me")}});
    for (const char* name : {"work/users/me", "work/users", "work"}) {
        const RecycleResult result = trash.recycle({Url(m_tree.pathOf(name), true)});
        EXPECT_THAT(result.error, HasSubstr("because your home folder is there.")) << name;
    }
    EXPECT_TRUE(exists(m_tree.pathOf("work/users/me")));
    EXPECT_FALSE(exists(m_homeTrash));
}

TEST_F(FreedesktopTrashTest, ALinkThatLeadsToTheHomeFolderStays)
{
    m_tree.makeFolder("work/real");
    m_tree.makeSymbolicLink("work/me", "real");
    const FreedesktopTrash trash({::geteuid(), m_homeTrash, {m_tree.pathOf("work/me")}});
    for (const Url& url :
         {Url(m_tree.pathOf("work/me"), false), Url(m_tree.pathOf("work/real"), true)}) {
        EXPECT_THAT(trash.recycle({url}).error, HasSubstr("because your home folder is there."));
    }
    EXPECT_THAT(namesIn(m_tree.pathOf("work")), ElementsAre("me", "real"));
}

TEST_F(FreedesktopTrashTest, TheTrashAndWhatItIsInStay)
{
    const FreedesktopTrash trash({::geteuid(), m_homeTrash, {}});
    m_tree.makeFile("work/a");
    ASSERT_EQ(move("work/a"), "");
    const auto before = snapshotOf(m_tree.path());
    for (const char* name : {"home/.local/share/Trash", "home/.local", "home"}) {
        EXPECT_THAT(
            trash.recycle({Url(m_tree.pathOf(name), true)}).error,
            HasSubstr("because the trash is there."))
            << name;
    }
    EXPECT_EQ(snapshotOf(m_tree.path()), before);
}

TEST_F(FreedesktopTrashTest, WhatIsInTheTrashStays)
{
    m_tree.makeFolder("work/a");
    m_tree.makeFile("work/a/b");
    ASSERT_EQ(move("work/a/"), "");
    for (const char* name : {"files/", "files/a/", "files/a/b", "info/a.trashinfo"}) {
        EXPECT_THAT(
            moveInVain(std::string("home/.local/share/Trash/") + name),
            HasSubstr("because it is in the trash already."))
            << name;
    }
}

TEST_F(FreedesktopTrashTest, ATrashThatIsALinkIsFollowed)
{
    std::filesystem::create_directories(m_tree.pathOf("home/.local/share"));
    m_tree.makeFolder("elsewhere");
    m_tree.makeSymbolicLink("home/.local/share/Trash", m_tree.pathOf("elsewhere"));
    m_tree.makeFile("work/a");
    EXPECT_EQ(move("work/a"), "");
    EXPECT_EQ(m_newPath, m_tree.pathOf("elsewhere/files/a"));
    EXPECT_THAT(moveInVain("elsewhere/files/a"), HasSubstr("in the trash already"));
    EXPECT_THAT(moveInVain("elsewhere/"), HasSubstr("because the trash is there."));
}

TEST_F(FreedesktopTrashTest, ATrashWhosePartsAreLinksIsNotUsed)
{
    std::filesystem::create_directories(m_homeTrash);
    m_tree.makeFolder("elsewhere");
    m_tree.makeSymbolicLink("home/.local/share/Trash/files", m_tree.pathOf("elsewhere"));
    m_tree.makeFile("work/a");
    EXPECT_EQ(
        moveInVain("work/a"),
        "'a' was not moved to the trash, because its disk has no trash for you.");
}

TEST_F(FreedesktopTrashTest, WhatTheUserMayNotMoveStays)
{
    m_tree.makeFile("work/a");
    m_tree.setMode("work", 0555);
    const OrdinaryRights rights;
    EXPECT_EQ(
        moveInVain("work/a"),
        "'a' was not moved to the trash, because you have no permission to do so.");
}

TEST_F(FreedesktopTrashTest, WhatCannotBeLookedAtStays)
{
    m_tree.makeFolder("work/closed");
    m_tree.makeFile("work/closed/a");
    m_tree.setMode("work/closed", 0);
    const OrdinaryRights rights;
    EXPECT_THAT(move("work/closed/a"), HasSubstr("because you have no permission to do so."));
    m_tree.setMode("work/closed", 0700);
    EXPECT_TRUE(exists(m_tree.pathOf("work/closed/a")));
}

TEST_F(FreedesktopTrashTest, WithoutPermissionToMakeATrashTheItemStays)
{
    m_tree.makeFile("work/a");
    m_tree.setMode("home", 0555);
    const OrdinaryRights rights;
    EXPECT_EQ(
        moveInVain("work/a"),
        "'a' was not moved to the trash, because its disk has no trash for you.");
}

TEST_F(FreedesktopTrashTest, APathThatIsTooLongIsTold)
{
    std::string name = "work";
    while (name.size() < 5000) {
        name += "/" + std::string(200, 'x');
    }
    EXPECT_THAT(moveInVain(name), HasSubstr("because its path is too long."));
}

TEST_F(FreedesktopTrashTest, APathThatLeavesNoRoomForItsEndIsTooLong)
{
    constexpr std::size_t kLimit = 4096; // bytes, the zero behind the path included
    std::string name = "work/" + std::string(kLimit - m_tree.pathOf("work/").size(), 'x');
    for (std::size_t i = 100; i + 1 < name.size(); i += 100) {
        name[i] = '/';
    }
    EXPECT_THAT(moveInVain(name), HasSubstr("because its path is too long."));
}

TEST_F(FreedesktopTrashTest, AFolderThatWasRemovedHasNoPathThoughAnotherIsCalledLikeIt)
{
    m_tree.makeFolder("folder");
    const FileDescriptor opened(
        ::open(m_tree.pathOf("folder").c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC));
    m_tree.removeFolder("folder");
    m_tree.makeFolder("folder (deleted)");
    EXPECT_EQ(pathOf(opened), "");
}

TEST_F(FreedesktopTrashTest, NothingMovesWhileNobodyKnowsWhatIsMounted)
{
    m_tree.makeFolder("work/folder");
    m_tree.makeFile("work/a");
    const auto before = snapshotOf(m_tree.path());
    const FreedesktopTrash trash(
        {::geteuid(), m_homeTrash, {}}, [] { return std::optional<MountTable>(); });
    for (const Url& url :
         {Url(m_tree.pathOf("work/folder"), true), Url(m_tree.pathOf("work/a"), false)}) {
        EXPECT_THAT(
            trash.recycle({url}).error,
            HasSubstr("because the system does not say which disks are mounted."));
    }
    EXPECT_EQ(snapshotOf(m_tree.path()), before);
}

} // namespace
} // namespace tessera::test
