// SPDX-License-Identifier: MIT
// Ending the archiver while it works.
#include "support/ChildProcess.h"
#include "support/TempTree.h"
#include "support/fileContent.h"

#include <gtest/gtest.h>
#include <sys/inotify.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <climits>
#include <csignal>
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

/// An archiver at work. The constructor returns when it has written to the archive.
class WorkingArchiver {
public:
    WorkingArchiver(const std::string& source, const TempTree& out)
        : m_errorPath(m_texts.pathOf("stderr"))
    {
        const int watch = ::inotify_init1(IN_CLOEXEC);
        ::inotify_add_watch(watch, out.path().c_str(), IN_MODIFY);
        const BlockedTermination blocked;
        m_process = std::make_unique<ChildProcess>(ChildProcessSetup{
            TESSERA_ARCHIVER,
            {"-c", "-k", "--sequesterRsrc", source, out.pathOf("X.zip")},
            {},
            m_texts.pathOf("stdout"),
            m_errorPath});
        std::array<char, sizeof(inotify_event) + NAME_MAX + 1> event{};
        while (::read(watch, event.data(), event.size()) < 0 && errno == EINTR) { }
        ::close(watch);
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
        {TESSERA_ARCHIVER,
         {"-c", "-k", "--sequesterRsrc", source, out.pathOf("X.zip")},
         {},
         out.pathOf("stdout"),
         out.pathOf("stderr"),
         [] { ::raise(SIGTERM); }});
    EXPECT_EQ(archiver.waitForExit(), 3);
    EXPECT_EQ(fileContent(out.pathOf("stdout")), "");
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
