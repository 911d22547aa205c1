// SPDX-License-Identifier: MIT
#include "Platform/Linux/Desktop/DBusWorkspace.h"

#include "Base/Url.h"
#include "support/Fakes/FakeMainThread.h"
#include "support/Machine/SessionBus.h"

#include <QDBusConnection>
#include <QDBusError>
#include <QDBusMessage>
#include <QDBusVirtualObject>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <optional>
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
        if (refuses) {
            return connection.send(
                message.createErrorReply(QDBusError::UnknownMethod, QStringLiteral("No.")));
        }
        calls.push_back(
            message.interface().toStdString() + '.' + message.member().toStdString() + ' '
            + message.arguments().at(0).toStringList().join(QLatin1Char(' ')).toStdString());
        return connection.send(message.createReply());
    }

    std::vector<std::string> calls;
    bool refuses = false;
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
            [this](const std::string& url, const OpenCompletion& completionHandler) {
                m_opened.push_back(url);
                completionHandler(m_opens);
            },
            m_mainThread,
            {}};
    }

    test::SessionBus m_sessionBus;
    std::unique_ptr<QDBusConnection> m_bus;
    FakeFileManager m_fileManager;
    /// What is heard of the item's being shown.
    std::optional<bool> isShown(const Url& item)
    {
        DBusWorkspace workspace = this->workspace();
        std::optional<bool> answer;
        workspace.reveal(item, [&answer](bool isShown) { answer = isShown; });
        test::SessionBus::runEventsUntil([&answer] { return answer.has_value(); });
        return answer;
    }

    test::FakeMainThread m_mainThread;
    std::vector<std::string> m_opened;
    bool m_opens = true;
};

TEST_F(DBusWorkspaceOnABus, RevealAsksTheFileManagerToShowTheItem)
{
    startFileManager();
    EXPECT_EQ(isShown(Url("/home/me/a \xFF", false)), true);
    EXPECT_THAT(
        m_fileManager.calls,
        ElementsAre("org.freedesktop.FileManager1.ShowItems file:///home/me/a%20%FF"));
    EXPECT_THAT(m_opened, IsEmpty());
}

TEST_F(DBusWorkspaceOnABus, RevealAsksTheFileManagerToOpenAFolder)
{
    startFileManager();
    EXPECT_EQ(isShown(Url("/home/me/a \xFF", true)), true);
    EXPECT_THAT(
        m_fileManager.calls,
        ElementsAre("org.freedesktop.FileManager1.ShowFolders file:///home/me/a%20%FF/"));
    EXPECT_THAT(m_opened, IsEmpty());
}

TEST_F(DBusWorkspaceOnABus, RevealDoesNotWaitForTheFileManager)
{
    startFileManager();
    DBusWorkspace workspace = this->workspace();
    workspace.reveal(Url("/home/me/a", false), [](bool) {});
    EXPECT_THAT(m_fileManager.calls, IsEmpty());
}

TEST_F(DBusWorkspaceOnABus, WithoutAFileManagerTheParentFolderIsOpened)
{
    EXPECT_EQ(isShown(Url("/home/me/a", false)), true);
    EXPECT_THAT(m_opened, ElementsAre("file:///home/me/"));
}

TEST_F(DBusWorkspaceOnABus, WithoutAFileManagerAFolderIsOpenedItself)
{
    EXPECT_EQ(isShown(Url("/home/me", true)), true);
    EXPECT_THAT(m_opened, ElementsAre("file:///home/me/"));
}

TEST_F(DBusWorkspaceOnABus, AFileManagerThatRefusesIsNone)
{
    startFileManager();
    m_fileManager.refuses = true;
    EXPECT_EQ(isShown(Url("/home/me", true)), true);
    EXPECT_THAT(m_opened, ElementsAre("file:///home/me/"));
}

TEST_F(DBusWorkspaceOnABus, NothingIsShownWhenNothingOpensFoldersEither)
{
    m_opens = false;
    EXPECT_EQ(isShown(Url("/home/me", true)), false);
    EXPECT_EQ(isShown(Url("/home/me/a", false)), false);
}

TEST_F(DBusWorkspaceOnABus, AWorkspaceMayGoBeforeItsCallIsAnswered)
{
    bool isHeard = false;
    workspace().reveal(Url("/home/me/a", false), [&isHeard](bool) { isHeard = true; });
    EXPECT_EQ(isShown(Url("/later/a", false)), true);
    EXPECT_THAT(m_opened, ElementsAre("file:///later/"));
    EXPECT_FALSE(isHeard);
}

TEST_F(DBusWorkspaceOnABus, AWorkspaceMayGoBeforeItsOpenerAnswers)
{
    OpenCompletion answer;
    bool isHeard = false;
    {
        DBusWorkspace workspace(
            *m_bus,
            [&answer](const std::string&, const OpenCompletion& completionHandler) {
                answer = completionHandler;
            },
            m_mainThread,
            {});
        workspace.openUrl("file:///home/", [&isHeard](bool) { isHeard = true; });
    }
    answer(true);
    EXPECT_FALSE(isHeard);
}

/// Whose opener answers at once.
class DBusWorkspaceWithoutABus : public testing::Test {
protected:
    bool isShown(const Url& item)
    {
        bool answer = false;
        m_workspace.reveal(item, [&answer](bool isShown) { answer = isShown; });
        return answer;
    }

    bool isOpened(const char* url)
    {
        bool answer = false;
        m_workspace.openUrl(url, [&answer](bool isOpened) { answer = isOpened; });
        return answer;
    }

    std::vector<std::string> m_opened;
    bool m_opens = true;
    test::FakeMainThread m_mainThread;
    DBusWorkspace m_workspace{
        QDBusConnection(QStringLiteral("no such bus")),
        [this](const std::string& url, const OpenCompletion& completionHandler) {
            m_opened.push_back(url);
            completionHandler(m_opens);
        },
        m_mainThread,
        {[](const std::vector<ItemToRecycle>& items) {
             RecycleResult result;
             result.error = std::to_string(items.size());
             return result;
         },
         [](const FileIdentity& file, const std::vector<Url>& places) {
             RecycleResult result;
             result.error = std::to_string(file.inode) + " of " + std::to_string(places.size());
             return result;
         },
         [](const PutBackRequest& request) {
             PutBackResult result;
             result.place = request.item.from;
             return result;
         }}};
};

TEST_F(DBusWorkspaceWithoutABus, RevealOpensTheFolderOrTheOneThatHoldsTheFile)
{
    EXPECT_TRUE(isShown(Url("/a", false)));
    EXPECT_TRUE(isShown(Url("/home/me", true)));
    EXPECT_THAT(m_opened, ElementsAre("file:///", "file:///home/me/"));
}

TEST_F(DBusWorkspaceWithoutABus, RevealFailsWhenNothingOpensFolders)
{
    m_opens = false;
    EXPECT_FALSE(isShown(Url("/a", false)));
}

TEST_F(DBusWorkspaceWithoutABus, RevealOfNothingFails)
{
    EXPECT_FALSE(isShown(Url()));
    EXPECT_THAT(m_opened, IsEmpty());
}

TEST_F(DBusWorkspaceWithoutABus, OpensTheTrash)
{
    EXPECT_TRUE(isOpened("trash:///"));
    EXPECT_THAT(m_opened, ElementsAre("trash:///"));
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

TEST_F(DBusWorkspaceWithoutABus, AFileIsMovedByItsIdentity)
{
    std::string told;
    m_workspace.recycleFile(
        {1, 77}, {Url("/a.part", false), Url("/a", false)}, [&](const RecycleResult& result) {
            told = result.error;
        });
    m_mainThread.runUntil([&] { return !told.empty(); });
    EXPECT_EQ(told, "77 of 2");
}

TEST_F(DBusWorkspaceWithoutABus, TellsWhereAnItemWasPutBack)
{
    PutBackRequest request;
    request.item.from = Url("/a", false);
    Url place;
    m_workspace.putBack(request, [&place](const PutBackResult& result) { place = result.place; });
    EXPECT_TRUE(place.empty()) << "not before the call has returned";
    m_mainThread.runUntil([&place] { return !place.empty(); });
    EXPECT_EQ(place, Url("/a", false));
}

TEST_F(DBusWorkspaceWithoutABus, OpensWebAndFileUrlsAlone)
{
    EXPECT_TRUE(isOpened("https://example.org/help"));
    EXPECT_TRUE(isOpened("file:///home/"));
    for (const char* url : {"", "--help", "/home", "mailto:a@b", "file://host/a"}) {
        EXPECT_FALSE(isOpened(url)) << url;
    }
    EXPECT_THAT(m_opened, ElementsAre("https://example.org/help", "file:///home/"));
}

TEST_F(DBusWorkspaceWithoutABus, SaysWhenAUrlIsNotOpened)
{
    m_opens = false;
    EXPECT_FALSE(isOpened("https://example.org/help"));
}

} // namespace
} // namespace tessera
