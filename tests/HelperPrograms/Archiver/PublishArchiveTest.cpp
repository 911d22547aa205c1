// SPDX-License-Identifier: MIT
// The names that an archive has, from its creation to its end, and what becomes of it when the
// disk or another program interferes.
#include "Base/FileIdentity.h"
#include "Compress/ArchivePaths.h"
#include "HelperPrograms/Archiver/ArchiveFixture.h"
#include "support/Machine/FileContent.h"
#include "support/Machine/OwnMounts.h"
#include "support/Machine/TempTree.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <optional>
#include <string>

namespace tessera::test {
namespace {

using std::filesystem::exists;
using testing::HasSubstr;
using testing::SizeIs;

std::optional<ino_t> inodeOf(const std::string& path)
{
    struct stat values { };
    return ::lstat(path.c_str(), &values) == 0 ? std::optional(values.st_ino) : std::nullopt;
}

class PublishedArchive : public ArchiveFixture { };

TEST_F(PublishedArchive, HasItsNameAlone)
{
    archiveX();
    EXPECT_TRUE(exists(target));
    EXPECT_FALSE(exists(part));
}

TEST_F(PublishedArchive, IsTheFileThatWasToldAtItsCreation)
{
    const auto told = readFileIdentityLine(archiveX().standardOutput);
    ASSERT_TRUE(told.has_value());
    EXPECT_EQ(told->inode, inodeOf(target));
}

TEST_F(PublishedArchive, WhatLacksSomethingDoesNotGetTheName)
{
    tree.makeFolder("X/secret");
    tree.setMode("X/secret", 0);
    const ProgramResult result = makeArchiveWithoutRights(source, target);
    EXPECT_EQ(result.exitStatus, 1);
    EXPECT_FALSE(exists(target));
    EXPECT_EQ(readFileIdentityLine(result.standardOutput)->inode, inodeOf(part));
}

TEST_F(PublishedArchive, AnotherOnesPartStaysAsItIs)
{
    out.writeFile("X.zip.part", "precious");
    const ProgramResult result = archiveX();
    EXPECT_EQ(result.exitStatus, 3);
    EXPECT_EQ(result.standardOutput, "");
    EXPECT_EQ(result.standardError, "tessera-ditto: cannot create '" + part + "': File exists\n");
    EXPECT_EQ(fileContent(part), "precious");
}

TEST_F(PublishedArchive, WhatTakesTheNameMeanwhileStaysAsItIs)
{
    const ProgramResult result = makeArchiveWhereFails({SYS_renameat2, EEXIST, {}}, source, target);
    EXPECT_EQ(result.exitStatus, 1);
    EXPECT_EQ(result.standardError, "tessera-ditto: cannot create '" + target + "': File exists\n");
    EXPECT_FALSE(exists(target));
    EXPECT_TRUE(exists(part));
}

TEST_F(PublishedArchive, AFileSystemThatCannotRenameWithoutReplacingDoesItInTwoSteps)
{
    const ProgramResult result = makeArchiveWhereFails({SYS_renameat2, EINVAL, {}}, source, target);
    EXPECT_EQ(result.exitStatus, 0) << result.standardError;
    EXPECT_THAT(linesOfArchive(target), SizeIs(2));
    EXPECT_FALSE(exists(part));
}

TEST_F(PublishedArchive, WhatDidNotReachTheDiskDoesNotGetTheName)
{
    const ProgramResult result = makeArchiveWhereFails({SYS_fsync, EIO, {}}, source, target);
    EXPECT_EQ(result.exitStatus, 1);
    EXPECT_EQ(
        result.standardError, "tessera-ditto: cannot write '" + target + "': Input/output error\n");
    EXPECT_FALSE(exists(target));
    EXPECT_EQ(std::filesystem::file_size(part), 0U);
}

TEST_F(PublishedArchive, AQuotaThatIsUsedUpIsAFullDisk)
{
    EXPECT_EQ(makeArchiveWhereFails({SYS_fsync, EDQUOT, {}}, source, target).exitStatus, 4);
}

TEST_F(PublishedArchive, AFullDiskGetsItsRoomBack)
{
    tree.writeFile("X/noise", noise(1'000'000));
    if (!OwnMounts::enter()) {
        GTEST_SKIP() << "no mounts can be made here";
    }
    OwnMounts mounts;
    mounts.mountMemory(out.path(), "size=256k");
    EXPECT_EQ(archiveX().exitStatus, 4);
    EXPECT_FALSE(exists(target));
    EXPECT_EQ(std::filesystem::file_size(part), 0U);
    EXPECT_EQ(std::filesystem::space(out.path()).free, 256U * 1024);
}

TEST_F(PublishedArchive, IsItsOwnersAloneWhateverItHolds)
{
    tree.setMode("X", 0755);
    tree.setMode("X/file", 0644);
    archiveX();
    EXPECT_EQ(
        std::filesystem::status(target).permissions(),
        std::filesystem::perms::owner_read | std::filesystem::perms::owner_write);
}

TEST_F(PublishedArchive, ANameThatLeavesNoRoomForThePartIsAllRight)
{
    const std::string longest = out.pathOf(std::string(251, 'n') + ".zip");
    EXPECT_EQ(makeArchive(source, longest).exitStatus, 0);
    EXPECT_THAT(linesOfArchive(longest), SizeIs(2));
}

TEST_F(PublishedArchive, AFileThatLosesItsEndWhileItIsLookedAtIsAFailure)
{
    tree.makeSparseFile("X/hole", 1'000'000);
    const ProgramResult result = makeArchiveWhereFails({SYS_lseek, EIO, SEEK_END}, source, target);
    EXPECT_EQ(result.exitStatus, 1);
    EXPECT_EQ(result.standardError, "tessera-ditto: cannot archive 'X/hole': Input/output error\n");
}

TEST_F(PublishedArchive, AnOpenFolderThatIsSaidToBeMissingIsAFailure)
{
    const ProgramResult result
        = makeArchiveWhereFails({SYS_getdents64, ENOENT, {}}, source, target);
    EXPECT_EQ(result.exitStatus, 1);
    EXPECT_EQ(
        result.standardError, "tessera-ditto: cannot archive 'X': No such file or directory\n");
}

TEST_F(PublishedArchive, AttributesThatCannotBeReadCostNoContent)
{
    const ProgramResult result = makeArchiveWhereFails({SYS_flistxattr, E2BIG, {}}, source, target);
    EXPECT_EQ(result.exitStatus, 0);
    EXPECT_EQ(
        result.standardError,
        "tessera-ditto: left out attributes of 'X', which cannot be read (and 1 more)\n");
    EXPECT_THAT(linesOfArchive(target).at(1), HasSubstr("file X/file "));
}

TEST_F(PublishedArchive, AnAttributeThatIsSaidToBeMissingCostsNoContent)
{
    const ProgramResult result
        = makeArchiveWhereFails({SYS_flistxattr, ENOENT, {}}, source, target);
    EXPECT_EQ(result.exitStatus, 0);
    EXPECT_THAT(result.standardError, HasSubstr("left out attributes of 'X'"));
    EXPECT_THAT(linesOfArchive(target), SizeIs(2));
}

} // namespace
} // namespace tessera::test
