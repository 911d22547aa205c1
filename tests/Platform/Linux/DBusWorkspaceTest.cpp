// SPDX-License-Identifier: MIT
#include "Platform/Linux/DBusWorkspace.h"

#include "Model/Url.h"
#include "support/FakeMainThread.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QDeadlineTimer>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryFile>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace tessera {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const QString kClientName = QStringLiteral("tessera-test-client");
const QString kFileManagerName = QStringLiteral("tessera-test-file-manager");

/// Remembers what it is asked to show.
class FakeFileManager final : public QDBusVirtualObject {
public:
    QString introspect(const QString& /*path*/) const override { return {}; }

    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override
    {
        calls.push_back(
            message.interface().toStdString() + '.' + message.member().toStdString() + ' '
            + message.arguments().at(0).toStringList().join(QLatin1Char(' ')).toStdString());
        return connection.send(message.createReply());
    }

    std::vector<std::string> calls;
};

/// A session bus on which nothing is started when it is asked for: the file manager that is
/// installed here must not answer.
const QByteArray kBusConfiguration = R"(<busconfig>
  <type>session</type>
  <listen>unix:tmpdir=/tmp</listen>
  <policy context="default">
    <allow send_destination="*" eavesdrop="true"/>
    <allow eavesdrop="true"/>
    <allow own="*"/>
  </policy>
</busconfig>)";

/// A bus of the test's own, so that no real file manager is asked.
class DBusWorkspaceOnABus : public testing::Test {
protected:
    void SetUp() override
    {
        const QString daemon = QStandardPaths::findExecutable(QStringLiteral("dbus-daemon"));
        if (daemon.isEmpty()) {
            GTEST_SKIP() << "dbus-daemon is not installed";
        }
        ASSERT_TRUE(m_configuration.open());
        m_configuration.write(kBusConfiguration);
        m_configuration.close();
        m_daemon.start(
            daemon,
            {QStringLiteral("--config-file=") + m_configuration.fileName(),
             QStringLiteral("--nofork"),
             QStringLiteral("--print-address")});
        ASSERT_TRUE(m_daemon.waitForReadyRead());
        m_address = QString::fromUtf8(m_daemon.readLine()).trimmed();
        m_bus = std::make_unique<QDBusConnection>(
            QDBusConnection::connectToBus(m_address, kClientName));
        ASSERT_TRUE(m_bus->isConnected());
    }

    void TearDown() override
    {
        m_bus.reset();
        QDBusConnection::disconnectFromBus(kClientName);
        QDBusConnection::disconnectFromBus(kFileManagerName);
        m_daemon.kill();
        m_daemon.waitForFinished();
    }

    void startFileManager()
    {
        QDBusConnection bus = QDBusConnection::connectToBus(m_address, kFileManagerName);
        ASSERT_TRUE(bus.registerVirtualObject(
            QStringLiteral("/org/freedesktop/FileManager1"), &m_fileManager));
        ASSERT_TRUE(bus.registerService(QStringLiteral("org.freedesktop.FileManager1")));
    }

    DBusWorkspace workspace()
    {
        return {
            *m_bus,
            [this](const std::string& url) {
                m_opened.push_back(url);
                return true;
            },
            m_mainThread,
            [](const std::vector<Url>&) { return RecycleResult(); }};
    }

    template <typename Condition>
    static void runEventsUntil(Condition isMet)
    {
        const QDeadlineTimer deadline(10000);
        while (!isMet() && !deadline.hasExpired()) {
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 10);
        }
    }

    QTemporaryFile m_configuration;
    QProcess m_daemon;
    QString m_address;
    std::unique_ptr<QDBusConnection> m_bus;
    FakeFileManager m_fileManager;
    test::FakeMainThread m_mainThread;
    std::vector<std::string> m_opened;
};

TEST_F(DBusWorkspaceOnABus, RevealAsksTheFileManagerToShowTheItem)
{
    startFileManager();
    DBusWorkspace workspace = this->workspace();
    EXPECT_TRUE(workspace.reveal(Url("/home/me/a \xFF", false)));
    runEventsUntil([this] { return !m_fileManager.calls.empty(); });
    EXPECT_THAT(
        m_fileManager.calls,
        ElementsAre("org.freedesktop.FileManager1.ShowItems file:///home/me/a%20%FF"));
    EXPECT_THAT(m_opened, IsEmpty());
}

TEST_F(DBusWorkspaceOnABus, RevealDoesNotWaitForTheFileManager)
{
    startFileManager();
    DBusWorkspace workspace = this->workspace();
    EXPECT_TRUE(workspace.reveal(Url("/home/me/a", false)));
    EXPECT_THAT(m_fileManager.calls, IsEmpty());
}

TEST_F(DBusWorkspaceOnABus, WithoutAFileManagerTheParentFolderIsOpened)
{
    DBusWorkspace workspace = this->workspace();
    EXPECT_TRUE(workspace.reveal(Url("/home/me/a", false)));
    runEventsUntil([this] { return !m_opened.empty(); });
    EXPECT_THAT(m_opened, ElementsAre("file:///home/me/"));
}

TEST_F(DBusWorkspaceOnABus, AWorkspaceMayGoBeforeItsCallIsAnswered)
{
    (void)workspace().reveal(Url("/home/me/a", false));
    DBusWorkspace later = workspace();
    EXPECT_TRUE(later.reveal(Url("/later/a", false)));
    runEventsUntil([this] { return !m_opened.empty(); });
    EXPECT_THAT(m_opened, ElementsAre("file:///later/"));
}

class DBusWorkspaceWithoutABus : public testing::Test {
protected:
    std::vector<std::string> m_opened;
    bool m_opens = true;
    test::FakeMainThread m_mainThread;
    DBusWorkspace m_workspace{
        QDBusConnection(QStringLiteral("no such bus")),
        [this](const std::string& url) {
            m_opened.push_back(url);
            return m_opens;
        },
        m_mainThread,
        [](const std::vector<Url>& urls) {
            RecycleResult result;
            result.error = std::to_string(urls.size());
            return result;
        }};
};

TEST_F(DBusWorkspaceWithoutABus, RevealOpensTheParentFolder)
{
    EXPECT_TRUE(m_workspace.reveal(Url("/a", false)));
    EXPECT_TRUE(m_workspace.reveal(Url("/home/me", true)));
    EXPECT_THAT(m_opened, ElementsAre("file:///", "file:///home/"));
}

TEST_F(DBusWorkspaceWithoutABus, RevealFailsWhenNothingOpensFolders)
{
    m_opens = false;
    EXPECT_FALSE(m_workspace.reveal(Url("/a", false)));
}

TEST_F(DBusWorkspaceWithoutABus, RevealOfNothingFails)
{
    EXPECT_FALSE(m_workspace.reveal(Url()));
    EXPECT_THAT(m_opened, IsEmpty());
}

TEST_F(DBusWorkspaceWithoutABus, WhatBecameOfTheItemsIsToldOnTheMainThread)
{
    std::string told;
    m_workspace.recycleURLs({Url("/a", false), Url("/b", true)}, [&](const RecycleResult& result) {
        told = result.error;
    });
    EXPECT_EQ(told, "");
    m_mainThread.runUntil([&] { return !told.empty(); });
    EXPECT_EQ(told, "2");
}

TEST_F(DBusWorkspaceWithoutABus, OpensWebAndFileUrlsAlone)
{
    EXPECT_TRUE(m_workspace.openUrl("https://example.org/help"));
    EXPECT_TRUE(m_workspace.openUrl("file:///home/"));
    for (const char* url : {"", "--help", "/home", "mailto:a@b", "file://host/a"}) {
        EXPECT_FALSE(m_workspace.openUrl(url)) << url;
    }
    EXPECT_THAT(m_opened, ElementsAre("https://example.org/help", "file:///home/"));
}

} // namespace
} // namespace tessera
