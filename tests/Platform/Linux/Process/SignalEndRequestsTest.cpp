// SPDX-License-Identifier: MIT
#include "Platform/Linux/Process/SignalEndRequests.h"

#include <QCoreApplication>
#include <QDeadlineTimer>

#include <gtest/gtest.h>

#include <csignal>
#include <cstdlib>

namespace tessera {
namespace {

class SignalEndRequestsTest : public testing::Test {
protected:
    ~SignalEndRequestsTest() override
    {
        for (const int signal : {SIGTERM, SIGINT, SIGHUP}) {
            (void)std::signal(signal, SIG_DFL);
        }
    }

    void hear()
    {
        requests.setHandler([this] { ++heard; });
    }

    /// What has arrived is told by the event loop.
    void runEvents(int wanted) const
    {
        const QDeadlineTimer limit(20'000);
        while (heard < wanted && !limit.hasExpired()) {
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 10);
        }
        QCoreApplication::processEvents();
    }

    SignalEndRequests requests;
    int heard = 0;
};

TEST_F(SignalEndRequestsTest, EachOfThemReachesTheHandler)
{
    int wanted = 0;
    for (const int signal : {SIGTERM, SIGINT, SIGHUP}) {
        SignalEndRequests fresh;
        fresh.setHandler([this] { ++heard; });
        (void)std::raise(signal);
        runEvents(++wanted);
        EXPECT_EQ(heard, wanted) << signal;
    }
}

TEST_F(SignalEndRequestsTest, TheHandlerIsCalledByTheEventLoopAlone)
{
    hear();
    (void)std::raise(SIGTERM);
    EXPECT_EQ(heard, 0);
    runEvents(1);
}

TEST_F(SignalEndRequestsTest, TwoAtOnceAreOneRequest)
{
    EXPECT_EXIT(
        {
            hear();
            (void)std::raise(SIGHUP);
            (void)std::raise(SIGHUP);
            (void)std::raise(SIGTERM);
            std::_Exit(0);
        },
        testing::ExitedWithCode(0),
        "");
}

TEST_F(SignalEndRequestsTest, WhoAsksOnAndOnEndsAProgramThatDoesNotGetToIt)
{
    EXPECT_EXIT(
        {
            hear();
            for (;;) {
                (void)std::raise(SIGTERM);
            }
        },
        testing::KilledBySignal(SIGTERM),
        "");
}

TEST_F(SignalEndRequestsTest, WhatIsIgnoredFromTheStartStaysSo)
{
    (void)std::signal(SIGHUP, SIG_IGN);
    hear();
    (void)std::raise(SIGHUP);
    QCoreApplication::processEvents();
    (void)std::raise(SIGTERM);
    runEvents(1);
    EXPECT_EQ(heard, 1);
}

TEST_F(SignalEndRequestsTest, BeforeAnybodyListensTheyEndTheProgram)
{
    EXPECT_EXIT((void)std::raise(SIGTERM), testing::KilledBySignal(SIGTERM), "");
}

TEST(SignalEndRequests, OnceNobodyListensAnyMoreTheyEndTheProgram)
{
    EXPECT_EXIT(
        {
            SignalEndRequests().setHandler([] {});
            (void)std::raise(SIGTERM);
        },
        testing::KilledBySignal(SIGTERM),
        "");
}

} // namespace
} // namespace tessera
