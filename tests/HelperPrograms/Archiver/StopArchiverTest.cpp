// SPDX-License-Identifier: MIT
// Ending the archiver while it works.
#include "Base/FileIdentity.h"
#include "support/Machine/BuiltPaths.h"
#include "support/Machine/ChildProcess.h"
#include "support/Machine/FileContent.h"
#include "support/Machine/TempTree.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/inotify.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <climits>
#include <csignal>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>

namespace tessera::test {
namespace {

// Packing that many zeros takes hours, so the archiver cannot be done before it is stopped.
constexpr off_t kEndless = off_t{1} << 43;

/// A program that blocks the signal in its own threads hands that on to its children.
class BlockedTermination {
public:
    BlockedTermination()
    {
        sigset_t signals{};
        ::sigemptyset(&signals);
        ::sigaddset(&signals, SIGTERM);
        ::pthread_sigmask(SIG_BLOCK, &signals, &m_former);
    }
    BlockedTermination(const BlockedTermination&) = delete;
    BlockedTermination& operator=(const BlockedTermination&) = delete;
    ~BlockedTermination() { ::pthread_sigmask(SIG_SETMASK, &m_former, nullptr); }

private:
    sigset_t m_former{};
};

/// From now on this process's standard output is a pipe that nobody reads any more.
void writeToNobody()
{
    std::array<int, 2> ends{};
    EXPECT_EQ(::pipe(ends.data()), 0);
    EXPECT_GE(::dup2(ends[1], STDOUT_FILENO), 0);
    ::close(ends[0]);
    ::close(ends[1]);
}

/// What happens in a folder from now on.
class Watch {
public:
    Watch(const std::string& path, std::uint32_t events)
        : m_watch(::inotify_init1(IN_CLOEXEC))
    {
        ::inotify_add_watch(m_watch, path.c_str(), events);
    }
    Watch(const Watch&) = delete;
    Watch& operator=(const Watch&) = delete;
    ~Watch() { ::close(m_watch); }

    /// Until one of the events has come.
    void wait() const
    {
        std::array<char, sizeof(inotify_event) + NAME_MAX + 1> event{};
        while (::read(m_watch, event.data(), event.size()) < 0 && errno == EINTR) { }
    }

private:
    int m_watch;
};

/// A pipe with a name, and so full that whoever writes to it waits.
class FullPipe {
public:
    explicit FullPipe(const std::string& path)
        : m_pipe(::open(path.c_str(), O_RDWR | O_NONBLOCK | O_CLOEXEC))
    {
        const std::array<char, PIPE_BUF> filling{};
        while (::write(m_pipe, filling.data(), filling.size()) > 0) { }
        while (::write(m_pipe, filling.data(), 1) > 0) { }
    }
    FullPipe(const FullPipe&) = delete;
    FullPipe& operator=(const FullPipe&) = delete;
    ~FullPipe() { ::close(m_pipe); }

    /// Makes room and returns what has been written by others.
    std::string take() const
    {
        std::string text;
        std::array<char, PIPE_BUF> bytes{};
        for (ssize_t count = 0; (count = ::read(m_pipe, bytes.data(), bytes.size())) > 0;) {
            text.append(bytes.data(), static_cast<std::size_t>(count));
        }
        std::erase(text, '\0');
        return text;
    }

private:
    int m_pipe;
};

/// An archiver at work. The constructor returns when it has written to the archive.
class WorkingArchiver {
public:
    WorkingArchiver(const std::string& source, const TempTree& out)
        : m_errorPath(m_texts.pathOf("stderr"))
    {
        const Watch archive(out.path(), IN_MODIFY);
        const BlockedTermination blocked;
        m_process = std::make_unique<ChildProcess>(ChildProcessSetup{
            test::built::archiver(),
            {"-c", "-k", "--sequesterRsrc", source, out.pathOf("X.zip")},
            {},
            m_texts.pathOf("stdout"),
            m_errorPath});
        archive.wait();
    }

    /// The status that it exits with, or -1 when it is killed.
    int stop(int signal)
    {
        m_process->signal(signal);
        return m_process->waitForExit();
    }

    std::string standardError() const { return fileContent(m_errorPath); }

private:
    TempTree m_texts; ///< not where the archive is waited for
    std::string m_errorPath;
    std::unique_ptr<ChildProcess> m_process;
};

/// A folder "X" that takes forever to archive.
class StopArchiver : public testing::Test {
protected:
    StopArchiver()
    {
        tree.makeFolder("X");
        tree.makeFile("X/a", 1000);
        tree.makeSparseFile("X/endless", kEndless);
    }

    TempTree tree;
    TempTree out;
    std::string source = tree.pathOf("X");
};

TEST_F(StopArchiver, ATerminationSignalEndsItInTheMiddleOfAFile)
{
    WorkingArchiver archiver(source, out);
    EXPECT_EQ(archiver.stop(SIGTERM), 1);
    EXPECT_EQ(archiver.standardError(), "tessera-ditto: stopped\n");
}

TEST_F(StopArchiver, ATerminationSignalEndsItDeepInATree)
{
    constexpr int kDepth = 1000;
    tree.makeChain(kDepth);
    std::string deepest;
    for (int i = 0; i < kDepth; ++i) {
        deepest += "d/";
    }
    tree.rename("X/endless", deepest + "endless");
    WorkingArchiver archiver(tree.pathOf("d"), out);
    EXPECT_EQ(archiver.stop(SIGTERM), 1);
    EXPECT_EQ(archiver.standardError(), "tessera-ditto: stopped\n");
}

TEST_F(StopArchiver, AnInterruptEndsItAsWell)
{
    WorkingArchiver archiver(source, out);
    EXPECT_EQ(archiver.stop(SIGINT), 1);
}

TEST_F(StopArchiver, TheEndOfItsTerminalEndsItAsWell)
{
    WorkingArchiver archiver(source, out);
    EXPECT_EQ(archiver.stop(SIGHUP), 1);
}

TEST_F(StopArchiver, StoppedBeforeItHasMadeAnythingItSaysSo)
{
    const BlockedTermination blocked;
    ChildProcess archiver(
        {test::built::archiver(),
         {"-c", "-k", "--sequesterRsrc", source, out.pathOf("X.zip")},
         {},
         out.pathOf("stdout"),
         out.pathOf("stderr"),
         [] { ::raise(SIGTERM); }});
    EXPECT_EQ(archiver.waitForExit(), 3);
    EXPECT_EQ(fileContent(out.pathOf("stdout")), "");
}

TEST_F(StopArchiver, StoppedWhenItHasJustMadeItsFileItSaysWhichOne)
{
    tree.makeFifo("stdout");
    const FullPipe output(tree.pathOf("stdout"));
    const Watch made(out.path(), IN_CREATE);
    ChildProcess archiver(
        {test::built::archiver(),
         {"-c", "-k", "--sequesterRsrc", source, out.pathOf("X.zip")},
         {},
         tree.pathOf("stdout"),
         tree.pathOf("stderr")});
    made.wait();
    archiver.signal(SIGTERM);
    std::string told = output.take();
    EXPECT_EQ(archiver.waitForExit(), 1);
    told += output.take();
    EXPECT_TRUE(readFileIdentityLine(told).has_value());
}

TEST_F(StopArchiver, WhoeverReadsWhatItTellsMayLeaveAndItGoesOn)
{
    ChildProcess archiver(
        {test::built::archiver(),
         {"-c", "-k", "--sequesterRsrc", tree.pathOf("X/a"), out.pathOf("a.zip")},
         {},
         out.pathOf("stdout"),
         out.pathOf("stderr"),
         writeToNobody});
    EXPECT_EQ(archiver.waitForExit(), 0);
}

TEST_F(StopArchiver, TheFragmentIsLeftToWhoeverStartedIt)
{
    WorkingArchiver archiver(source, out);
    archiver.stop(SIGTERM);
    EXPECT_GT(std::filesystem::file_size(out.pathOf("X.zip.part")), 0U);
    EXPECT_FALSE(std::filesystem::exists(out.pathOf("X.zip")));
}

TEST_F(StopArchiver, KillingItLeavesTheSourceAlone)
{
    WorkingArchiver archiver(source, out);
    EXPECT_EQ(archiver.stop(SIGKILL), -1);
    EXPECT_EQ(std::filesystem::file_size(tree.pathOf("X/a")), 1000U);
    EXPECT_EQ(std::filesystem::file_size(tree.pathOf("X/endless")), std::uintmax_t{1} << 43);
}

} // namespace
} // namespace tessera::test
