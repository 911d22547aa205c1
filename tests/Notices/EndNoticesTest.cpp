// SPDX-License-Identifier: MIT
#include "Notices/EndNotices.h"

#include "support/BecomesActive.h"
#include "support/Fakes/FakeNotifications.h"

#include <QApplication>
#include <QString>
#include <QWidget>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <optional>
#include <string>

namespace tessera {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const QString kTitle = QStringLiteral("Done");
const QString kText = QStringLiteral("a\uFFFD <b>");

class EndNoticesTest : public testing::Test {
protected:
    void endWorkAfter(double seconds)
    {
        const double begun = notices->now();
        time += seconds;
        notices->workEnded(begun, kTitle, kText);
    }

    double time = 1000;
    test::FakeNotifications notifications;
    std::optional<EndNotices> notices{std::in_place, notifications, [this] { return time; }};
};

TEST_F(EndNoticesTest, LongWorkIsToldOfInItsWords)
{
    endWorkAfter(60);

    EXPECT_THAT(notifications.shown, ElementsAre(Notification{"Done", "a\uFFFD <b>"}));
}

TEST_F(EndNoticesTest, TenSecondsAreLong)
{
    endWorkAfter(10);

    EXPECT_EQ(notifications.shown.size(), 1U);
}

TEST_F(EndNoticesTest, LessIsNotToldOf)
{
    endWorkAfter(9.9);

    EXPECT_THAT(notifications.shown, IsEmpty());
}

TEST_F(EndNoticesTest, NothingIsToldWhileAWindowIsInFront)
{
    QWidget window;
    window.show();
    ASSERT_TRUE(test::becomesActive(window));
    endWorkAfter(60);

    EXPECT_THAT(notifications.shown, IsEmpty());
}

TEST_F(EndNoticesTest, WhatWasToldGoesOnceAWindowIsInFront)
{
    endWorkAfter(60);
    QWidget window;
    window.show();
    ASSERT_TRUE(test::becomesActive(window));

    EXPECT_EQ(notifications.withdrawals, 1);
}

TEST_F(EndNoticesTest, WhatWasToldStaysWhenTheLastWindowGoes)
{
    endWorkAfter(60);
    emit qApp->focusWindowChanged(nullptr);

    EXPECT_EQ(notifications.withdrawals, 0);
}

TEST_F(EndNoticesTest, AClickIsHeardWithItsToken)
{
    std::string heard;
    notices->setHandler([&heard](const std::string& token) { heard = token; });
    notifications.clicked("token");

    EXPECT_EQ(heard, "token");
}

TEST_F(EndNoticesTest, NobodyHearsAClickAfterItsEnd)
{
    notices->setHandler([](const std::string& /*token*/) {});
    notices.reset();

    EXPECT_FALSE(notifications.clicked);
}

} // namespace
} // namespace tessera
