// SPDX-License-Identifier: MIT
#include "Platform/Linux/Files/RenameWithoutReplacing.h"

#include "Platform/Linux/Trash/LostAnswers.h"
#include "support/Machine/FailingCalls.h"
#include "support/Machine/Meanwhile.h"
#include "support/Machine/TrashFixture.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/syscall.h>

#include <cerrno>
#include <cstdlib>
#include <string>
#include <system_error>

namespace tessera::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using Rename = int (*)(const FolderEntry& from, const FolderEntry& to);

/// The folders "from" and "to".
class RenameTest : public testing::Test {
protected:
    RenameTest()
    {
        m_tree.makeFolder("from");
        m_tree.makeFolder("to");
    }

    int renameBy(Rename way, const std::string& name, const std::string& newName) const
    {
        const FileDescriptor from(::open(m_from.c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC));
        const FileDescriptor to(::open(m_to.c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC));
        return way({from, name}, {to, newName});
    }

    const TempTree m_tree;
    const std::string m_from = m_tree.pathOf("from");
    const std::string m_to = m_tree.pathOf("to");
};

using RenameOntoPlaceholder = RenameTest;

/// Both ways to move an item, which keep the same promise.
class RenameBy : public RenameTest, public testing::WithParamInterface<Rename> {
protected:
    int rename(const std::string& name, const std::string& newName) const
    {
        return renameBy(GetParam(), name, newName);
    }
};

TEST_P(RenameBy, MovesAFile)
{
    m_tree.writeFile("from/a", "content");
    EXPECT_EQ(rename("a", "b\xFF"), 0);
    EXPECT_EQ(fileContent(m_to + "/b\xFF"), "content");
    EXPECT_THAT(namesIn(m_from), IsEmpty());
}

TEST_P(RenameBy, MovesAFolderWithAllThatIsInIt)
{
    m_tree.makeFolder("from/a");
    m_tree.makeFile("from/a/file");
    EXPECT_EQ(rename("a", "b"), 0);
    EXPECT_THAT(namesIn(m_to + "/b"), ElementsAre("file"));
    EXPECT_THAT(namesIn(m_from), IsEmpty());
}

TEST_P(RenameBy, MovesALinkAndNotWhatItLeadsTo)
{
    m_tree.makeFolder("folder");
    m_tree.makeSymbolicLink("from/a", "../folder");
    EXPECT_EQ(rename("a", "b"), 0);
    EXPECT_TRUE(exists(m_to + "/b"));
    EXPECT_TRUE(exists(m_tree.pathOf("folder")));
    EXPECT_THAT(namesIn(m_from), IsEmpty());
}

TEST_P(RenameBy, NeverReplacesWhateverIsThere)
{
    m_tree.makeFile("to/file");
    m_tree.makeFolder("to/folder");
    m_tree.makeSymbolicLink("to/link", "nowhere");
    m_tree.makeFile("from/a");
    m_tree.makeFolder("from/b");
    const auto before = snapshotOf(m_tree.path());
    for (const char* taken : {"file", "folder", "link"}) {
        EXPECT_EQ(rename("a", taken), EEXIST) << taken;
        EXPECT_EQ(rename("b", taken), EEXIST) << taken;
    }
    EXPECT_EQ(snapshotOf(m_tree.path()), before);
}

TEST_P(RenameBy, LeavesNothingBehindWhenTheItemIsNotThere)
{
    EXPECT_EQ(rename("a", "b"), ENOENT);
    EXPECT_THAT(namesIn(m_to), IsEmpty());
}

TEST_P(RenameBy, LeavesNothingBehindWhenTheItemVanishesMeanwhile)
{
    m_tree.makeFile("from/a");
    const Meanwhile other(Call::Rename, [this] { m_tree.removeFile("from/a"); });
    EXPECT_EQ(rename("a", "b"), ENOENT);
    EXPECT_THAT(namesIn(m_to), IsEmpty());
}

TEST_P(RenameBy, WhatAnotherProgramPutsInThePlaceMeanwhileStays)
{
    m_tree.makeFile("from/a");
    const Meanwhile other(Call::Rename, [this] {
        m_tree.rename("from/a", "from/aside");
        m_tree.makeFolder("from/a"); // no folder takes a file's place
        m_tree.writeFile("to/new", "another's");
        m_tree.rename("to/new", "to/b");
    });
    EXPECT_NE(rename("a", "b"), 0);
    EXPECT_EQ(fileContent(m_to + "/b"), "another's");
}

TEST_P(RenameBy, LeavesNothingBehindWhenTheItemIsOnAnotherMount)
{
    if (!OwnMounts::enter()) {
        GTEST_SKIP() << "this process may not mount";
    }
    OwnMounts mounts;
    mounts.mountMemory(m_from);
    m_tree.makeFile("from/a");
    m_tree.makeFolder("from/b");
    EXPECT_EQ(rename("a", "new"), EXDEV);
    EXPECT_EQ(rename("b", "new"), EXDEV);
    EXPECT_THAT(namesIn(m_to), IsEmpty());
    EXPECT_THAT(namesIn(m_from), ElementsAre("a", "b"));
}

TEST_P(RenameBy, AFolderDoesNotMoveIntoItself)
{
    m_tree.makeFolder("to/a");
    m_tree.makeFolder("to/a/inner");
    const FileDescriptor from(::open(m_to.c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC));
    const FileDescriptor to(::open((m_to + "/a").c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC));
    EXPECT_EQ(GetParam()({from, "a"}, {to, "b"}), EINVAL);
    EXPECT_THAT(namesIn(m_to + "/a"), ElementsAre("inner"));
}

TEST_F(RenameTest, WithSomethingElseInTheNewPlaceAndNothingInTheOldOneNobodyCanTell)
{
    m_tree.makeFile("from/a");
    const BrokenRenames broken(Renames::Fail);
    const Meanwhile other(Call::Rename, [this] {
        m_tree.rename("from/a", "aside");
        m_tree.makeFile("to/b");
    });
    EXPECT_EQ(renameBy(renameWithoutReplacing, "a", "b"), kMoveUncertain);
}

TEST_F(RenameOntoPlaceholder, AFolderThatVanishesMeanwhileHasNotMoved)
{
    m_tree.makeFolder("from/a");
    const Meanwhile other(Call::Rename, [this] { m_tree.removeFolder("from/a"); });
    EXPECT_EQ(renameBy(renameOntoPlaceholder, "a", "b"), kMoveUncertain);
}

TEST_F(RenameOntoPlaceholder, OnAFullDiskThatBreaksOffNobodyCanTell)
{
    if (!OwnMounts::enter()) {
        GTEST_SKIP() << "this process may not mount";
    }
    OwnMounts mounts;
    mounts.mountMemory(m_from, "size=64k");
    mounts.bind(m_from, m_to);
    m_tree.makeFile("from/a");
    EXPECT_THROW(m_tree.makeFile("from/rest", 100'000), std::system_error);
    const BrokenRenames broken(Renames::Fail);
    EXPECT_EQ(renameBy(renameOntoPlaceholder, "a", "b"), kMoveUncertain);
}

TEST_F(RenameOntoPlaceholder, WhenTheDiskDoesNotSayWhatBecameOfThePlaceholderNobodyCanTell)
{
    m_tree.makeFolder("from/a");
    m_tree.makeFile("from/a/file");
    const BrokenRenames broken(Renames::Fail);
    const auto isUncertain = [this] {
        return makeCallFail({SYS_unlinkat, EIO, {}})
            && renameBy(renameOntoPlaceholder, "a", "b") == kMoveUncertain;
    };
    EXPECT_EXIT(std::_Exit(isUncertain() ? 0 : 1), testing::ExitedWithCode(0), "");
}

TEST_F(RenameOntoPlaceholder, ARefusalLeavesNothingBehindOfAnEmptyFolder)
{
    m_tree.makeFolder("from/a");
    for (const int error :
         {EACCES,
          EPERM,
          EROFS,
          EXDEV,
          ENOSPC,
          EDQUOT,
          EBUSY,
          EINVAL,
          ENOSYS,
          EEXIST,
          EISDIR,
          ENOTDIR,
          ELOOP,
          ENAMETOOLONG,
          EMLINK,
          EOPNOTSUPP,
          ENOTEMPTY}) {
        const auto isClean = [this, error] {
            return makeCallFail({SYS_renameat2, error, {}})
                && renameBy(renameOntoPlaceholder, "a", "b") == error && namesIn(m_to).empty();
        };
        EXPECT_EXIT(std::_Exit(isClean() ? 0 : 1), testing::ExitedWithCode(0), "") << error;
    }
}

TEST_F(RenameOntoPlaceholder, APipeThatTookThePlaceMeanwhileIsNotWaitedFor)
{
    m_tree.makeFile("from/a");
    const BrokenRenames broken(Renames::Fail);
    const Meanwhile other(Call::Rename, [this] {
        m_tree.removeFile("to/b");
        m_tree.makeFifo("to/b");
    });
    EXPECT_EQ(renameBy(renameOntoPlaceholder, "a", "b"), kMoveUncertain);
}

TEST_F(RenameOntoPlaceholder, WithoutRoomForAPlaceholderTheItemStays)
{
    if (!OwnMounts::enter()) {
        GTEST_SKIP() << "this process may not mount";
    }
    OwnMounts mounts;
    mounts.mountMemory(m_from, "nr_inodes=2"); // the folder and the item
    mounts.bind(m_from, m_to);
    m_tree.makeFile("from/a");
    EXPECT_EQ(renameBy(renameOntoPlaceholder, "a", "b"), ENOSPC);
    EXPECT_THAT(namesIn(m_from), ElementsAre("a"));
}

TEST_F(RenameOntoPlaceholder, APlaceholderThatCannotBeToldFromOtherFilesStays)
{
    m_tree.makeFile("from/a");
    const auto isUncertain = [this] {
        bool isArranged = false;
        const Meanwhile breaks(Call::Open, [&isArranged] {
            isArranged = makeCallFail({SYS_statx, EIO, {}});
        });
        return renameBy(renameOntoPlaceholder, "a", "b") == kMoveUncertain && isArranged;
    };
    EXPECT_EXIT(std::_Exit(isUncertain() ? 0 : 1), testing::ExitedWithCode(0), "");
    EXPECT_TRUE(exists(m_from + "/a"));
    EXPECT_TRUE(exists(m_to + "/b"));
}

INSTANTIATE_TEST_SUITE_P(
    Ways,
    RenameBy,
    testing::Values(renameWithoutReplacing, renameOntoPlaceholder),
    [](const auto& way) { return way.index == 0 ? "inOneStep" : "ontoPlaceholder"; });

} // namespace
} // namespace tessera::test
