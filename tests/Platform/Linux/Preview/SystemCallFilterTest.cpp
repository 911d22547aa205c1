// SPDX-License-Identifier: MIT
#include "Platform/Linux/Preview/SystemCallFilter.h"

#include "support/Machine/InChild.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <functional>
#include <thread>

namespace tessera::test {
namespace {

constexpr int kNoFilter = 127;

class SystemCallFilter : public testing::Test {
protected:
    void SetUp() override
    {
        if (behind([] { return true; }) == kNoFilter) {
            GTEST_SKIP() << "this kernel has no filters";
        }
    }

    /// The error of what is tried; 0 for none.
    static int behind(const std::function<bool()>& attempt)
    {
        return inChild([&attempt] {
            ::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0);
            if (!keepToHarmlessSystemCalls()) {
                return kNoFilter;
            }
            return attempt() ? 0 : errno;
        });
    }
};

TEST_F(SystemCallFilter, AFileCanBeReadButNotWritten)
{
    EXPECT_EQ(behind([] { return ::open("/dev/null", O_RDONLY | O_CLOEXEC) >= 0; }), 0);
    for (const int flags :
         {O_WRONLY, O_RDWR, O_RDONLY | O_TRUNC, O_RDONLY | O_CREAT, O_RDONLY | O_APPEND}) {
        EXPECT_EQ(behind([flags] { return ::open("/dev/null", flags, 0600) >= 0; }), ENOSYS);
    }
}

TEST_F(SystemCallFilter, ThereIsNoNetwork)
{
    for (const int family : {AF_INET, AF_INET6, AF_UNIX, AF_NETLINK}) {
        EXPECT_EQ(behind([family] { return ::socket(family, SOCK_STREAM, 0) >= 0; }), ENOSYS);
    }
}

TEST_F(SystemCallFilter, ThereAreNoOtherProcesses)
{
    EXPECT_EQ(behind([] { return ::fork() >= 0; }), ENOSYS);
    EXPECT_EQ(behind([] { return ::vfork() >= 0; }), ENOSYS);
    EXPECT_EQ(behind([] { return ::execl("/bin/true", "true", nullptr) == 0; }), ENOSYS);
}

TEST_F(SystemCallFilter, NoSignalIsSentToOthers)
{
    const pid_t test = ::getpid();
    EXPECT_EQ(behind([test] { return ::kill(test, 0) == 0; }), ENOSYS);
    EXPECT_EQ(behind([test] { return ::tgkill(test, test, 0) == 0; }), ENOSYS);
}

TEST_F(SystemCallFilter, LimitsCannotBeChanged)
{
    const rlimit none{0, 0};
    EXPECT_EQ(behind([&none] { return ::setrlimit(RLIMIT_CORE, &none) == 0; }), ENOSYS);
}

TEST_F(SystemCallFilter, AThreadsNameIsAllThatCanBeSetOfTheProcess)
{
    EXPECT_EQ(behind([] { return ::prctl(PR_SET_NAME, "decoder") == 0; }), 0);
    EXPECT_EQ(behind([] { return ::prctl(PR_SET_DUMPABLE, 1) == 0; }), ENOSYS);
}

#ifdef __x86_64__
/// Asks in the way of programs of 32 bits, where numbers mean other calls.
bool knowsProcessByOldCall()
{
    constexpr long kGetPid = 20;
    long answer = kGetPid;
    asm volatile("int $0x80" : "+a"(answer) : : "memory", "r8", "r9", "r10", "r11");
    return answer > 0;
}

TEST_F(SystemCallFilter, CallsOfAnotherKindOfMachineEndTheProcess)
{
    if (inChild([] { return knowsProcessByOldCall() ? 0 : 1; }) != 0) {
        GTEST_SKIP() << "this kernel has none";
    }
    EXPECT_EQ(behind(knowsProcessByOldCall), 128 + SIGSYS);
}
#endif

TEST_F(SystemCallFilter, AThreadCanBeStarted)
{
    EXPECT_EQ(
        behind([] {
            bool hasRun = false;
            std::thread([&hasRun] { hasRun = true; }).join();
            return hasRun;
        }),
        0);
}

TEST_F(SystemCallFilter, MemoryCanBeTakenAndGivenBack)
{
    constexpr std::size_t kBytes = std::size_t{64} * 1024 * 1024;
    EXPECT_EQ(
        behind([] {
            // A block of this size is moved by the kernel, which no container asks for.
            // NOLINTBEGIN(cppcoreguidelines-owning-memory)
            void* const memory = std::realloc(std::malloc(kBytes), 2 * kBytes);
            std::free(memory);
            // NOLINTEND(cppcoreguidelines-owning-memory)
            return memory != nullptr;
        }),
        0);
}

TEST_F(SystemCallFilter, AProcessCanAbort)
{
    EXPECT_EQ(behind([]() -> bool { std::abort(); }), 128 + SIGABRT);
}

} // namespace
} // namespace tessera::test
