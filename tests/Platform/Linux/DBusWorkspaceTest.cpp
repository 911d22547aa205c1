// SPDX-License-Identifier: MIT
#include "Platform/Linux/DBusWorkspace.h"

#include "Model/Url.h"
#include "support/FakeMainThread.h"
#include "support/SessionBus.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVirtualObject>

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

/// A bus of the test's own, so that no real file manager is asked.
class DBusWorkspaceOnABus : public testing::Test {
protected:
    void SetUp() override
    {
        ASSERT_TRUE(m_sessionBus.start());
        m_bus = std::make_unique<QDBusConnection>(m_sessionBus.connection(kClientName));
        ASSERT_TRUE(m_bus->isConnected());
    }

    void startFileManager()
    {
        QDBusConnection bus = m_sessionBus.connection(kFileManagerName);
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

    test::SessionBus m_sessionBus;
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
    test::SessionBus::runEventsUntil([this] { return !m_fileManager.calls.empty(); });
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
    test::SessionBus::runEventsUntil([this] { return !m_opened.empty(); });
    EXPECT_THAT(m_opened, ElementsAre("file:///home/me/"));
}

TEST_F(DBusWorkspaceOnABus, AWorkspaceMayGoBeforeItsCallIsAnswered)
{
    (void)workspace().reveal(Url("/home/me/a", false));
    DBusWorkspace later = workspace();
    EXPECT_TRUE(later.reveal(Url("/later/a", false)));
    test::SessionBus::runEventsUntil([this] { return !m_opened.empty(); });
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
