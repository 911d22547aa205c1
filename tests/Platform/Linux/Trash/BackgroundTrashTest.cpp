// SPDX-License-Identifier: MIT
#include "Platform/Linux/Trash/BackgroundTrash.h"

#include "support/Fakes/FakeMainThread.h"
#include "support/Machine/WithoutThreads.h"

#include <gtest/gtest.h>

#include <atomic>
#include <functional>
#include <future>
#include <memory>
#include <string>
#include <thread>
#include <utility>
#include <vector>

namespace tessera {
namespace {

/// What a mover that is given these items answers, so that a test sees who answered what.
RecycleResult movedTo(const std::string& place, const std::vector<ItemToRecycle>& urls)
{
    RecycleResult result;
    for (const ItemToRecycle& item : urls) {
        const Url& url = item.url;
        result.newUrls.emplace(url.absoluteString(), Url(place + url.path(), url.isDirectory()));
    }
    return result;
}

TEST(BackgroundTrash, TellsWhatBecameOfTheItems)
{
    test::FakeMainThread mainThread;
    BackgroundTrash trash(
        mainThread, [](const std::vector<ItemToRecycle>& urls) { return movedTo("/trash", urls); });
    RecycleResult told;
    trash.recycle(
        {Url("/a", false), Url("/b", true)}, [&](const RecycleResult& result) { told = result; });
    mainThread.runUntil([&] { return !told.newUrls.empty(); });
    EXPECT_EQ(told.newUrls.at("file:///a"), Url("/trash/a", false));
    EXPECT_EQ(told.newUrls.at("file:///b/"), Url("/trash/b", true));
}

TEST(BackgroundTrash, MovesOnAnotherThreadAndTellsOnTheMainThread)
{
    test::FakeMainThread mainThread;
    std::thread::id movedOn;
    std::thread::id toldOn;
    BackgroundTrash trash(mainThread, [&](const std::vector<ItemToRecycle>&) {
        movedOn = std::this_thread::get_id();
        return RecycleResult();
    });
    trash.recycle({}, [&](const RecycleResult&) { toldOn = std::this_thread::get_id(); });
    mainThread.runUntil([&] { return toldOn != std::thread::id(); });
    EXPECT_EQ(toldOn, std::this_thread::get_id());
    EXPECT_NE(movedOn, std::this_thread::get_id());
}

TEST(BackgroundTrash, AMoveThatIsStuckHoldsUpNoOther)
{
    test::FakeMainThread mainThread;
    std::promise<void> serverAnswers;
    BackgroundTrash trash(
        mainThread,
        [answer = serverAnswers.get_future().share()](const std::vector<ItemToRecycle>& urls) {
            if (!urls.empty()) {
                answer.wait();
            }
            return RecycleResult();
        });
    std::vector<std::string> told;
    trash.recycle({Url("/dead", false)}, [&](const RecycleResult&) { told.emplace_back("dead"); });
    trash.recycle({}, [&](const RecycleResult&) { told.emplace_back("alive"); });
    mainThread.runUntil([&] { return !told.empty(); });
    EXPECT_EQ(told, std::vector<std::string>{"alive"});
    serverAnswers.set_value();
    mainThread.runUntil([&] { return told.size() == 2; });
    EXPECT_EQ(told.back(), "dead");
}

TEST(BackgroundTrash, OneThatIsGoneTellsNothingAnyMore)
{
    test::FakeMainThread mainThread;
    bool told = false;
    {
        std::promise<void> moved;
        BackgroundTrash trash(mainThread, [&](const std::vector<ItemToRecycle>&) {
            moved.set_value();
            return RecycleResult();
        });
        trash.recycle({}, [&](const RecycleResult&) { told = true; });
        moved.get_future().wait();
    }
    bool ranWhatWasQueued = false;
    mainThread.perform([&] { ranWhatWasQueued = true; });
    mainThread.runUntil([&] { return ranWhatWasQueued; });
    EXPECT_FALSE(told);
}

/// Keeps what it is given until it is asked to run it.
class HeldMainThread final : public MainThread {
public:
    void perform(std::function<void()> work) override { m_held.set_value(std::move(work)); }
    void performAndWait(std::function<void()> work) override { perform(std::move(work)); }

    std::function<void()> held() { return m_held.get_future().get(); }

private:
    std::promise<std::function<void()>> m_held;
};

TEST(BackgroundTrash, OneThatGoesWhileItsNewsWaitTellsNothingEither)
{
    HeldMainThread mainThread;
    auto trash = std::make_unique<BackgroundTrash>(
        mainThread, [](const std::vector<ItemToRecycle>&) { return RecycleResult(); });
    bool told = false;
    trash->recycle({}, [&](const RecycleResult&) { told = true; });
    const std::function<void()> news = mainThread.held();
    trash.reset();
    news();
    EXPECT_FALSE(told);
}

TEST(BackgroundTrash, TheEndWaitsForAMoveUnderWay)
{
    test::FakeMainThread mainThread;
    std::atomic<bool> hasEnded = false;
    {
        std::promise<void> begun;
        BackgroundTrash trash(mainThread, [&](const std::vector<ItemToRecycle>&) {
            begun.set_value();
            // Few enough for the time limit, though each may take a busy machine milliseconds.
            for (int i = 0; i < 100; ++i) {
                std::this_thread::yield();
            }
            hasEnded = true;
            return RecycleResult();
        });
        trash.recycle({}, [](const RecycleResult&) {});
        begun.get_future().wait();
    }
    EXPECT_TRUE(hasEnded);
}

TEST(BackgroundTrash, WhereThereIsNoThreadTellsThatNothingWasMoved)
{
    test::FakeMainThread mainThread;
    BackgroundTrash trash(mainThread, [](const std::vector<ItemToRecycle>& urls) {
        ADD_FAILURE() << "moved";
        return movedTo("/trash", urls);
    });
    RecycleResult told;
    const bool isDone = test::withoutThreads([&] {
        trash.recycle({Url("/a", false)}, [&](const RecycleResult& result) { told = result; });
    });
    ASSERT_TRUE(isDone);
    EXPECT_EQ(told.error, "") << "not before the call has returned";
    mainThread.runUntil([&] { return !told.error.empty(); });
    EXPECT_EQ(
        told.error,
        "Nothing was moved to the trash, because the system is too busy to begin with it. Close "
        "some programs and try again.");
}

TEST(BackgroundTrash, TellsWhereAnItemWasPutBack)
{
    test::FakeMainThread mainThread;
    BackgroundTrash trash(mainThread, {});
    PutBackResult told;
    trash.perform(
        BackgroundTrash::PutBack([] {
            PutBackResult result;
            result.place = Url("/a", false);
            return result;
        }),
        [&](const PutBackResult& result) { told = result; });
    mainThread.runUntil([&] { return !told.place.empty(); });
    EXPECT_EQ(told.place, Url("/a", false));
}

TEST(BackgroundTrash, WhereThereIsNoThreadTellsThatNothingWasPutBack)
{
    test::FakeMainThread mainThread;
    BackgroundTrash trash(mainThread, {});
    PutBackResult told;
    const bool isDone = test::withoutThreads([&] {
        trash.perform(
            BackgroundTrash::PutBack([] { return PutBackResult(); }),
            [&](const PutBackResult& result) { told = result; });
    });
    ASSERT_TRUE(isDone);
    mainThread.runUntil([&] { return !told.error.empty(); });
    EXPECT_EQ(told.obstacle, PutBackObstacle::Failed);
    EXPECT_EQ(
        told.error,
        "Nothing was put back, because the system is too busy to begin with it. Close some "
        "programs and try again.");
}

TEST(BackgroundTrash, AHandlerMayMoveMoreOrTakeTheTrashAway)
{
    test::FakeMainThread mainThread;
    auto trash = std::make_unique<BackgroundTrash>(
        mainThread, [](const std::vector<ItemToRecycle>&) { return RecycleResult(); });
    bool isDone = false;
    trash->recycle({}, [&](const RecycleResult&) {
        trash->recycle({}, [&](const RecycleResult&) {
            trash.reset();
            isDone = true;
        });
    });
    mainThread.runUntil([&] { return isDone; });
    EXPECT_EQ(trash, nullptr);
}

} // namespace
} // namespace tessera
