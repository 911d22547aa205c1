// SPDX-License-Identifier: MIT
#include "MainWindow/WindowTitle.h"

#include "MainWindowFixture.h"
#include "Model/Folder.h"

#include <QWindow>

#include <gtest/gtest.h>

#include <string>

namespace tessera {
namespace {

class WindowTitle : public test::MainWindowFixture {
protected:
    /// What the window system is told.
    std::string title() const { return controller->window().windowHandle()->title().toStdString(); }

    void showTreeAt(const std::string& origin)
    {
        requestScan(origin.c_str());
        services.model.setTopFolder(test::makeTree(origin, "docs/ ( a:700 b:200 ) c:50"));
        emit services.screens.scanScreen->scanComplete();
        QCoreApplication::processEvents();
    }
};

TEST_F(WindowTitle, OfTheHomeScreenIsTheProgramsNameAlone)
{
    EXPECT_EQ(title(), "Tessera");
}

TEST_F(WindowTitle, SaysWhatIsBeingScanned)
{
    requestScan("/srv/data");
    EXPECT_EQ(title(), "Scanning data — Tessera");
}

TEST_F(WindowTitle, SaysNothingOfAScanThatWasCancelled)
{
    requestScan();
    cancelScan();
    EXPECT_EQ(title(), "Tessera");
}

TEST_F(WindowTitle, NamesTheNextScanWhenThatReplacesOne)
{
    requestScan("/srv/data");
    requestScan("/srv/other");
    EXPECT_EQ(title(), "Scanning other — Tessera");
}

TEST_F(WindowTitle, NamesTheScannedFolder)
{
    showTree();
    EXPECT_EQ(title(), "data — Tessera");
}

TEST_F(WindowTitle, NamesTheFolderThatWasZoomedInto)
{
    showTree();
    zoomIntoDocs();
    EXPECT_EQ(title(), "docs — Tessera");
}

TEST_F(WindowTitle, FollowsTheWayBack)
{
    showTree();
    zoomIntoDocs();
    controller->perform(Command::ZoomOut);
    EXPECT_EQ(title(), "data — Tessera");
}

TEST_F(WindowTitle, SaysWhichScanComesAfterATree)
{
    showTree();
    requestScan("/srv/other");
    EXPECT_EQ(title(), "Scanning other — Tessera");
}

TEST_F(WindowTitle, IsTheProgramsNameAgainOnTheWayHome)
{
    showTree();
    controller->homeSelected();
    EXPECT_EQ(title(), "Tessera");
}

TEST_F(WindowTitle, OfTheRootIsItsPath)
{
    showTreeAt("/");
    EXPECT_EQ(title(), "/ — Tessera");
}

TEST_F(WindowTitle, WhatWouldMisleadInANameIsShownAsSomethingElse)
{
    // NOLINTNEXTLINE(misc-misleading-bidirectional): such names are what is tested
    showTreeAt("/srv/a\n\xE2\x80\xAE<b>");
    EXPECT_EQ(title(), "a\xE2\x90\x8A\xEF\xBF\xBD<b> — Tessera");
}

/// By which QWidget means something.
TEST_F(WindowTitle, KeepsBracketsWithAStarInThem)
{
    for (const char* name : {"a[*]b", "[*]", "[*][*]", "[*][*][*]", "[[*]*]", "a[*][b[*]"}) {
        showTreeAt(std::string("/srv/").append(name));
        EXPECT_EQ(title(), std::string(name).append(" — Tessera"));
    }
}

/// By which Qt sees that it need not add the program's name once more.
TEST_F(WindowTitle, EndsWithTheProgramsNameWhateverIsShown)
{
    for (const char* shown : {"", "usr", "Tessera", "a — b"}) {
        EXPECT_TRUE(mainWindowTitle(QString::fromUtf8(shown)).endsWith(QStringLiteral("Tessera")));
    }
}

} // namespace
} // namespace tessera
