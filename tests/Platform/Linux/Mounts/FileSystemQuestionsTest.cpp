// SPDX-License-Identifier: MIT
#include "Platform/Linux/Mounts/FileSystemQuestions.h"

#include "DeadMounts/DeadMountLimits.h"
#include "support/Machine/DeadFileSystem.h"
#include "support/Machine/WithoutThreads.h"

#include <gtest/gtest.h>

#include <future>
#include <memory>
#include <string>
#include <thread>

namespace tessera {
namespace {

constexpr std::chrono::minutes kLong{1};

/// Two disks; the root is one of them.
std::string mountPointOf(const std::string& path)
{
    return path.starts_with("/mnt") ? "/mnt" : "/";
}

/// Asks what is answered at once when it is asked at all.
bool isAnswered(const FileSystemQuestions& asked, const std::string& path, LinkMode linkMode)
{
    return asked.ask<bool>(path, linkMode, [] { return std::optional(true); }).has_value();
}

class FileSystemQuestionsTest : public testing::Test {
protected:
    const FileSystemQuestions m_questions{kLong, mountPointOf};
    test::DeadFileSystem m_dead;
};

TEST_F(FileSystemQuestionsTest, AnAnswerInTimeIsHandedOn)
{
    EXPECT_EQ(m_questions.ask<int>("/a", LinkMode::Keep, [] { return std::optional(7); }), 7);
}

TEST_F(FileSystemQuestionsTest, AMissingValueIsNoDeadFileSystem)
{
    EXPECT_FALSE(
        m_questions.ask<int>("/a", LinkMode::Keep, []() -> std::optional<int> { return {}; }));
    EXPECT_TRUE(isAnswered(m_questions, "/a", LinkMode::Keep));
}

TEST_F(FileSystemQuestionsTest, TheWaitingEndsWithThePatience)
{
    const FileSystemQuestions impatient{std::chrono::milliseconds(1), mountPointOf};
    const auto stuck = std::make_shared<std::promise<void>>();
    EXPECT_FALSE(impatient.ask<int>("/a", LinkMode::Keep, [life = stuck->get_future().share()] {
        life.wait();
        return std::optional(7);
    }));
    stuck->set_value();
}

TEST_F(FileSystemQuestionsTest, WhileOneIsStuckNobodyAsksTheSameMount)
{
    m_dead.swallow(m_questions, "/mnt/a", LinkMode::Keep);
    EXPECT_FALSE(isAnswered(m_questions, "/mnt/b/c", LinkMode::Keep));
}

TEST_F(FileSystemQuestionsTest, AnotherMountIsAsked)
{
    m_dead.swallow(m_questions, "/mnt/a", LinkMode::Keep);
    EXPECT_TRUE(isAnswered(m_questions, "/home/a", LinkMode::Keep));
}

TEST_F(FileSystemQuestionsTest, AMountThatAnswersAfterAllIsAskedAgain)
{
    m_dead.swallow(m_questions, "/mnt/a", LinkMode::Keep);
    m_dead.revive();
    while (!isAnswered(m_questions, "/mnt/a", LinkMode::Keep)) {
        std::this_thread::yield();
    }
    EXPECT_TRUE(isAnswered(m_questions, "/mnt/b", LinkMode::Keep));
}

TEST_F(FileSystemQuestionsTest, ALinkToADeadMountDoesNotKillTheMountItLiesOn)
{
    m_dead.swallow(m_questions, "/home/me/Music", LinkMode::Follow);
    EXPECT_FALSE(isAnswered(m_questions, "/home/me/Music", LinkMode::Follow));
    EXPECT_TRUE(isAnswered(m_questions, "/home/me/Pictures", LinkMode::Follow));
    EXPECT_TRUE(isAnswered(m_questions, "/home/me/a", LinkMode::Keep));
}

TEST_F(FileSystemQuestionsTest, AMountPointThatDoesNotAnswerSpeaksForItsMount)
{
    m_dead.swallow(m_questions, "/mnt", LinkMode::Follow);
    EXPECT_FALSE(isAnswered(m_questions, "/mnt/a", LinkMode::Keep));
}

TEST_F(FileSystemQuestionsTest, ManyStuckThreadsAreNotJoinedByMore)
{
    for (std::size_t i = 0; i < kMostStuckThreads; ++i) {
        EXPECT_TRUE(isAnswered(m_questions, "/healthy", LinkMode::Keep));
        m_dead.swallow(m_questions, "/dead" + std::to_string(i), LinkMode::Follow);
    }
    EXPECT_FALSE(isAnswered(m_questions, "/healthy", LinkMode::Keep));
}

TEST_F(FileSystemQuestionsTest, WhereThereIsNoThreadNothingIsAnswered)
{
    const bool isDone = test::withoutThreads(
        [this] { EXPECT_FALSE(isAnswered(m_questions, "/mnt/a", LinkMode::Keep)); });
    EXPECT_TRUE(isDone);
}

TEST_F(FileSystemQuestionsTest, WhatCouldNotBeAskedForWantOfAThreadIsNotStuck)
{
    const bool isDone
        = test::withoutThreads([this] { (void)isAnswered(m_questions, "/mnt/a", LinkMode::Keep); });
    EXPECT_TRUE(isDone);
    EXPECT_TRUE(isAnswered(m_questions, "/mnt/a", LinkMode::Keep));
}

TEST_F(FileSystemQuestionsTest, TheKernelsTableTellsTheMounts)
{
    const FileSystemQuestions questions{kLong};
    m_dead.swallow(questions, "/proc/self/status", LinkMode::Keep);
    EXPECT_FALSE(isAnswered(questions, "/proc/version", LinkMode::Keep));
    EXPECT_TRUE(isAnswered(questions, "/dev/null", LinkMode::Keep));
}

} // namespace
} // namespace tessera
