// SPDX-License-Identifier: MIT
#include "MainWindow/FolderDrop.h"

#include "support/Fakes/FakeTreeViewServices.h"

#include <QApplication>
#include <QDropEvent>
#include <QMimeData>
#include <QWidget>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tessera {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class FolderDropTest : public testing::Test {
protected:
    FolderDropTest()
    {
        QObject::connect(&drop, &FolderDrop::dropped, &drop, [this](const Url& folder) {
            EXPECT_TRUE(folder.isDirectory());
            dropped.push_back(folder.path());
        });
    }

    /// Whether the window takes what is dragged onto it and let go.
    bool dragAndDrop(const QByteArray& urls)
    {
        QMimeData data;
        data.setData(QStringLiteral("text/uri-list"), urls);
        const Qt::DropActions actions = Qt::CopyAction | Qt::MoveAction;
        QDragEnterEvent enter({5, 5}, actions, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&window, &enter);
        QDropEvent release({5, 5}, actions, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&window, &release);
        EXPECT_EQ(enter.isAccepted(), release.isAccepted());
        action = release.dropAction();
        return release.isAccepted();
    }

    test::FakeTreeViewServices services;
    QWidget window;
    FolderDrop drop{window, WithTimeLimit<ResourceValues>(services.resourceValues)};
    std::vector<std::string> dropped;
    Qt::DropAction action = Qt::IgnoreAction;
};

TEST_F(FolderDropTest, AFolderIsTaken)
{
    services.resourceValues.directories = {"/home/anna/Music"};
    EXPECT_TRUE(dragAndDrop("file:///home/anna/Music\r\n"));
    EXPECT_THAT(dropped, ElementsAre("/home/anna/Music"));
}

TEST_F(FolderDropTest, NothingIsMoved)
{
    services.resourceValues.directories = {"/home/anna/Music"};
    dragAndDrop("file:///home/anna/Music\r\n");
    EXPECT_EQ(action, Qt::CopyAction);
}

TEST_F(FolderDropTest, ANameThatIsNoTextIsTakenAsItIs)
{
    services.resourceValues.directories = {"/data/\xff\n"};
    EXPECT_TRUE(dragAndDrop("# from a file manager\r\nfile:///data/%FF%0A/\r\n"));
    EXPECT_THAT(dropped, ElementsAre("/data/\xff\n"));
}

TEST_F(FolderDropTest, AFileIsRefused)
{
    EXPECT_FALSE(dragAndDrop("file:///home/anna/song.mp3\r\n"));
    EXPECT_THAT(dropped, IsEmpty());
}

TEST_F(FolderDropTest, SeveralFoldersAreRefused)
{
    services.resourceValues.directories = {"/a", "/b"};
    EXPECT_FALSE(dragAndDrop("file:///a\r\nfile:///b\r\n"));
    EXPECT_THAT(dropped, IsEmpty());
}

TEST_F(FolderDropTest, WhatIsOnNoFileSystemIsRefused)
{
    EXPECT_FALSE(dragAndDrop("https://example.org/\r\n"));
    EXPECT_THAT(dropped, IsEmpty());
}

TEST_F(FolderDropTest, WhatWasDraggedBeforeIsForgotten)
{
    services.resourceValues.directories = {"/a"};
    dragAndDrop("file:///a\r\n");
    EXPECT_FALSE(dragAndDrop("file:///b\r\n"));
    EXPECT_THAT(dropped, ElementsAre("/a"));
}

} // namespace
} // namespace tessera
