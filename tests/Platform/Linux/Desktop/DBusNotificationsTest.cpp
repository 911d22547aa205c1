// SPDX-License-Identifier: MIT
#include "Platform/Linux/Desktop/DBusNotifications.h"

#include "support/Machine/SessionBus.h"

#include <QDBusArgument>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QStringList>
#include <QVariantMap>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace tessera {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const QString kService = QStringLiteral("org.freedesktop.Notifications");
const QString kPath = QStringLiteral("/org/freedesktop/Notifications");

/// A desktop's service; it answers when and what the test says.
class FakeService final : public QDBusVirtualObject {
public:
    explicit FakeService(QDBusConnection bus)
        : m_bus(std::move(bus))
    {
        m_bus.registerVirtualObject(kPath, this);
        m_bus.registerService(kService);
    }

    QString introspect(const QString& /*path*/) const override { return {}; }

    bool handleMessage(const QDBusMessage& message, const QDBusConnection& /*connection*/) override
    {
        if (message.member() == QStringLiteral("GetCapabilities")) {
            ++questions;
            if (answersQuestions) {
                m_bus.send(message.createReply(QVariant(capabilities)));
            }
        } else if (message.member() == QStringLiteral("Notify")) {
            calls.push_back(message);
            if (answersCalls) {
                answer(number);
            }
        } else if (message.member() == QStringLiteral("CloseNotification")) {
            closed.push_back(message.arguments().first().toUInt());
        }
        return true;
    }

    void answer(const QVariant& value) { m_bus.send(calls.back().createReply(value)); }

    void tell(const QString& signal, const QVariantList& arguments)
    {
        QDBusMessage message = QDBusMessage::createSignal(kPath, kService, signal);
        message.setArguments(arguments);
        m_bus.send(message);
    }

    /// What was shown, as the service got it.
    std::string text(std::size_t call) const
    {
        return calls.at(call).arguments().at(4).toString().toStdString();
    }

    QStringList capabilities{QStringLiteral("body"), QStringLiteral("actions")};
    bool answersQuestions = true;
    bool answersCalls = true;
    unsigned number = 7;
    int questions = 0;
    std::vector<QDBusMessage> calls;
    std::vector<unsigned> closed;

private:
    QDBusConnection m_bus;
};

class DBusNotificationsTest : public testing::Test {
protected:
    void SetUp() override
    {
        ASSERT_TRUE(m_sessionBus.start());
        service = std::make_unique<FakeService>(m_sessionBus.connection(QStringLiteral("service")));
        notifications = std::make_unique<DBusNotifications>(program());
        notifications->setHandler([this](const std::string& token) { clicks.push_back(token); });
    }

    QDBusConnection program() { return m_sessionBus.connection(QStringLiteral("program")); }

    void showOne(const std::string& text = "text")
    {
        notifications->show({"title", text});
        waitFor([this] { return !service->calls.empty(); });
        settle();
    }

    template <typename Condition>
    static void waitFor(Condition isMet)
    {
        test::SessionBus::runEventsUntil(isMet);
    }

    /// All that was sent before has come: messages of a connection keep their order, and a call of
    /// each connection's own comes last.
    void settle()
    {
        for (const char* const name : {"program", "service", "program"}) {
            const QDBusConnection bus = m_sessionBus.connection(QString::fromLatin1(name));
            (void)bus.interface()->isServiceRegistered(kService);
            QCoreApplication::processEvents();
        }
    }

    /// Goes there and back after all that the service has said.
    void hearAll()
    {
        service->tell(QStringLiteral("ActionInvoked"), {0U, QStringLiteral("default")});
        settle();
    }

    /// Another process has the service's name, and the program has heard of it.
    void restartService()
    {
        QDBusConnection first = m_sessionBus.connection(QStringLiteral("service"));
        first.unregisterObject(kPath);
        first.unregisterService(kService);
        service = std::make_unique<FakeService>(m_sessionBus.connection(QStringLiteral("second")));
        hearAll();
    }

    std::unique_ptr<FakeService> service;
    std::unique_ptr<DBusNotifications> notifications;
    std::vector<std::string> clicks;

private:
    test::SessionBus m_sessionBus;
};

TEST_F(DBusNotificationsTest, ShowsTheWordsUnderTheProgramsNameAndEntry)
{
    showOne("some text");

    ASSERT_EQ(service->calls.size(), 1U);
    const QVariantList arguments = service->calls.front().arguments();
    EXPECT_EQ(arguments.at(0).toString().toStdString(), "Tessera");
    EXPECT_EQ(arguments.at(2).toString().toStdString(), "tessera");
    EXPECT_EQ(arguments.at(3).toString().toStdString(), "title");
    EXPECT_EQ(arguments.at(4).toString().toStdString(), "some text");
    const auto hints = qdbus_cast<QVariantMap>(arguments.at(6));
    EXPECT_EQ(hints.value(QStringLiteral("desktop-entry")).toString().toStdString(), "tessera");
}

TEST_F(DBusNotificationsTest, HasTheSignatureThatServicesExpect)
{
    showOne();

    EXPECT_EQ(service->calls.at(0).signature().toStdString(), "susssasa{sv}i");
}

TEST_F(DBusNotificationsTest, WhatLooksLikeMarkupIsEscapedForAServiceThatKnowsMarkup)
{
    service->capabilities << QStringLiteral("body-markup");
    showOne("<b>a</b> & <a href=\"x\">");

    EXPECT_EQ(service->text(0), "&lt;b&gt;a&lt;/b&gt; &amp; &lt;a href=&quot;x&quot;&gt;");
}

TEST_F(DBusNotificationsTest, ForOthersTheTextStaysAsItIs)
{
    showOne("<b>a</b> &");

    EXPECT_EQ(service->text(0), "<b>a</b> &");
}

TEST_F(DBusNotificationsTest, ServicesWithoutActionsAreAskedForNone)
{
    service->capabilities = QStringList{QStringLiteral("body")};
    showOne();

    EXPECT_TRUE(service->calls.at(0).arguments().at(5).toStringList().isEmpty());
}

TEST_F(DBusNotificationsTest, TheNextReplacesTheOneBefore)
{
    showOne();
    notifications->show({"title", "next"});
    waitFor([this] { return service->calls.size() == 2; });

    ASSERT_EQ(service->calls.size(), 2U);
    EXPECT_EQ(service->calls.front().arguments().at(1).toUInt(), 0U);
    EXPECT_EQ(service->calls.back().arguments().at(1).toUInt(), 7U);
}

TEST_F(DBusNotificationsTest, TakesAwayWhatIsShown)
{
    showOne();
    notifications->withdraw();
    waitFor([this] { return !service->closed.empty(); });

    EXPECT_THAT(service->closed, ElementsAre(7U));
}

TEST_F(DBusNotificationsTest, TakesItAwayOnce)
{
    showOne();
    notifications->withdraw();
    notifications->withdraw();
    waitFor([this] { return !service->closed.empty(); });
    settle();

    EXPECT_THAT(service->closed, ElementsAre(7U));
}

TEST_F(DBusNotificationsTest, WhatTheServiceHasNotTakenInYetGoesWithItsAnswer)
{
    service->answersCalls = false;
    showOne();
    notifications->withdraw();
    service->answer(9U);
    waitFor([this] { return !service->closed.empty(); });

    EXPECT_THAT(service->closed, ElementsAre(9U));
}

TEST_F(DBusNotificationsTest, WithdrawnBeforeTheServiceIsKnownNothingIsShown)
{
    notifications->show({"title", "text"});
    notifications->withdraw();
    waitFor([this] { return service->questions == 1; });
    settle();

    EXPECT_THAT(service->calls, IsEmpty());
}

TEST_F(DBusNotificationsTest, OfSeveralThatWaitForAnAnswerTheLastIsShown)
{
    service->answersCalls = false;
    showOne();
    notifications->show({"title", "second"});
    notifications->show({"title", "third"});
    service->answer(9U);
    waitFor([this] { return service->calls.size() == 2; });

    ASSERT_EQ(service->calls.size(), 2U);
    EXPECT_EQ(service->text(1), "third");
    EXPECT_EQ(service->calls.back().arguments().at(1).toUInt(), 9U);
}

TEST_F(DBusNotificationsTest, AClickIsHeardWithTheTokenForTheWindow)
{
    showOne();
    service->tell(QStringLiteral("ActivationToken"), {7U, QStringLiteral("token")});
    service->tell(QStringLiteral("ActionInvoked"), {7U, QStringLiteral("default")});
    waitFor([this] { return !clicks.empty(); });

    EXPECT_THAT(clicks, ElementsAre("token"));
}

TEST_F(DBusNotificationsTest, WhatIsNoTokenIsLeftOut)
{
    showOne();
    service->tell(QStringLiteral("ActivationToken"), {7U, QString(257, QLatin1Char('x'))});
    service->tell(QStringLiteral("ActionInvoked"), {7U, QStringLiteral("default")});
    waitFor([this] { return !clicks.empty(); });

    EXPECT_THAT(clicks, ElementsAre(""));
}

TEST_F(DBusNotificationsTest, ClicksOnOthersAreNotForThisProgram)
{
    showOne();
    service->tell(QStringLiteral("ActionInvoked"), {8U, QStringLiteral("default")});
    service->tell(QStringLiteral("ActionInvoked"), {7U, QStringLiteral("other")});
    service->tell(QStringLiteral("ActionInvoked"), {7U, QStringLiteral("default")});
    waitFor([this] { return !clicks.empty(); });

    EXPECT_EQ(clicks.size(), 1U);
}

TEST_F(DBusNotificationsTest, WhatTheUserClosedIsNeitherTakenAwayNorReplaced)
{
    showOne();
    service->tell(QStringLiteral("NotificationClosed"), {7U, 2U});
    hearAll();
    notifications->withdraw();
    notifications->show({"title", "next"});
    waitFor([this] { return service->calls.size() == 2; });

    EXPECT_THAT(service->closed, IsEmpty());
    EXPECT_EQ(service->calls.back().arguments().at(1).toUInt(), 0U);
}

TEST_F(DBusNotificationsTest, AnotherProgramCannotClickForTheUser)
{
    showOne();
    QDBusMessage lie = QDBusMessage::createSignal(kPath, kService, QStringLiteral("ActionInvoked"));
    lie << 7U << QStringLiteral("default");
    QDBusConnection liar = program();
    liar.send(lie);
    hearAll();

    EXPECT_THAT(clicks, IsEmpty());
}

TEST_F(DBusNotificationsTest, ANumberOfAServiceThatIsGoneIsForgotten)
{
    showOne();
    restartService();
    notifications->withdraw();
    notifications->show({"title", "next"});
    waitFor([this] { return !service->calls.empty(); });

    EXPECT_THAT(service->closed, IsEmpty());
    EXPECT_EQ(service->calls.at(0).arguments().at(1).toUInt(), 0U);
}

TEST_F(DBusNotificationsTest, AnAnswerThatIsNoNumberIsTakenForNone)
{
    service->answersCalls = false;
    showOne();
    service->answer(QStringLiteral("seven"));
    settle();
    notifications->withdraw();
    notifications->show({"title", "next"});
    waitFor([this] { return service->calls.size() == 2; });

    EXPECT_THAT(service->closed, IsEmpty());
    EXPECT_EQ(service->calls.back().arguments().at(1).toUInt(), 0U);
}

TEST_F(DBusNotificationsTest, AServiceThatNeverAnswersIsAskedAgainAfterTheTimeLimit)
{
    constexpr int kShortMs = 50;
    service->answersQuestions = false;
    notifications = std::make_unique<DBusNotifications>(program(), kShortMs);
    notifications->show({"title", "first"});
    waitFor([this] { return service->questions == 1; });
    service->answersQuestions = true;
    waitFor([this] {
        notifications->show({"title", "later"});
        return !service->calls.empty();
    });

    EXPECT_EQ(service->text(0), "later");
}

TEST_F(DBusNotificationsTest, MayEndWhileTheServiceOwesItAnAnswer)
{
    service->answersCalls = false;
    showOne();
    notifications.reset();
    service->answer(9U);
    settle();

    EXPECT_THAT(service->closed, IsEmpty());
}

TEST(DBusNotificationsWithoutABus, ShowsNothing)
{
    DBusNotifications notifications{QDBusConnection(QString())};
    notifications.show({"title", "text"});
    notifications.withdraw();

    EXPECT_FALSE(QDBusConnection(QString()).isConnected());
}

} // namespace
} // namespace tessera
