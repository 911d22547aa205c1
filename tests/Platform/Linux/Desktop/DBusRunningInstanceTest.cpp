// SPDX-License-Identifier: MIT
#include "Platform/Linux/Desktop/DBusRunningInstance.h"

#include "support/Machine/SessionBus.h"

#include <QDBusMessage>
#include <QDBusPendingCall>
#include <QRegularExpression>

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
const QString kApplication = QStringLiteral("org.freedesktop.Application");

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
        first->setHandler([this](const Url& folder, const std::string& token) {
            handled.push_back(folder.empty() ? "the window" : folder.path());
            tokens.push_back(token);
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

    void activateWith(const QString& token)
    {
        const QVariantMap data{{QStringLiteral("activation-token"), token}};
        EXPECT_EQ(callFirst(QStringLiteral("Activate"), {data}).type(), QDBusMessage::ReplyMessage);
    }

    static QDBusMessage callOfFirst(const QString& member, const QString& interface)
    {
        return QDBusMessage::createMethodCall(
            QString::fromLatin1(DBusRunningInstance::kBusName),
            QString::fromLatin1(DBusRunningInstance::kObjectPath),
            interface,
            member);
    }

    QDBusMessage callFirst(
        const QString& member,
        const QVariantList& arguments,
        const QString& interface = kApplication)
    {
        QDBusMessage call = callOfFirst(member, interface);
        call.setArguments(arguments);
        QDBusConnection caller = bus.connection(QStringLiteral("tessera-test-caller"));
        QDBusPendingCall pending = caller.asyncCall(call);
        test::SessionBus::runEventsUntil([&] { return pending.isFinished(); });
        return pending.reply();
    }

    test::SessionBus bus;
    std::unique_ptr<DBusRunningInstance> first;
    std::vector<std::string> handled;
    std::vector<std::string> tokens;
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

TEST_F(DBusRunningInstanceOnABus, ALaterStartPassesOnWhatLetsTheWindowComeToTheFront)
{
    (void)first->handOver(Url());
    listen();
    const QByteArray before = qgetenv("XDG_ACTIVATION_TOKEN");
    qputenv("XDG_ACTIVATION_TOKEN", "shell_7");
    EXPECT_TRUE(startSecond(Url()));
    qputenv("XDG_ACTIVATION_TOKEN", before);
    EXPECT_THAT(tokens, ElementsAre("shell_7"));
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

TEST_F(DBusRunningInstanceOnABus, OpeningNoFolderAsksForTheWindow)
{
    (void)first->handOver(Url());
    listen();
    callFirst(QStringLiteral("Open"), {QStringList(), QVariantMap()});
    EXPECT_THAT(handled, ElementsAre("the window"));
}

TEST_F(DBusRunningInstanceOnABus, CallsOfOtherInterfacesAreAnsweredWithAnError)
{
    (void)first->handOver(Url());
    listen();
    const QDBusMessage reply = callFirst(
        QStringLiteral("Activate"), {QVariantMap()}, QStringLiteral("org.example.Application"));
    EXPECT_EQ(reply.type(), QDBusMessage::ErrorMessage);
    EXPECT_THAT(handled, IsEmpty());
}

TEST_F(DBusRunningInstanceOnABus, CallsThatMakeNoSenseAreAnsweredWithAnError)
{
    (void)first->handOver(Url());
    listen();
    const QStringList web{QStringLiteral("https://example.org/")};
    EXPECT_EQ(
        callFirst(QStringLiteral("Open"), {web, QVariantMap()}).errorName(),
        QStringLiteral("org.freedesktop.DBus.Error.InvalidArgs"));
    EXPECT_EQ(callFirst(QStringLiteral("Open"), {}).type(), QDBusMessage::ErrorMessage);
    EXPECT_EQ(callFirst(QStringLiteral("Activate"), {5}).type(), QDBusMessage::ErrorMessage);
    EXPECT_THAT(handled, IsEmpty());
}

TEST_F(DBusRunningInstanceOnABus, AnnouncesWhatItAnswersAndNothingElse)
{
    (void)first->handOver(Url());
    listen();
    const QString all = callFirst(
                            QStringLiteral("Introspect"),
                            {},
                            QStringLiteral("org.freedesktop.DBus.Introspectable"))
                            .arguments()
                            .value(0)
                            .toString();
    const QString ours
        = all.section(QStringLiteral("<interface name=\"org.freedesktop.Application\">"), 1)
              .section(QStringLiteral("</interface>"), 0, 0);
    QRegularExpressionMatchIterator method
        = QRegularExpression(QStringLiteral("<method name=\"(\\w+)\"")).globalMatch(ours);
    QStringList names;
    while (method.hasNext()) {
        names << method.next().captured(1);
    }
    EXPECT_EQ(names, QStringList({QStringLiteral("Activate"), QStringLiteral("Open")}));
}

TEST_F(DBusRunningInstanceOnABus, ALaterStartsTokenOfTheDesktopComesWithIt)
{
    (void)first->handOver(Url());
    listen();
    const QString longest(256, QLatin1Char('~'));
    activateWith(QStringLiteral("shell_1-2 TIME3"));
    activateWith(longest);
    EXPECT_THAT(tokens, ElementsAre("shell_1-2 TIME3", longest.toStdString()));
}

TEST_F(DBusRunningInstanceOnABus, WhatIsNoTokenIsNotTakenForOne)
{
    (void)first->handOver(Url());
    listen();
    activateWith(QString(257, QLatin1Char('x')));
    activateWith(QStringLiteral("line\n"));
    activateWith(QStringLiteral("delete\x7F"));
    activateWith(QStringLiteral("caf\u00E9"));
    EXPECT_THAT(tokens, ElementsAre("", "", "", ""));
}

TEST_F(DBusRunningInstanceOnABus, CallsLeaveTheEnvironmentAlone)
{
    const QByteArray before = qgetenv("XDG_ACTIVATION_TOKEN");
    (void)first->handOver(Url());
    listen();
    activateWith(QStringLiteral("token"));
    EXPECT_EQ(qgetenv("XDG_ACTIVATION_TOKEN"), before);
}

TEST_F(DBusRunningInstanceOnABus, WhenTheFirstHasGivenUpTheNextOneIsTheFirst)
{
    (void)first->handOver(Url());
    listen();
    first->giveUp();
    EXPECT_FALSE(startSecond(Url("/data", true)));
    EXPECT_THAT(handled, IsEmpty());
}

TEST_F(DBusRunningInstanceOnABus, ACallOnItsWayWhenItGivesUpIsForTheNextStart)
{
    (void)first->handOver(Url());
    listen();
    QDBusConnection caller = bus.connection(QStringLiteral("tessera-test-caller"));
    QDBusMessage activate = callOfFirst(QStringLiteral("Activate"), kApplication);
    activate << QVariantMap();
    QDBusPendingCall pending = caller.asyncCall(activate);
    // Answered by the bus's own thread, which has taken the call before by then.
    (void)caller.call(
        callOfFirst(QStringLiteral("Ping"), QStringLiteral("org.freedesktop.DBus.Peer")));
    first->giveUp();
    test::SessionBus::runEventsUntil([&] { return pending.isFinished(); });
    EXPECT_TRUE(pending.isError());
    EXPECT_THAT(handled, IsEmpty());
}

TEST(DBusRunningInstanceWithoutABus, EveryStartIsOnItsOwn)
{
    DBusRunningInstance alone(QDBusConnection(QStringLiteral("no such bus")), kPatienceMs);
    EXPECT_FALSE(alone.handOver(Url("/data", true)));
}

} // namespace
} // namespace tessera
