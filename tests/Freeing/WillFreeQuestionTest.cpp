// SPDX-License-Identifier: MIT
#include "Freeing/WillFreeQuestion.h"

#include "support/Fakes/FakeMainThread.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <condition_variable>
#include <mutex>
#include <string_view>
#include <thread>

namespace tessera {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using Reason = KeptFiles::Reason;

constexpr std::chrono::minutes kLong{1};

/// Until the stop.
void waitForTheStop(const std::stop_token& stop)
{
    std::mutex mutex;
    std::unique_lock lock(mutex);
    std::condition_variable_any changed;
    changed.wait(lock, stop, [] { return false; });
}

constexpr std::int64_t kThisProcess = 77;
constexpr FileIdentity kHeldFile{1, 5};

FileIdentity fileOf(std::string_view path)
{
    return path == "/held" ? kHeldFile : FileIdentity{1, 6};
}

/// Files of 100 bytes, but for a link, "/link", and one of which nobody tells, "/?".
class FakeItemStates final : public ItemStates {
public:
    std::vector<ItemAnswer> statesOf(
        const std::vector<std::string>& paths, const std::stop_token& stop) const override
    {
        if (waits) {
            waitForTheStop(stop);
        }
        std::vector<ItemAnswer> answers;
        for (const std::string& path : paths) {
            const auto kind
                = path == "/link" ? ItemState::Kind::SymbolicLink : ItemState::Kind::File;
            answers.push_back(
                path == "/?"
                    ? ItemAnswer()
                    : ItemAnswer{ItemAnswer::Outcome::Known, {kind, fileOf(path), 1, 100, {}, {}}});
        }
        return answers;
    }

    std::atomic<bool> waits = false;
};

class FakeSharedExtents final : public SharedExtents {
public:
    SharedExtentsAnswer extentsOf(
        const std::vector<NamedFile>& files, const std::stop_token& stop) const override
    {
        if (waits) {
            waitForTheStop(stop);
        }
        SharedExtentsAnswer answer;
        for (const NamedFile& file : files) {
            const ExtentBytes bytes
                = file.path == "/copy" ? ExtentBytes{60, 40, 0} : ExtentBytes{0, 100, 0};
            answer.files.push_back({FileExtents::State::Known, bytes});
        }
        return answer;
    }

    std::atomic<bool> waits = false;
};

/// One file is open.
class FakeOpenFiles final : public OpenFiles {
public:
    OpenFilesAnswer withoutNames(
        std::uint64_t /*device*/, const std::stop_token& /*stop*/) const override
    {
        return {};
    }

    OpenFilesAnswer among(
        const std::vector<FileIdentity>& files, const std::stop_token& stop) const override
    {
        if (waits) {
            waitForTheStop(stop);
        }
        OpenFilesAnswer answer;
        answer.isCutShort = waits.load();
        answer.files.push_back({{1, 6}, 100, {{kThisProcess, "tessera"}}});
        if (std::ranges::find(files, kHeldFile) != files.end()) {
            answer.files.push_back(
                {kHeldFile, 100, {{kThisProcess, "tessera"}, {1234, "firefox"}}});
        }
        return answer;
    }

    std::atomic<bool> waits = false;
};

FreeingQuestion questionAbout(const std::vector<std::string>& paths)
{
    FreeingQuestion question;
    for (const std::string& path : paths) {
        question.files.push_back({path, 100, 1});
    }
    question.byScan.most = 100 * paths.size();
    return question;
}

class WillFreeQuestionTest : public testing::Test {
protected:
    FreeingServices services() const { return {m_states, m_extents, m_openFiles, kThisProcess}; }

    void ask(WillFreeQuestion& question, const std::vector<std::string>& paths)
    {
        question.ask(
            questionAbout(paths), [this](const FreedSpace& space) { m_answers.push_back(space); });
    }

    void awaitAnswer()
    {
        m_mainThread.runUntil([this] { return !m_answers.empty(); });
    }

    /// Runs all that is on its way to the main thread.
    void drain()
    {
        bool isDone = false;
        m_mainThread.perform([&isDone] { isDone = true; });
        m_mainThread.runUntil([&isDone] { return isDone; });
    }

    std::shared_ptr<FakeItemStates> m_states = std::make_shared<FakeItemStates>();
    std::shared_ptr<FakeSharedExtents> m_extents = std::make_shared<FakeSharedExtents>();
    std::shared_ptr<FakeOpenFiles> m_openFiles = std::make_shared<FakeOpenFiles>();
    test::FakeMainThread m_mainThread;
    std::vector<FreedSpace> m_answers;
};

TEST_F(WillFreeQuestionTest, AllThatIsToldDecides)
{
    WillFreeQuestion question(services(), m_mainThread, kLong);
    ask(question, {"/alone", "/link", "/copy", "/?", "/held"});
    awaitAnswer();
    const FileHolder firefox{1234, "firefox"};
    EXPECT_THAT(
        m_answers,
        ElementsAre(FreedSpace{
            240,
            500,
            {{Reason::SharedExtents, 1, "/copy", {}},
             {Reason::HeldOpen, 1, "/held", {firefox}},
             {Reason::NotLookedAt, 1, "/?", {}}},
            false}));
}

TEST_F(WillFreeQuestionTest, WithoutFilesNobodyIsAsked)
{
    WillFreeQuestion question(services(), m_mainThread, kLong);
    m_openFiles->waits = true;
    ask(question, {});
    awaitAnswer();
    EXPECT_THAT(m_answers, ElementsAre(FreedSpace()));
}

TEST_F(WillFreeQuestionTest, WhenTheTimeIsOverWhatIsKnownIsTold)
{
    m_openFiles->waits = true;
    WillFreeQuestion question(services(), m_mainThread, std::chrono::milliseconds(50));
    ask(question, {"/alone"});
    awaitAnswer();
    EXPECT_TRUE(m_answers.at(0).mayBeHeldOpen);
}

TEST_F(WillFreeQuestionTest, WhenTheTimeIsOverBeforeAnythingIsKnownThatIsTold)
{
    m_states->waits = true;
    WillFreeQuestion question(services(), m_mainThread, std::chrono::milliseconds(0));
    ask(question, {"/?"});
    awaitAnswer();
    EXPECT_EQ(m_answers.at(0).least, 0U);
    EXPECT_EQ(m_answers.at(0).most, 100U);
}

TEST_F(WillFreeQuestionTest, OnlyTheLastQuestionIsAnswered)
{
    m_extents->waits = true;
    WillFreeQuestion question(services(), m_mainThread, kLong);
    ask(question, {"/alone", "/a", "/b"});
    m_extents->waits = false;
    ask(question, {"/a"});
    awaitAnswer();
    drain();
    EXPECT_THAT(m_answers, ElementsAre(FreedSpace{100, 100, {}, false}));
}

TEST_F(WillFreeQuestionTest, AnAnswerThatIsOnItsWayToTheMainThreadIsDroppedAsWell)
{
    WillFreeQuestion question(services(), m_mainThread, kLong);
    ask(question, {"/a"});
    m_mainThread.awaitWork();
    question.drop();
    drain();
    EXPECT_THAT(m_answers, IsEmpty());
}

TEST_F(WillFreeQuestionTest, OneThatIsGoneTellsNothing)
{
    {
        WillFreeQuestion question(services(), m_mainThread, kLong);
        ask(question, {"/a"});
        m_mainThread.awaitWork();
    }
    drain();
    EXPECT_THAT(m_answers, IsEmpty());
}

TEST_F(WillFreeQuestionTest, WhoHearsAnAnswerMayAskAgain)
{
    WillFreeQuestion question(services(), m_mainThread, kLong);
    question.ask(
        questionAbout({"/copy"}), [&](const FreedSpace& /*space*/) { ask(question, {"/a"}); });
    awaitAnswer();
    EXPECT_EQ(m_answers.at(0).least, 100U);
}

TEST(AskDisk, AStopEndsTheQuestion)
{
    const auto states = std::make_shared<FakeItemStates>();
    states->waits = true;
    const FreeingServices services{
        states, std::make_shared<FakeSharedExtents>(), std::make_shared<FakeOpenFiles>()};
    std::stop_source stop;
    std::jthread stopper([&stop] { stop.request_stop(); });
    const FreeingFacts facts = askDisk(questionAbout({"/a"}), services, kLong, stop.get_token());
    EXPECT_LE(facts.states.size(), 1U);
}

} // namespace
} // namespace tessera
