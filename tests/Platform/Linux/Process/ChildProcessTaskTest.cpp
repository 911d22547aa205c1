// SPDX-License-Identifier: MIT
#include "Platform/Linux/Process/ChildProcessTask.h"

#include "Platform/Linux/Files/FileDescriptor.h"
#include "support/Machine/TempTree.h"

#include <QCoreApplication>
#include <QDeadlineTimer>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/types.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <fstream>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace tessera {

namespace {

constexpr int kGenerousMs = 20000;

template <typename Condition>
testing::AssertionResult waitUntil(const Condition& holds)
{
    const QDeadlineTimer limit(kGenerousMs);
    while (!holds()) {
        if (limit.hasExpired()) {
            return testing::AssertionFailure() << "still waiting";
        }
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 10);
    }
    return testing::AssertionSuccess();
}

/// Whether the process is there and has not ended.
bool isAlive(pid_t process)
{
    std::ifstream status("/proc/" + std::to_string(process) + "/stat");
    std::string number;
    std::string name;
    std::string state;
    return (status >> number >> name >> state) && state != "Z" && state != "X";
}

class ChildProcessTaskTest : public testing::Test {
protected:
    void start(const std::string& program, const std::vector<std::string>& arguments)
    {
        task->start(program, arguments, [this](int status) { statuses.push_back(status); });
    }

    void startShell(const std::string& script, const std::string& argument = {})
    {
        start("/bin/sh", {"-c", script, "sh", argument});
    }

    int statusAtEnd()
    {
        EXPECT_TRUE(waitUntil([this] { return !statuses.empty(); }));
        return statuses.empty() ? -1 : statuses.front();
    }

    /// A process that tells its number and then goes on for ever.
    void startEndless(const std::string& preparation = {})
    {
        startShell(
            preparation + R"(echo $$ > "$1.new"; mv "$1.new" "$1"; exec tail -f /dev/null)",
            numberFile);
    }

    std::optional<pid_t> toldNumber() const
    {
        pid_t number = 0;
        return std::ifstream(numberFile) >> number ? std::optional(number) : std::nullopt;
    }

    test::TempTree tree;
    std::string numberFile = tree.pathOf("number");
    std::vector<int> statuses;
    std::unique_ptr<ChildProcessTask> task = std::make_unique<ChildProcessTask>();
};

} // namespace

TEST_F(ChildProcessTaskTest, TellsOfSuccess)
{
    startShell("exit 0");
    EXPECT_EQ(statusAtEnd(), 0);
}

TEST_F(ChildProcessTaskTest, TellsTheStatusOfAFailure)
{
    startShell("exit 3");
    EXPECT_EQ(statusAtEnd(), 3);
}

TEST_F(ChildProcessTaskTest, AProgramThatIsNotThereFails)
{
    start("/no/such/program", {});
    EXPECT_TRUE(statuses.empty());
    EXPECT_EQ(statusAtEnd(), 127);
}

TEST_F(ChildProcessTaskTest, ATerminatedProcessHasFailed)
{
    startEndless();
    ASSERT_TRUE(waitUntil([this] { return toldNumber().has_value(); }));
    task->terminate();
    EXPECT_EQ(statusAtEnd(), 128 + SIGTERM);
}

TEST_F(ChildProcessTaskTest, TerminatingWhatHasEndedDoesNothing)
{
    startShell("exit 0");
    statusAtEnd();
    task->terminate();
    QCoreApplication::processEvents();
    EXPECT_EQ(statuses, std::vector<int>{0});
}

TEST_F(ChildProcessTaskTest, HandsArgumentsOverAsBytes)
{
    const std::string name = "a \xFF\xFE \n$(b) 'c'";
    startShell("printf x > \"$1\"", tree.pathOf(name));
    EXPECT_EQ(statusAtEnd(), 0);
    EXPECT_TRUE(std::ifstream(tree.pathOf(name)).good());
}

TEST_F(ChildProcessTaskTest, TheProcessReadsNothingAndPrintsNothing)
{
    testing::internal::CaptureStdout();
    startShell("echo printed; read -r line && exit 1; exit 0");
    EXPECT_EQ(statusAtEnd(), 0);
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
}

TEST_F(ChildProcessTaskTest, WhatIsTypedForThisProgramIsNotForTheProcess)
{
    tree.writeFile("typed", "line\n");
    const FileDescriptor before(::dup(STDIN_FILENO));
    const FileDescriptor typed(::open(tree.pathOf("typed").c_str(), O_RDONLY | O_CLOEXEC));
    ASSERT_EQ(::dup2(typed.number(), STDIN_FILENO), STDIN_FILENO);
    startShell("read -r line && exit 1; exit 0");
    ::dup2(before.number(), STDIN_FILENO);
    EXPECT_EQ(statusAtEnd(), 0);
}

TEST_F(ChildProcessTaskTest, WhatTheProcessHasPrintedIsKept)
{
    startShell("printf '12 3\\n'");
    EXPECT_EQ(statusAtEnd(), 0);
    EXPECT_EQ(task->output(), "12 3\n");
}

TEST_F(ChildProcessTaskTest, OfAProcessThatPrintsForLongTheBeginningIsKept)
{
    startShell("printf '%10000d' 7");
    EXPECT_EQ(statusAtEnd(), 0);
    EXPECT_EQ(task->output(), std::string(4096, ' '));
}

TEST_F(ChildProcessTaskTest, AProgramThatIsNotThereHasPrintedNothing)
{
    start("/no/such/program", {});
    EXPECT_EQ(statusAtEnd(), 127);
    EXPECT_EQ(task->output(), "");
}

TEST_F(ChildProcessTaskTest, StoppingEndsTheProcessAndKeepsWhatItPrintsAtItsEnd)
{
    startShell(
        R"(trap 'echo ended; exit' TERM; echo $$ > "$1.new"; mv "$1.new" "$1"; while :; do sleep 0.01; done)",
        numberFile);
    ASSERT_TRUE(waitUntil([this] { return toldNumber().has_value(); }));
    task->stop();
    EXPECT_FALSE(isAlive(*toldNumber()));
    EXPECT_EQ(task->output(), "ended\n");
    QCoreApplication::processEvents();
    EXPECT_TRUE(statuses.empty());
}

TEST_F(ChildProcessTaskTest, TheHandlerMayDestroyTheTask)
{
    task->start("/bin/sh", {"-c", "exit 4"}, [this](int status) {
        task.reset();
        statuses.push_back(status);
    });
    EXPECT_EQ(statusAtEnd(), 4);
}

TEST_F(ChildProcessTaskTest, DestroyingTheTaskEndsItsProcess)
{
    startEndless();
    ASSERT_TRUE(waitUntil([this] { return toldNumber().has_value(); }));
    task.reset();
    EXPECT_FALSE(isAlive(*toldNumber()));
    EXPECT_TRUE(statuses.empty());
}

TEST_F(ChildProcessTaskTest, AProcessThatDoesNotObeyIsKilledWithItsTask)
{
    startEndless("trap '' TERM;");
    ASSERT_TRUE(waitUntil([this] { return toldNumber().has_value(); }));
    task.reset();
    EXPECT_FALSE(isAlive(*toldNumber()));
}

TEST_F(ChildProcessTaskTest, TheProcessEndsWhenTheProgramDies)
{
    const pid_t program = ::fork();
    if (program == 0) {
        startEndless();
        while (!toldNumber()) {
            ::usleep(1000);
        }
        ::_exit(0);
    }
    ASSERT_EQ(::waitpid(program, nullptr, 0), program);
    EXPECT_TRUE(waitUntil([this] { return !isAlive(*toldNumber()); }));
}

} // namespace tessera
