// SPDX-License-Identifier: MIT
#include "Platform/Linux/DiskFence.h"

#include "inChild.h"
#include "support/TempTree.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <linux/landlock.h>
#include <sys/prctl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <array>
#include <cerrno>

namespace tessera::test {
namespace {

class DiskFence : public testing::Test {
protected:
    void SetUp() override
    {
        constexpr auto kAsk = LANDLOCK_CREATE_RULESET_VERSION;
        if (::syscall(SYS_landlock_create_ruleset, nullptr, std::size_t{0}, kAsk) < 1) {
            GTEST_SKIP() << "this kernel cannot do it";
        }
        tree.makeFolder("open");
        tree.makeFile("open/file", 1);
        tree.makeFile("closed", 1);
    }

    /// The error of what is tried behind the fence around "open"; 0 for none.
    int behind(const std::function<bool()>& attempt) const
    {
        return inChild([this, &attempt] {
            const std::string folder = tree.pathOf("open");
            const std::array folders{folder.c_str(), "/no/such/folder"};
            ::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0);
            if (!keepToFolders(folders)) {
                return 127;
            }
            return attempt() ? 0 : errno;
        });
    }

    int openingBehind(const std::string& name, int flags) const
    {
        return behind([&] { return ::open(tree.pathOf(name).c_str(), flags, 0600) >= 0; });
    }

    TempTree tree;
};

TEST_F(DiskFence, WhatIsInsideCanBeRead)
{
    EXPECT_EQ(openingBehind("open/file", O_RDONLY), 0);
    EXPECT_EQ(openingBehind("open", O_RDONLY | O_DIRECTORY), 0);
}

TEST_F(DiskFence, NothingElseCanBeRead)
{
    EXPECT_EQ(openingBehind("closed", O_RDONLY), EACCES);
    EXPECT_EQ(openingBehind("", O_RDONLY | O_DIRECTORY), EACCES);
}

TEST_F(DiskFence, NothingCanBeChanged)
{
    EXPECT_EQ(openingBehind("open/file", O_WRONLY), EACCES);
    EXPECT_EQ(openingBehind("open/new", O_WRONLY | O_CREAT), EACCES);
    EXPECT_EQ(behind([this] { return ::unlink(tree.pathOf("open/file").c_str()) == 0; }), EACCES);
    EXPECT_EQ(behind([this] { return ::mkdir(tree.pathOf("open/d").c_str(), 0700) == 0; }), EACCES);
    EXPECT_EQ(
        behind([this] { return ::symlink("x", tree.pathOf("open/l").c_str()) == 0; }), EACCES);
}

TEST_F(DiskFence, NothingCanBeExecuted)
{
    EXPECT_EQ(behind([] { return ::execl("/bin/true", "true", nullptr) == 0; }), EACCES);
}

TEST_F(DiskFence, WhatIsOpenStaysOpen)
{
    const int file = ::open(tree.pathOf("closed").c_str(), O_RDONLY | O_CLOEXEC);
    EXPECT_EQ(
        behind([file] {
            char byte = 0;
            return ::read(file, &byte, 1) == 1;
        }),
        0);
    ::close(file);
}

} // namespace
} // namespace tessera::test
