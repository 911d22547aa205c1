// SPDX-License-Identifier: MIT
#include "Platform/Linux/DBusRunningInstance.h"

#include "support/SessionBus.h"

#include <QDBusMessage>
#include <QDBusPendingCall>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <future>
#include <memory>
#include <string>
#include <vector>

namespace tessera {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr int kPatienceMs = 10000;

class DBusRunningInstanceOnABus : public testing::Test {
protected:
    void SetUp() override
    {
        ASSERT_TRUE(bus.start());
        first = std::make_unique<DBusRunningInstance>(
            bus.connection(QStringLiteral("tessera-test-first")), kPatienceMs);
    }

    void listen()
    {
        first->setHandler([this](const Url& folder) {
            handled.push_back(folder.empty() ? "the window" : folder.path());
        });
    }

    /// Another start of the program, whose main thread waits for the first one's answer.
    bool startSecond(const Url& folder)
    {
        DBusRunningInstance second(
            bus.connection(QStringLiteral("tessera-test-second")), kPatienceMs);
        auto isHandedOver = std::async(std::launch::async, [&] { return second.handOver(folder); });
        test::SessionBus::runEventsUntil([&] {
            return isHandedOver.wait_for(std::chrono::seconds(0)) == std::future_status::ready;
        });
        return isHandedOver.get();
    }

    QDBusMessage callFirst(const QString& member, const QVariantList& arguments)
    {
        QDBusMessage call = QDBusMessage::createMethodCall(
            QString::fromLatin1(DBusRunningInstance::kBusName),
            QString::fromLatin1(DBusRunningInstance::kObjectPath),
            QStringLiteral("org.freedesktop.Application"),
            member);
        call.setArguments(arguments);
        QDBusConnection caller = bus.connection(QStringLiteral("tessera-test-caller"));
        QDBusPendingCall pending = caller.asyncCall(call);
        test::SessionBus::runEventsUntil([&] { return pending.isFinished(); });
        return pending.reply();
    }

    test::SessionBus bus;
    std::unique_ptr<DBusRunningInstance> first;
    std::vector<std::string> handled;
};

TEST_F(DBusRunningInstanceOnABus, TheFirstStartHasNobodyToHandOverTo)
{
    EXPECT_FALSE(first->handOver(Url("/data", true)));
}

TEST_F(DBusRunningInstanceOnABus, ALaterStartHandsItsFolderOver)
{
    (void)first->handOver(Url());
    listen();
    EXPECT_TRUE(startSecond(Url("/data/some\xFF folder", true)));
    EXPECT_THAT(handled, ElementsAre("/data/some\xFF folder"));
}

TEST_F(DBusRunningInstanceOnABus, ALaterStartWithoutAFolderAsksForTheWindow)
{
    (void)first->handOver(Url());
    listen();
    EXPECT_TRUE(startSecond(Url()));
    EXPECT_THAT(handled, ElementsAre("the window"));
}

TEST_F(DBusRunningInstanceOnABus, WhatComesBeforeThereIsAHandlerIsKeptForIt)
{
    (void)first->handOver(Url());
    EXPECT_TRUE(startSecond(Url("/data", true)));
    EXPECT_THAT(handled, IsEmpty());
    listen();
    EXPECT_THAT(handled, ElementsAre("/data"));
}

TEST_F(DBusRunningInstanceOnABus, AProcessThatDoesNotAnswerCountsAsNone)
{
    (void)first->handOver(Url());
    listen();
    constexpr int kShortMs = 1;
    DBusRunningInstance second(bus.connection(QStringLiteral("tessera-test-second")), kShortMs);
    EXPECT_FALSE(second.handOver(Url("/data", true)));
}

TEST_F(DBusRunningInstanceOnABus, WhenTheFirstHasEndedTheNextOneIsTheFirst)
{
    (void)first->handOver(Url());
    first.reset();
    EXPECT_FALSE(startSecond(Url("/data", true)));
}

TEST_F(DBusRunningInstanceOnABus, OfSeveralFoldersTheLastIsOpened)
{
    (void)first->handOver(Url());
    listen();
    const QStringList uris{QStringLiteral("file:///a"), QStringLiteral("file:///b%20c")};
    EXPECT_EQ(
        callFirst(QStringLiteral("Open"), {uris, QVariantMap()}).type(),
        QDBusMessage::ReplyMessage);
    EXPECT_THAT(handled, ElementsAre("/b c"));
}

TEST_F(DBusRunningInstanceOnABus, CallsThatMakeNoSenseAreAnsweredWithAnError)
{
    (void)first->handOver(Url());
    listen();
    const QStringList web{QStringLiteral("https://example.org/")};
    EXPECT_EQ(
        callFirst(QStringLiteral("Open"), {web, QVariantMap()}).type(), QDBusMessage::ErrorMessage);
    EXPECT_EQ(callFirst(QStringLiteral("Open"), {}).type(), QDBusMessage::ErrorMessage);
    EXPECT_EQ(callFirst(QStringLiteral("Activate"), {5}).type(), QDBusMessage::ErrorMessage);
    EXPECT_THAT(handled, IsEmpty());
}

TEST(DBusRunningInstanceWithoutABus, EveryStartIsOnItsOwn)
{
    DBusRunningInstance alone(QDBusConnection(QStringLiteral("no such bus")), kPatienceMs);
    EXPECT_FALSE(alone.handOver(Url("/data", true)));
}

} // namespace
} // namespace tessera
