// SPDX-License-Identifier: MIT
#include "support/Machine/BuiltPaths.h"
#include "support/Machine/ChildProcess.h"
#include "support/Machine/FileContent.h"
#include "support/Machine/RunProgram.h"
#include "support/Machine/TempTree.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <array>
#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

namespace tessera {
namespace {

using testing::StartsWith;

constexpr const char* kHint = "; --picture draws to a file\n";

/// A start of the program that ends by itself.
class ProgramStart : public testing::Test {
protected:
    test::ProgramResult start(const std::vector<std::string>& environment) const
    {
        return test::runProgram(test::built::program(), {folder.path()}, environment);
    }

    test::ProgramResult startAfter(
        const std::vector<std::string>& arguments, std::function<void()> beforeStart) const
    {
        const std::string output = files.pathOf("out");
        const std::string errors = files.pathOf("err");
        test::ChildProcess child(
            {test::built::program(),
             arguments,
             {"QT_QPA_PLATFORM=offscreen"},
             output,
             errors,
             std::move(beforeStart)});
        const int status = child.waitForExit();
        return {status, test::fileContent(output), test::fileContent(errors)};
    }

    test::TempTree folder;
    test::TempTree files;
};

TEST_F(ProgramStart, AnXServerThatDoesNotAnswerIsSaidInOneLine)
{
    const auto result = start({"DISPLAY=:6553", "WAYLAND_DISPLAY=", "QT_QPA_PLATFORM="});
    EXPECT_EQ(result.exitStatus, 1);
    EXPECT_EQ(
        result.standardError, std::string("tessera: the display ':6553' does not answer") + kHint);
}

TEST_F(ProgramStart, AWaylandServerThatDoesNotAnswerIsSaidInOneLine)
{
    const auto result = start(
        {"DISPLAY=",
         "WAYLAND_DISPLAY=none",
         "QT_QPA_PLATFORM=",
         "XDG_SESSION_TYPE=wayland",
         "XDG_RUNTIME_DIR=" + files.path()});
    EXPECT_EQ(result.exitStatus, 1);
    EXPECT_EQ(
        result.standardError, std::string("tessera: the display 'none' does not answer") + kHint);
}

TEST_F(ProgramStart, APlatformThatQtDoesNotHaveIsSaidInOneLine)
{
    const auto result = start({"DISPLAY=:6553", "WAYLAND_DISPLAY=", "QT_QPA_PLATFORM=none\x1B[m"});
    EXPECT_EQ(result.exitStatus, 1);
    EXPECT_EQ(
        result.standardError,
        std::string("tessera: Qt's platform 'none\\x1b[m' does not start on the display ':6553'")
            + kHint);
}

TEST_F(ProgramStart, WithAnotherUsersRightsItSaysThatItDoesNotRun)
{
    if (::geteuid() != 0) {
        GTEST_SKIP() << "only the super-user can start a program so";
    }
    constexpr uid_t kNobody = 65534;
    const auto result = startAfter({folder.path()}, [] {
        if (::setresuid(kNobody, 0, 0) != 0) {
            ::_exit(EXIT_FAILURE);
        }
    });
    EXPECT_EQ(result.exitStatus, 1);
    EXPECT_EQ(
        result.standardError,
        "tessera: it does not run with the rights of another user than the one who started it\n");
}

TEST_F(ProgramStart, TextThatCannotBePrintedIsAFailure)
{
    for (const char* option : {"--help", "--version"}) {
        const auto result = startAfter({option}, [] { ::close(STDOUT_FILENO); });
        EXPECT_EQ(result.exitStatus, 1);
        EXPECT_EQ(
            result.standardError,
            "tessera: cannot write to the standard output: Bad file descriptor\n");
    }
}

TEST_F(ProgramStart, BadUsageDoesNotReachTheTerminalAsItWasTyped)
{
    const auto result = startAfter({"--opt\x1B[31m"}, nullptr);
    EXPECT_EQ(result.exitStatus, 2);
    EXPECT_EQ(
        result.standardError, "tessera: unknown option '--opt\\x1b[31m'; see tessera --help\n");
}

TEST_F(ProgramStart, InATerminalAFolderThatCannotBeOpenedIsSaidThere)
{
    const int terminal = ::posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC);
    std::array<char, 64> name{};
    ASSERT_TRUE(
        ::grantpt(terminal) == 0 && ::unlockpt(terminal) == 0
        && ::ptsname_r(terminal, name.data(), name.size()) == 0);
    test::ChildProcess child(
        {test::built::program(),
         {files.pathOf("none")},
         {"QT_QPA_PLATFORM=offscreen", "DBUS_SESSION_BUS_ADDRESS=unix:path=/none"},
         files.pathOf("out"),
         name.data()});
    EXPECT_EQ(child.waitForExit(), 1);
    std::array<char, 256> said{};
    const ssize_t length = ::read(terminal, said.data(), said.size());
    ::close(terminal);
    EXPECT_THAT(
        std::string(said.data(), static_cast<std::size_t>(length)),
        StartsWith("tessera: cannot read the folder '"));
}

TEST_F(ProgramStart, APictureTooLargeForTheMemoryIsRefusedBeforeTheScan)
{
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
    GTEST_SKIP() << "a sanitizer needs more memory than that";
#endif
    const auto result = test::runProgram(
        "/bin/sh",
        {"-c",
         R"(ulimit -v 3000000; exec "$0" "$@")",
         test::built::program(),
         "--picture",
         files.pathOf("picture"),
         "--size=32767x32767",
         folder.path()});
    EXPECT_EQ(result.exitStatus, 1);
    EXPECT_EQ(
        result.standardError,
        "tessera: the picture needs 5.4 GB of memory, and there are 3.1 GB\n");
}

/// The session's bus, on which a test hears who comes.
class ListeningBus {
public:
    explicit ListeningBus(const std::string& path)
        : m_socket(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0))
    {
        sockaddr_un address{};
        address.sun_family = AF_UNIX;
        EXPECT_LT(path.size(), sizeof(address.sun_path));
        std::memcpy(&address.sun_path[0], path.data(), path.size());
        const auto* generic = reinterpret_cast<const sockaddr*>(&address);
        EXPECT_EQ(::bind(m_socket, generic, sizeof(address)), 0);
        EXPECT_EQ(::listen(m_socket, 1), 0);
    }
    ListeningBus(const ListeningBus&) = delete;
    ListeningBus& operator=(const ListeningBus&) = delete;
    ~ListeningBus() { ::close(m_socket); }

    bool wasCalled() const { return ::accept(m_socket, nullptr, nullptr) >= 0; }

private:
    int m_socket;
};

TEST_F(ProgramStart, APictureHasNothingToDoWithTheSessionsBus)
{
    const ListeningBus bus(files.pathOf("bus"));
    const auto result = test::runProgram(
        test::built::program(),
        {"--picture", files.pathOf("picture"), folder.path()},
        {"DBUS_SESSION_BUS_ADDRESS=unix:path=" + files.pathOf("bus")});
    EXPECT_EQ(result.exitStatus, 0) << result.standardError;
    EXPECT_FALSE(bus.wasCalled());
}

} // namespace
} // namespace tessera
