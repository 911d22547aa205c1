// SPDX-License-Identifier: MIT
#include "Compress/CompressWindowFixture.h"
#include "Notices/EndNotices.h"
#include "support/Fakes/FakeNotifications.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <functional>
#include <utility>

namespace tessera {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// Compresses while no window is in front.
class CompressNoticesTest : public test::CompressWindowFixture {
protected:
    CompressNoticesTest()
    {
        CompressServices asked = services(task);
        asked.notices = &notices;
        controller = CompressWindowController::make(
            std::move(asked),
            [](std::chrono::milliseconds /*delay*/, const std::function<void()>& work) { work(); });
    }

    void compressFor(double seconds, int status)
    {
        compress("/data/some\xFF <i>");
        time += seconds;
        endTool(status);
        while (controller->updateTimer().isActive()) {
            controller->updateProgress();
        }
    }

    double time = 1000;
    test::FakeNotifications notifications;
    EndNotices notices{notifications, [this] { return time; }};
};

TEST_F(CompressNoticesTest, AnArchiveThatTookLongIsToldOfByItsName)
{
    compressFor(60, 0);

    EXPECT_THAT(
        notifications.shown,
        ElementsAre(Notification{"The archive is finished", "some\uFFFD <i>.zip"}));
}

TEST_F(CompressNoticesTest, AQuickOneIsNotToldOf)
{
    compressFor(5, 0);

    EXPECT_THAT(notifications.shown, IsEmpty());
}

TEST_F(CompressNoticesTest, AFailureAfterLongIsToldOf)
{
    task.output = "";
    compressFor(60, 1);

    EXPECT_THAT(
        notifications.shown,
        ElementsAre(Notification{"The archive cannot be made", "some\uFFFD <i>.zip"}));
}

TEST_F(CompressNoticesTest, OneThatTheUserCancelsIsNotToldOf)
{
    compress();
    time += 60;
    task.output = "";
    controller->cancelCompress();
    endTool(1);
    controller->updateProgress();

    EXPECT_THAT(notifications.shown, IsEmpty());
}

TEST_F(CompressNoticesTest, TheEndOfTheProgramIsNotToldOf)
{
    compress();
    time += 60;
    endProgram();

    EXPECT_THAT(notifications.shown, IsEmpty());
}

} // namespace
} // namespace tessera
