// SPDX-License-Identifier: MIT
#include "Platform/Linux/Preview/DiskFence.h"

#include "support/Machine/InChild.h"
#include "support/Machine/TempTree.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <linux/landlock.h>
#include <netinet/in.h>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstring>
#include <span>
#include <string>

namespace tessera::test {
namespace {

class DiskFence : public testing::Test {
protected:
    void SetUp() override
    {
        if (version() < 1) {
            GTEST_SKIP() << "this kernel cannot do it";
        }
        tree.makeFolder("open");
        tree.makeFile("open/file", 1);
        tree.makeFile("closed", 1);
    }

    static long version()
    {
        constexpr auto kAsk = LANDLOCK_CREATE_RULESET_VERSION;
        return ::syscall(SYS_landlock_create_ruleset, nullptr, std::size_t{0}, kAsk);
    }

    /// The error of what is tried behind the fence around "open"; 0 for none.
    int behind(const std::function<bool()>& attempt) const
    {
        const std::string folder = tree.pathOf("open");
        return behindFenceAround(std::array{folder.c_str(), "/no/such/folder"}, attempt);
    }

    static int behindFenceAround(
        std::span<const char* const> folders, const std::function<bool()>& attempt)
    {
        return inChild([&folders, &attempt] {
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
    const auto execute = [] { return ::execl("/bin/true", "true", nullptr) == 0; };

    EXPECT_EQ(behind(execute), EACCES);
    EXPECT_EQ(behindFenceAround(std::array{"/"}, execute), EACCES);
}

TEST_F(DiskFence, NothingCanBeCutShort)
{
    if (version() < 3) {
        GTEST_SKIP() << "this kernel cannot do it";
    }
    EXPECT_EQ(
        behind([this] { return ::truncate(tree.pathOf("open/file").c_str(), 0) == 0; }), EACCES);
}

TEST_F(DiskFence, NobodyIsCalledOverTheNetwork)
{
    if (version() < 4) {
        GTEST_SKIP() << "this kernel cannot do it";
    }
    EXPECT_EQ(
        behind([] {
            sockaddr_in own{};
            own.sin_family = AF_INET;
            own.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
            own.sin_port = htons(1);
            const int caller = ::socket(AF_INET, SOCK_STREAM, 0);
            sockaddr general{};
            std::memcpy(&general, &own, sizeof(own));
            return ::connect(caller, &general, sizeof(own)) == 0;
        }),
        EACCES);
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
