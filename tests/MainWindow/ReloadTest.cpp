// SPDX-License-Identifier: MIT
// What Reload does in the main window.
#include "Basket/BasketKeeper.h"
#include "MainWindowFixture.h"

#include <QKeyEvent>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

namespace tessera {
namespace {

using testing::ElementsAre;

class MainWindowReloadTest : public test::MainWindowFixture {
protected:
    void reload() const { controller->perform(Command::Reload); }

    void press(Qt::Key key) const
    {
        QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
        QCoreApplication::sendEvent(&controller->window(), &event);
    }

    bool canReload() const { return isEnabled(Command::Reload, controller->commandContext()); }

    /// With what the disk holds by then.
    void finishScanOf(const char* items)
    {
        services.model.setTopFolder(test::makeTree("/data", items));
        emit services.screens.scanScreen->scanComplete();
        QCoreApplication::processEvents();
    }

    std::string inView() const { return controller->treeVC()->currentFolder()->absolutePath(); }
    std::string selected() const
    {
        const File* const file = controller->treeVC()->selectedFile();
        return file == nullptr ? "" : file->absolutePath();
    }
};

TEST_F(MainWindowReloadTest, ScansTheSameAgainAndComesBack)
{
    showTree();
    zoomIntoDocs();
    select("docs/b");
    reload();
    EXPECT_THAT(services.screens.scanned, ElementsAre("/data", "/data"));
    finishScan();
    EXPECT_EQ(inView(), "/data/docs");
    EXPECT_EQ(selected(), "/data/docs/b");
}

TEST_F(MainWindowReloadTest, ComesBackToWhatIsLeft)
{
    showTree();
    zoomIntoDocs();
    select("docs/b");
    reload();
    finishScanOf("docs/ ( a:700 ) c:50");
    EXPECT_EQ(inView(), "/data/docs");
    EXPECT_EQ(selected(), "");
    reload();
    finishScanOf("c:50");
    EXPECT_EQ(inView(), "/data");
}

TEST_F(MainWindowReloadTest, AFileInTheFoldersPlaceIsNotOpened)
{
    showTree();
    zoomIntoDocs();
    reload();
    finishScanOf("docs:50");
    EXPECT_EQ(inView(), "/data");
}

TEST_F(MainWindowReloadTest, AnotherScanBeginsAtItsTop)
{
    showTree();
    zoomIntoDocs();
    reload();
    requestScan("/data");
    finishScan();
    EXPECT_EQ(inView(), "/data");
}

TEST_F(MainWindowReloadTest, WhatWasCancelledIsForgotten)
{
    showTree();
    zoomIntoDocs();
    reload();
    cancelScan();
    slideFor(10);
    requestScan("/data");
    finishScan();
    EXPECT_EQ(inView(), "/data");
}

TEST_F(MainWindowReloadTest, TheBasketIsKept)
{
    showTree();
    select("c");
    controller->perform(Command::AddToBasket);
    reload();
    finishScan();
    EXPECT_EQ(services.treeScreen.basket.basket().size(), 1U);
}

TEST_F(MainWindowReloadTest, IsPossibleInAZoom)
{
    services.treeScreen.motion.reduced = false;
    showTree();
    zoomIntoDocs();
    reload();
    finishScan();
    EXPECT_EQ(inView(), "/data/docs");
}

TEST_F(MainWindowReloadTest, WaitsForNoScanThatRuns)
{
    EXPECT_TRUE(canReload());
    requestScan();
    EXPECT_FALSE(canReload());
    reload();
    EXPECT_THAT(services.screens.scanned, ElementsAre("/data"));
    EXPECT_EQ(services.screens.homeReloaded, 0);
    finishScan();
    EXPECT_TRUE(canReload());
}

TEST_F(MainWindowReloadTest, OnTheHomeScreenThePlacesAreLookedForAgain)
{
    reload();
    EXPECT_EQ(services.screens.homeReloaded, 1);
    EXPECT_EQ(services.screens.homeScreensMade, 1);
    press(Qt::Key_F5);
    EXPECT_EQ(services.screens.homeReloaded, 2);
}

} // namespace
} // namespace tessera
