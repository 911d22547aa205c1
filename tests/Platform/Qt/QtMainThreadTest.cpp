// SPDX-License-Identifier: MIT
#include "Platform/Qt/QtMainThread.h"

#include <QCoreApplication>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <atomic>
#include <memory>
#include <thread>
#include <vector>

namespace tessera {
namespace {

void runEventsUntil(const std::atomic<bool>& done)
{
    while (!done) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 10);
    }
}

TEST(QtMainThread, RunsWorkOnTheMainThreadInItsOrder)
{
    QtMainThread mainThread;
    std::vector<int> order;
    std::thread::id ranOn;
    std::atomic<bool> done = false;
    std::thread worker([&] {
        mainThread.perform([&] { order.push_back(1); });
        mainThread.perform([&] { order.push_back(2); });
        mainThread.performAndWait([&] {
            order.push_back(3);
            ranOn = std::this_thread::get_id();
        });
        done = true;
    });
    runEventsUntil(done);
    worker.join();
    EXPECT_THAT(order, testing::ElementsAre(1, 2, 3));
    EXPECT_EQ(ranOn, std::this_thread::get_id());
}

TEST(QtMainThread, PerformReturnsBeforeTheWorkHasRun)
{
    QtMainThread mainThread;
    bool ran = false;
    std::thread([&] { mainThread.perform([&] { ran = true; }); }).join();
    EXPECT_FALSE(ran);
    QCoreApplication::processEvents();
    EXPECT_TRUE(ran);
}

TEST(QtMainThread, PerformAndWaitReturnsAfterTheWorkHasRun)
{
    QtMainThread mainThread;
    std::atomic<bool> ran = false;
    std::atomic<bool> done = false;
    bool ranBeforeReturn = false;
    std::thread worker([&] {
        mainThread.performAndWait([&] { ran = true; });
        ranBeforeReturn = ran;
        done = true;
    });
    runEventsUntil(done);
    worker.join();
    EXPECT_TRUE(ranBeforeReturn);
}

TEST(QtMainThread, ClosingReleasesThoseWhoWaitAndDropsTheirWork)
{
    QtMainThread mainThread;
    bool ran = false;
    std::thread worker([&] { mainThread.performAndWait([&] { ran = true; }); });
    mainThread.close();
    worker.join();
    QCoreApplication::processEvents();
    EXPECT_FALSE(ran);
}

} // namespace
} // namespace tessera
