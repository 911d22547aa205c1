// SPDX-License-Identifier: MIT
// The program that decodes, started as the preview panel starts it.
#include "QuickLook/Reading/SampleFiles.h"
#include "support/Machine/BuiltPaths.h"
#include "support/Machine/ChildProcess.h"
#include "support/Machine/FileContent.h"
#include "support/Machine/RunProgram.h"
#include "support/Machine/TempTree.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <linux/filter.h>
#include <linux/landlock.h>
#include <linux/seccomp.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <set>
#include <sstream>
#include <string>
#include <thread>
#include <vector>

namespace tessera::test {
namespace {

constexpr QSize kPictureSize{300, 300}; // of more pixels than a pipe has room for
constexpr std::size_t kFrameBytes = 16;

/// The program in the middle of its answer: it has begun to decode, hence has given up all that it
/// gives up, and waits for somebody to read on.
class WorkingPreviewer {
public:
    explicit WorkingPreviewer(std::function<void()> beforeStart = [] {})
    {
        m_tree.writeFile("a.png", imageFile(kPictureSize, "png"));
        m_file = ::open(m_tree.pathOf("a.png").c_str(), O_RDONLY | O_CLOEXEC);
        std::array<int, 2> pipe{-1, -1};
        EXPECT_EQ(::pipe2(pipe.data(), O_CLOEXEC), 0);
        m_answer = pipe[0];
        m_process = std::make_unique<ChildProcess>(ChildProcessSetup{
            test::built::previewer(),
            {"picture", "300", "300"},
            {},
            m_tree.pathOf("out"),
            m_tree.pathOf("err"),
            [file = m_file, output = pipe[1], prepare = std::move(beforeStart)] {
                ::dup2(file, STDIN_FILENO);
                ::dup2(output, STDOUT_FILENO);
                prepare();
            }});
        ::close(pipe[1]);
        m_hasBegun = read(kFrameBytes) == kFrameBytes;
    }
    WorkingPreviewer(const WorkingPreviewer&) = delete;
    WorkingPreviewer& operator=(const WorkingPreviewer&) = delete;
    ~WorkingPreviewer()
    {
        ::close(m_file);
        ::close(m_answer);
    }

    bool hasBegun() const { return m_hasBegun; }

    /// How many bytes came, up to so many.
    std::size_t read(std::size_t most) const
    {
        std::vector<char> bytes(most);
        std::size_t filled = 0;
        while (filled < most) {
            const ssize_t count = ::read(m_answer, bytes.data() + filled, most - filled);
            if (count == 0 || (count < 0 && errno != EINTR)) {
                break;
            }
            filled += static_cast<std::size_t>(count < 0 ? 0 : count);
        }
        return filled;
    }

    /// What the system tells of it.
    std::string folderInProc() const { return "/proc/" + std::to_string(m_process->id()); }
    std::string told(const std::string& file) const
    {
        return fileContent(folderInProc() + "/" + file);
    }

    ChildProcess& process() const { return *m_process; }

private:
    TempTree m_tree;
    int m_file = -1;
    int m_answer = -1;
    std::unique_ptr<ChildProcess> m_process;
    bool m_hasBegun = false;
};

/// The words of the line behind its title.
std::vector<std::string> wordsBehind(const std::string& text, const std::string& title)
{
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);) {
        if (line.starts_with(title)) {
            std::istringstream words(line.substr(title.size()));
            return {std::istream_iterator<std::string>(words), {}};
        }
    }
    return {};
}

using Words = std::vector<std::string>;

class PreviewCommand : public testing::Test {
protected:
    void SetUp() override { ASSERT_TRUE(previewer.hasBegun()); }

    Words limit(const std::string& title) const
    {
        Words words = wordsBehind(previewer.told("limits"), title);
        words.resize(2); // that in force, and the highest that could be
        return words;
    }

    WorkingPreviewer previewer;
};

TEST_F(PreviewCommand, Has512MebibytesOfMemory)
{
#ifdef TESSERA_SANITIZED
    GTEST_SKIP() << "the sanitizers' tables take more";
#endif
    EXPECT_EQ(limit("Max address space"), (Words{"536870912", "536870912"}));
}

TEST_F(PreviewCommand, HasTenSecondsOfProcessorTime)
{
    EXPECT_EQ(limit("Max cpu time"), (Words{"10", "10"}));
}

TEST_F(PreviewCommand, WritesNoFile)
{
    EXPECT_EQ(limit("Max file size"), (Words{"0", "0"}));
}

TEST_F(PreviewCommand, LeavesNoPictureOfItsMemory)
{
    EXPECT_EQ(limit("Max core file size"), (Words{"0", "0"}));
}

TEST_F(PreviewCommand, OpensFewFiles)
{
    EXPECT_EQ(limit("Max open files"), (Words{"64", "64"}));
}

TEST_F(PreviewCommand, GainsNoRights)
{
    EXPECT_EQ(wordsBehind(previewer.told("status"), "NoNewPrivs:"), Words{"1"});
}

TEST_F(PreviewCommand, HasNoneOfTheSuperUsersPowers)
{
    EXPECT_EQ(wordsBehind(previewer.told("status"), "CapEff:"), Words{"0000000000000000"});
    EXPECT_EQ(wordsBehind(previewer.told("status"), "CapPrm:"), Words{"0000000000000000"});
}

TEST_F(PreviewCommand, KeepsToFewSystemCalls)
{
    if (::prctl(PR_GET_SECCOMP) < 0) {
        GTEST_SKIP() << "this kernel filters no system calls";
    }
    EXPECT_EQ(wordsBehind(previewer.told("status"), "Seccomp:"), Words{"2"});
}

TEST_F(PreviewCommand, EndsWithItsAnswer)
{
    // The rest: the raster's frame and pixels, and the end.
    const std::size_t rest = kFrameBytes + std::size_t{300} * 300 * 4 + kFrameBytes;

    EXPECT_EQ(previewer.read(rest + 1), rest);
    EXPECT_EQ(previewer.process().waitForExit(), 0);
}

void answerNo(std::vector<sock_filter>& program, std::uint32_t call)
{
    program.push_back(BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, call, 0, 1));
    program.push_back(BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ERRNO | ENOSYS));
}

void install(std::vector<sock_filter>& program)
{
    const sock_fprog filter{static_cast<unsigned short>(program.size()), program.data()};
    ::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0);
    ::prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &filter);
}

/// A kernel without the means to close the disk and to filter system calls.
void forgetConfinement()
{
    std::vector<sock_filter> program{
        BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, nr))};
    answerNo(program, SYS_landlock_create_ruleset);
    answerNo(program, SYS_seccomp);
    // Of prctl only the one that sets a filter.
    program.push_back(BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, SYS_prctl, 0, 3));
    program.push_back(BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, args)));
    answerNo(program, PR_SET_SECCOMP);
    program.push_back(BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW));
    install(program);
}

TEST(PreviewCommandOnAnOldKernel, HasItsLimitsAndDecodes)
{
    const WorkingPreviewer previewer(forgetConfinement);

    ASSERT_TRUE(previewer.hasBegun());
    // The test's own filter is the only one.
    EXPECT_EQ(wordsBehind(previewer.told("status"), "Seccomp_filters:"), Words{"1"});
    EXPECT_EQ(wordsBehind(previewer.told("limits"), "Max cpu time").at(0), "10");
    EXPECT_EQ(wordsBehind(previewer.told("limits"), "Max file size").at(0), "0");
    EXPECT_EQ(previewer.read(kFrameBytes + std::size_t{300} * 300 * 4), 360016U);
}

TEST(PreviewCommandWithLessThanItTakes, DoesNotTakeMore)
{
    const WorkingPreviewer previewer([] {
        const rlimit few{32, 32};
        ::setrlimit(RLIMIT_NOFILE, &few);
    });

    ASSERT_TRUE(previewer.hasBegun());
    EXPECT_EQ(wordsBehind(previewer.told("limits"), "Max open files").at(1), "32");
}

TEST(PreviewCommandWithAnotherFileOpen, KeepsTheStandardStreamsOnly)
{
    const WorkingPreviewer previewer([] { ::dup2(STDIN_FILENO, 9); });

    ASSERT_TRUE(previewer.hasBegun());
    std::set<std::string> open;
    for (const auto& entry :
         std::filesystem::directory_iterator(previewer.folderInProc() + "/fd")) {
        open.insert(entry.path().filename());
    }
    EXPECT_EQ(open, (std::set<std::string>{"0", "1", "2"}));
}

TEST(PreviewCommandOfAnyUser, ShowsItsMemoryToNobody)
{
    constexpr uid_t kNobody = 65534;
    const WorkingPreviewer previewer([] {
        if (::getuid() == 0 && ::setresuid(kNobody, kNobody, kNobody) != 0) {
            ::_exit(EXIT_FAILURE);
        }
    });
    if (!previewer.hasBegun()) {
        GTEST_SKIP() << "the user without rights cannot start it here";
    }
    struct stat own { };
    ASSERT_EQ(::stat((previewer.folderInProc() + "/status").c_str(), &own), 0);
    // What the system tells of a process is its user's, unless nobody may look into it.
    EXPECT_EQ(own.st_uid, 0U);
}

/// A kernel that ends the process at a system call, and at one of its numbers only if one is named.
std::function<void()> endingAt(std::uint32_t call, std::optional<std::uint32_t> number = {})
{
    return [call, number] {
        std::vector<sock_filter> program{
            BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, nr)),
            BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, call, 1, 0),
            BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW)};
        if (number) {
            program.push_back(BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, args)));
            program.push_back(BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, *number, 1, 0));
            program.push_back(BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW));
        }
        program.push_back(BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_KILL_PROCESS));
        install(program);
    };
}

TEST(PreviewCommandWithTheDiskOpen, ClosesIt)
{
    constexpr auto kAsk = LANDLOCK_CREATE_RULESET_VERSION;
    if (::prctl(PR_GET_SECCOMP) < 0
        || ::syscall(SYS_landlock_create_ruleset, nullptr, std::size_t{0}, kAsk) < 1) {
        GTEST_SKIP() << "this kernel cannot do it";
    }
    EXPECT_FALSE(WorkingPreviewer(endingAt(SYS_landlock_restrict_self)).hasBegun());
}

#ifdef SYS_alarm
TEST(PreviewCommandThatWaits, IsEndedAfterAMinute)
{
    if (::prctl(PR_GET_SECCOMP) < 0) {
        GTEST_SKIP() << "this kernel filters no system calls";
    }
    EXPECT_FALSE(WorkingPreviewer(endingAt(SYS_alarm, 60)).hasBegun());
}
#endif

TEST(PreviewCommandOfACrashedProgram, EndsWithIt)
{
    const TempTree tree;
    tree.writeFile("a.png", imageFile(kPictureSize, "png"));
    std::array<int, 2> pipe{-1, -1};
    ASSERT_EQ(::pipe2(pipe.data(), O_CLOEXEC), 0);
    pid_t process = 0;
    // To the system, the thread that started it is its parent.
    std::thread([&] {
        process = ::fork();
        if (process == 0) {
            ::dup2(::open(tree.pathOf("a.png").c_str(), O_RDONLY), STDIN_FILENO);
            ::dup2(pipe[1], STDOUT_FILENO);
            ::execl(
                test::built::previewer(),
                test::built::previewer(),
                "picture",
                "300",
                "300",
                nullptr);
            ::_exit(127);
        }
        std::array<char, kFrameBytes> frame{};
        EXPECT_EQ(::read(pipe[0], frame.data(), frame.size()), ssize_t{kFrameBytes});
    }).join();

    int status = 0;
    ASSERT_EQ(::waitpid(process, &status, 0), process);
    EXPECT_TRUE(WIFSIGNALED(status));
    EXPECT_EQ(WTERMSIG(status), SIGKILL);
    ::close(pipe[0]);
    ::close(pipe[1]);
}

TEST(PreviewCommandLine, HasOneFormOnly)
{
    for (const Words& arguments : {Words{}, Words{"--help"}, Words{"picture", "300"}}) {
        const ProgramResult result = runProgram(test::built::previewer(), arguments);
        EXPECT_EQ(result.exitStatus, 2);
        EXPECT_EQ(
            result.standardError, "usage: tessera-preview picture|pages WIDTH HEIGHT <FILE\n");
        EXPECT_EQ(result.standardOutput, "");
    }
}

TEST(PreviewCommandLine, ReadsNothingButARegularFile)
{
    // A program of the tests has the null device as its standard input.
    const ProgramResult result = runProgram(test::built::previewer(), {"picture", "300", "300"});

    EXPECT_EQ(result.exitStatus, 1);
    EXPECT_EQ(result.standardError, "tessera-preview: standard input is no regular file\n");
}

} // namespace
} // namespace tessera::test
