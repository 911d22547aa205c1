// SPDX-License-Identifier: MIT
#include "Platform/Linux/Files/FileStatus.h"

#include "support/Machine/FailingCalls.h"
#include "support/Machine/TempTree.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/syscall.h>

#include <cerrno>
#include <cstdlib>

namespace tessera::test {
namespace {

StatusResult statusAtPath(const std::string& path)
{
    return statusAt(AT_FDCWD, path.c_str());
}

/// As on an old kernel. In a process of its own, because what has found the call missing once does
/// without it from then on.
template <typename Check>
void whereStatxIsMissing(const Check& check)
{
    const auto run = [&check] {
        EXPECT_TRUE(makeCallFail({SYS_statx, ENOSYS, {}}));
        check();
        return testing::Test::HasFailure() ? 1 : 0;
    };
    EXPECT_EXIT(std::_Exit(run()), testing::ExitedWithCode(0), "");
}

TEST(FileStatus, TheOlderCallSaysTheSame)
{
    const TempTree tree;
    tree.makeFile("file", 5000);
    const StatusResult status = statusAtPath(tree.pathOf("file"));
    whereStatxIsMissing([&] {
        const StatusResult older = statusAtPath(tree.pathOf("file"));
        ASSERT_TRUE(status);
        ASSERT_TRUE(older);
        EXPECT_EQ(status.status.identity, older.status.identity);
        EXPECT_EQ(status.status.allocatedBytes, older.status.allocatedBytes);
        EXPECT_EQ(status.status.modified, older.status.modified);
        EXPECT_EQ(status.status.isRegular, older.status.isRegular);
        EXPECT_EQ(status.status.isDirectory, older.status.isDirectory);
        EXPECT_EQ(status.status.mode, older.status.mode);
        EXPECT_EQ(status.status.owner, older.status.owner);
        EXPECT_EQ(status.status.group, older.status.group);
        EXPECT_EQ(status.status.length, older.status.length);
    });
}

TEST(FileStatus, TheLengthCountsHoles)
{
    constexpr off_t kLength = off_t{1} << 30;
    const TempTree tree;
    tree.makeSparseFile("sparse", kLength);
    EXPECT_EQ(statusAtPath(tree.pathOf("sparse")).status.length, std::uint64_t{1} << 30);
}

TEST(FileStatus, TheModeHoldsKindAndPermissions)
{
    const TempTree tree;
    tree.makeFile("file");
    tree.setMode("file", 0640);
    EXPECT_EQ(statusAtPath(tree.pathOf("file")).status.mode, 0100640U);
}

TEST(FileStatus, TheOlderCallKnowsNothingOfMounts)
{
    whereStatxIsMissing([] {
        const StatusResult older = statusAtPath("/");
        ASSERT_TRUE(older);
        EXPECT_FALSE(older.status.isMountRoot.has_value());
        EXPECT_FALSE(older.status.mountId.has_value());
    });
}

TEST(FileStatus, SaysWhyThereIsNone)
{
    EXPECT_EQ(statusAtPath("/no/such/path").error, ENOENT);
}

TEST(FileStatus, ADirectoryOnTheSameMountOpens)
{
    const TempTree tree;
    tree.makeFolder("folder");
    const FileDescriptor above = openDirectoryAt(AT_FDCWD, tree.path().c_str());
    const auto opened = openDirectoryOnSameMountAt(above.number(), "folder");
    ASSERT_TRUE(opened.has_value());
    EXPECT_TRUE(opened->isOpen());
}

TEST(FileStatus, ADirectoryWhereAMountBeginsDoesNotOpen)
{
    const FileDescriptor root = openDirectoryAt(AT_FDCWD, "/");
    const auto opened = openDirectoryOnSameMountAt(root.number(), "proc");
    ASSERT_TRUE(opened.has_value());
    EXPECT_FALSE(opened->isOpen());
}

TEST(FileStatus, ALinkToADirectoryDoesNotOpen)
{
    const TempTree tree;
    tree.makeFolder("folder");
    tree.makeSymbolicLink("link", "folder");
    const FileDescriptor above = openDirectoryAt(AT_FDCWD, tree.path().c_str());
    const auto opened = openDirectoryOnSameMountAt(above.number(), "link");
    ASSERT_TRUE(opened.has_value());
    EXPECT_FALSE(opened->isOpen());
}

/// It may be the one expected: that it is gone is not known.
TEST(FileStatus, ADirectoryThatCannotBeAskedDoesNotOpenForThatReason)
{
    const TempTree tree;
    const FileIdentity identity = statusAtPath(tree.path()).status.identity;
    const auto run = [&] {
        EXPECT_TRUE(makeCallFail({SYS_statx, EIO, {}}));
        const FileDescriptor opened = openDirectoryAt(AT_FDCWD, tree.path().c_str(), identity);
        const int error = errno;
        EXPECT_FALSE(opened.isOpen());
        EXPECT_EQ(error, EIO);
        return testing::Test::HasFailure() ? 1 : 0;
    };
    EXPECT_EXIT(std::_Exit(run()), testing::ExitedWithCode(0), "");
}

TEST(FileStatus, ADirectoryOpensWhenItIsTheOneExpected)
{
    const TempTree tree;
    const FileIdentity identity = statusAtPath(tree.path()).status.identity;
    EXPECT_TRUE(openDirectoryAt(AT_FDCWD, tree.path().c_str(), identity).isOpen());
}

TEST(FileStatus, AnotherDirectoryInItsPlaceDoesNotOpen)
{
    const TempTree tree;
    tree.makeFolder("folder");
    const FileIdentity other = statusAtPath(tree.path()).status.identity;
    EXPECT_FALSE(openDirectoryAt(AT_FDCWD, tree.pathOf("folder").c_str(), other).isOpen());
}

TEST(FileStatus, ALinkToTheDirectoryDoesNotOpen)
{
    const TempTree tree;
    tree.makeSymbolicLink("link", ".");
    const FileIdentity identity = statusAtPath(tree.path()).status.identity;
    EXPECT_FALSE(openDirectoryAt(AT_FDCWD, tree.pathOf("link").c_str(), identity).isOpen());
}

} // namespace
} // namespace tessera::test
