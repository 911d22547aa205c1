// SPDX-License-Identifier: MIT
#include "Platform/Linux/Files/WriteWholeFile.h"

#include "Platform/Linux/Files/FileDescriptor.h"
#include "support/Machine/FailingCalls.h"
#include "support/Machine/FileContent.h"
#include "support/Machine/Meanwhile.h"
#include "support/Machine/OwnMounts.h"
#include "support/Machine/TempTree.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/fsuid.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <optional>
#include <string>
#include <thread>

namespace tessera {
namespace {

using test::Call;
using test::fileContent;
using test::Meanwhile;
using test::TempTree;

constexpr uid_t kNobody = 65534;
constexpr uid_t kSomebody = 12345;

bool isSuperUser()
{
    return ::geteuid() == 0;
}

/// What this thread asks of files it asks as a plain user, also when the super-user runs the test.
class PlainUser {
public:
    PlainUser()
    {
        if (isSuperUser()) {
            ::setfsgid(kNobody);
            ::setfsuid(kNobody);
        }
    }
    PlainUser(const PlainUser&) = delete;
    PlainUser& operator=(const PlainUser&) = delete;
    ~PlainUser()
    {
        ::setfsuid(::geteuid());
        ::setfsgid(::getegid());
    }
};

struct stat statusOf(const std::string& path)
{
    struct stat status { };
    EXPECT_EQ(::lstat(path.c_str(), &status), 0) << path;
    return status;
}

mode_t permissionsOf(const std::string& path)
{
    constexpr mode_t kPermissions = 07777;
    return statusOf(path).st_mode & kPermissions;
}

std::size_t entriesIn(const std::string& path)
{
    return static_cast<std::size_t>(std::distance(std::filesystem::directory_iterator(path), {}));
}

/// The access list rw for the owner, r for one other user and nothing for anybody else, as
/// acl(5) and the kernel's posix_acl_xattr.h have it.
struct AccessList {
    struct Entry {
        std::uint16_t tag;
        std::uint16_t rights;
        std::uint32_t id;
    };

    std::uint32_t version = 2;
    std::array<Entry, 5> entries{
        {{0x01, 6, 0xFFFFFFFF},
         {0x02, 4, kSomebody},
         {0x04, 0, 0xFFFFFFFF},
         {0x10, 4, 0xFFFFFFFF},
         {0x20, 0, 0xFFFFFFFF}}};
};

/// Of the file beside it in which new content is gathered.
std::optional<mode_t> permissionsOfTheNewOneBeside(const std::string& path)
{
    const std::filesystem::path old(path);
    for (const auto& entry : std::filesystem::directory_iterator(old.parent_path())) {
        if (entry.path() != old) {
            return permissionsOf(entry.path());
        }
    }
    return std::nullopt;
}

bool giveAccessList(const std::string& path, const char* kind)
{
    const AccessList list;
    return ::setxattr(path.c_str(), kind, &list, sizeof(list), 0) == 0;
}

bool hasAccessList(const std::string& path)
{
    return ::getxattr(path.c_str(), "system.posix_acl_access", nullptr, 0) > 0;
}

class WriteWholeFile : public testing::Test {
protected:
    WriteWholeFile()
    {
        // For the plain user.
        constexpr mode_t kForAll = 0777;
        tree.setMode(".", kForAll);
    }

    std::error_code write(const std::string& name, std::string_view bytes = "new") const
    {
        return writeWholeFile(tree.pathOf(name), bytes);
    }

    std::string contentOf(const std::string& name) const { return fileContent(tree.pathOf(name)); }

    TempTree tree;
};

TEST_F(WriteWholeFile, ALinkStaysALinkAndItsTargetIsWritten)
{
    tree.makeFolder("elsewhere");
    tree.writeFile("elsewhere/real", "old");
    tree.makeSymbolicLink("elsewhere/second", "real");
    tree.makeSymbolicLink("link", "elsewhere/second");
    EXPECT_FALSE(write("link"));
    EXPECT_EQ(contentOf("elsewhere/real"), "new");
    EXPECT_TRUE(std::filesystem::is_symlink(tree.pathOf("link")));
    EXPECT_TRUE(std::filesystem::is_symlink(tree.pathOf("elsewhere/second")));
}

TEST_F(WriteWholeFile, WhatALinkLeadsToIsMadeWhenItIsMissing)
{
    tree.makeFolder("elsewhere");
    tree.makeSymbolicLink("link", "elsewhere/made");
    EXPECT_FALSE(write("link"));
    EXPECT_EQ(contentOf("elsewhere/made"), "new");
    EXPECT_TRUE(std::filesystem::is_symlink(tree.pathOf("link")));
}

TEST_F(WriteWholeFile, LinksInACircleAreAFailure)
{
    tree.makeSymbolicLink("a", "b");
    tree.makeSymbolicLink("b", "a");
    EXPECT_EQ(write("a"), std::errc::too_many_symbolic_link_levels);
}

TEST_F(WriteWholeFile, AFileKeepsItsMode)
{
    for (const mode_t mode : {0600U, 0640U, 0755U, 0666U}) {
        tree.writeFile("file", "old");
        tree.setMode("file", mode);
        EXPECT_FALSE(write("file"));
        EXPECT_EQ(permissionsOf(tree.pathOf("file")), mode);
        EXPECT_EQ(contentOf("file"), "new");
    }
}

TEST_F(WriteWholeFile, WhatAProgramMayDoForItsOwnerIsNotForNewContent)
{
    tree.writeFile("file", "old");
    tree.setMode("file", 06755);
    EXPECT_FALSE(write("file"));
    EXPECT_EQ(permissionsOf(tree.pathOf("file")), 0755U);
}

TEST_F(WriteWholeFile, AFileKeepsItsOwner)
{
    if (!isSuperUser()) {
        GTEST_SKIP() << "only the super-user can give files away";
    }
    tree.writeFile("file", "old");
    ASSERT_EQ(::chown(tree.pathOf("file").c_str(), kSomebody, kSomebody + 1), 0);
    EXPECT_FALSE(write("file"));
    EXPECT_EQ(statusOf(tree.pathOf("file")).st_uid, kSomebody);
    EXPECT_EQ(statusOf(tree.pathOf("file")).st_gid, kSomebody + 1);
}

TEST_F(WriteWholeFile, AFileKeepsItsAccessList)
{
    tree.writeFile("file", "old");
    if (!giveAccessList(tree.pathOf("file"), "system.posix_acl_access")) {
        GTEST_SKIP() << "there are no access lists here";
    }
    const mode_t before = permissionsOf(tree.pathOf("file"));
    EXPECT_FALSE(write("file"));
    EXPECT_TRUE(hasAccessList(tree.pathOf("file")));
    EXPECT_EQ(permissionsOf(tree.pathOf("file")), before);
}

TEST_F(WriteWholeFile, TheFoldersAccessListForNewFilesIsNotForAnOldOne)
{
    tree.writeFile("file", "old");
    tree.setMode("file", 0640);
    if (!giveAccessList(tree.path(), "system.posix_acl_default")) {
        GTEST_SKIP() << "there are no access lists here";
    }
    EXPECT_FALSE(write("file"));
    EXPECT_FALSE(hasAccessList(tree.pathOf("file")));
    EXPECT_EQ(permissionsOf(tree.pathOf("file")), 0640U);
}

TEST_F(WriteWholeFile, WhoeverReadsTheOldFileReadsItToItsEnd)
{
    tree.writeFile("file", "old");
    const FileDescriptor reader(::open(tree.pathOf("file").c_str(), O_RDONLY | O_CLOEXEC));
    EXPECT_FALSE(write("file"));
    std::array<char, 8> read{};
    const ssize_t length = ::read(reader.number(), read.data(), read.size());
    EXPECT_EQ(std::string(read.data(), static_cast<std::size_t>(length)), "old");
    EXPECT_EQ(entriesIn(tree.path()), 1U);
}

TEST_F(WriteWholeFile, OnAFullDiskTheOldContentStays)
{
    if (!test::OwnMounts::enter()) {
        GTEST_SKIP() << "this process may not mount";
    }
    tree.makeFolder("disk");
    test::OwnMounts mounts;
    mounts.mountMemory(tree.pathOf("disk"), "size=64k");
    tree.writeFile("disk/file", "old");
    EXPECT_EQ(write("disk/file", std::string(200'000, 'x')), std::errc::no_space_on_device);
    EXPECT_EQ(contentOf("disk/file"), "old");
    EXPECT_EQ(entriesIn(tree.pathOf("disk")), 1U);
}

TEST_F(WriteWholeFile, WhatDoesNotReachTheDiskTakesNoFilesPlace)
{
    tree.writeFile("file", "old");
    const auto isOldKept = [this] {
        return test::makeCallFail({SYS_fsync, EIO, {}}) && write("file") == std::errc::io_error
            && contentOf("file") == "old";
    };
    EXPECT_EXIT(std::_Exit(isOldKept() ? 0 : 1), testing::ExitedWithCode(0), "");
}

TEST_F(WriteWholeFile, WhatTakesTheFilesPlaceMeanwhileStays)
{
    tree.writeFile("file", "old");
    const Meanwhile other(Call::Sync, [this] {
        tree.writeFile("another's", "precious");
        tree.rename("another's", "file");
    });
    EXPECT_FALSE(write("file"));
    EXPECT_EQ(contentOf("file"), "precious");
}

TEST_F(WriteWholeFile, AFileThatComesMeanwhileIsWrittenUnderAllItsNames)
{
    const Meanwhile other(Call::Rename, [this] {
        tree.writeFile("file", "another's");
        tree.makeHardLink("other", "file");
    });
    EXPECT_FALSE(write("file"));
    EXPECT_EQ(contentOf("other"), "new");
}

TEST_F(WriteWholeFile, UntilItHasTheOldFilesRightsTheNewOneIsItsMakersAlone)
{
    tree.writeFile("file", "old");
    tree.setMode("file", 0600);
    std::optional<mode_t> found;
    const Meanwhile other(Call::ChangeMode, [this, &found] {
        found = permissionsOfTheNewOneBeside(tree.pathOf("file"));
    });
    EXPECT_FALSE(write("file"));
    EXPECT_EQ(found, 0600U);
}

TEST_F(WriteWholeFile, AFileMountedInAReadOnlyFolderIsWrittenWhereItIs)
{
    if (!test::OwnMounts::enter()) {
        GTEST_SKIP() << "this process may not mount";
    }
    tree.makeFolder("disk");
    tree.writeFile("mounted", "a longer old content");
    test::OwnMounts mounts;
    mounts.mountMemory(tree.pathOf("disk"));
    tree.makeFile("disk/file");
    mounts.bind(tree.pathOf("mounted"), tree.pathOf("disk/file"));
    test::OwnMounts::makeReadOnly(tree.pathOf("disk"));
    EXPECT_FALSE(write("disk/file"));
    EXPECT_EQ(contentOf("mounted"), "new");
}

TEST_F(WriteWholeFile, AFileOfTwoNamesHasTheContentUnderBoth)
{
    tree.writeFile("file", "a longer old content");
    tree.makeHardLink("other", "file");
    EXPECT_FALSE(write("file"));
    EXPECT_EQ(contentOf("other"), "new");
}

TEST_F(WriteWholeFile, ThatWhichALinkInProcLeadsToIsWrittenWhereItIs)
{
    tree.writeFile("file", "a longer old content");
    const FileDescriptor open(::open(tree.pathOf("file").c_str(), O_RDWR | O_CLOEXEC));
    tree.makeSymbolicLink("output", "/proc/self/fd/" + std::to_string(open.number()));
    const ino_t before = statusOf(tree.pathOf("file")).st_ino;
    EXPECT_FALSE(write("output"));
    EXPECT_EQ(contentOf("file"), "new");
    EXPECT_EQ(statusOf(tree.pathOf("file")).st_ino, before);
}

TEST_F(WriteWholeFile, WhoeverReadsAPipeGetsTheBytes)
{
    tree.makeFifo("pipe");
    const FileDescriptor reader(::open(tree.pathOf("pipe").c_str(), O_RDWR | O_CLOEXEC));
    EXPECT_FALSE(write("pipe"));
    std::array<char, 8> read{};
    const ssize_t length = ::read(reader.number(), read.data(), read.size());
    EXPECT_EQ(std::string(read.data(), static_cast<std::size_t>(length)), "new");
    EXPECT_TRUE(S_ISFIFO(statusOf(tree.pathOf("pipe")).st_mode));
}

TEST_F(WriteWholeFile, APipeWhoseReaderLeavesIsAFailure)
{
    tree.makeFifo("pipe");
    std::jthread reader([path = tree.pathOf("pipe")] {
        const FileDescriptor pipe(::open(path.c_str(), O_RDONLY | O_CLOEXEC));
        char first{};
        EXPECT_EQ(::read(pipe.number(), &first, 1), 1);
    });
    // More than a pipe holds.
    EXPECT_EQ(write("pipe", std::string(2'000'000, 'x')), std::errc::broken_pipe);
}

TEST_F(WriteWholeFile, ADeviceStaysADevice)
{
    if (!isSuperUser()) {
        GTEST_SKIP() << "only the super-user can make a device";
    }
    tree.makeNullDevice("null");
    const std::error_code error = write("null");
    EXPECT_TRUE(!error || error == std::errc::permission_denied); // where devices are switched off
    EXPECT_TRUE(S_ISCHR(statusOf(tree.pathOf("null")).st_mode));
    EXPECT_EQ(entriesIn(tree.path()), 1U);
}

TEST_F(WriteWholeFile, APlainUsersReadOnlyFileIsLeftAlone)
{
    tree.writeFile("file", "old");
    tree.setMode("file", 0444);
    {
        const PlainUser user;
        EXPECT_EQ(write("file"), std::errc::permission_denied);
    }
    EXPECT_EQ(contentOf("file"), "old");
}

TEST_F(WriteWholeFile, InAFolderThatTakesNoNewFilesAFileIsWrittenWhereItIs)
{
    tree.makeFolder("closed");
    tree.writeFile("closed/file", "a longer old content");
    tree.setMode("closed/file", 0666);
    tree.setMode("closed", 0555);
    {
        const PlainUser user;
        EXPECT_FALSE(write("closed/file"));
        EXPECT_EQ(write("closed/another"), std::errc::permission_denied);
    }
    tree.setMode("closed", 0755);
    EXPECT_EQ(contentOf("closed/file"), "new");
}

TEST_F(WriteWholeFile, AnotherUsersFileStaysHis)
{
    if (!isSuperUser()) {
        GTEST_SKIP() << "a plain user cannot make another one's file";
    }
    tree.writeFile("file", "old");
    tree.setMode("file", 0666);
    {
        const PlainUser user;
        EXPECT_FALSE(write("file"));
    }
    EXPECT_EQ(contentOf("file"), "new");
    EXPECT_EQ(statusOf(tree.pathOf("file")).st_uid, 0U);
}

TEST_F(WriteWholeFile, ANewFileHasTheRightsThatTheUserGivesNewFiles)
{
    constexpr mode_t kMask = 0027;
    const mode_t before = ::umask(kMask);
    EXPECT_FALSE(write("file"));
    ::umask(before);
    EXPECT_EQ(permissionsOf(tree.pathOf("file")), 0640U);
}

} // namespace
} // namespace tessera
