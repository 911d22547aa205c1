// SPDX-License-Identifier: MIT
#include "MainWindow/TreeStatusBar.h"

#include "Commands/CommandTable.h"
#include "Layout/LayoutObject.h"
#include "MainWindowFixture.h"
#include "Model/Defaults.h"
#include "Model/TooltipType.h"
#include "Model/UserDefaults.h"
#include "TreeScreen/Status/StatusLine.h"
#include "support/BecomesActive.h"

#include <QStatusBar>
#include <QTest>
#include <QWindow>

#include <gtest/gtest.h>

#include <algorithm>

namespace tessera {
namespace {

/// A window whose settings have their defaults. /data holds docs with a:700 and b:200, and c:50.
class TreeStatusBarTest : public test::MainWindowFixture {
protected:
    TreeStatusBarTest()
    {
        registerDefaults(services.rootModel.defaults);
        controller = std::make_unique<MainWindowController>(services.get());
        controller->showWindow();
        controller->window().activateWindow();
        EXPECT_TRUE(test::becomesActive(controller->window()));
    }

    ~TreeStatusBarTest() override
    {
        // Qt tells nobody of a pointer that stays where it is, not even the next test's window.
        movePointer({1, 1});
    }

    QStatusBar& bar() const { return *controller->window().statusBar(); }
    StatusLine& line() const { return *bar().findChild<StatusLine*>(); }
    std::string said() const { return line().text().toStdString(); }

    void movePointer(QPoint inWindow) const
    {
        QTest::mouseMove(controller->window().windowHandle(), inWindow);
    }

    QPoint centreOf(const char* path) const
    {
        const File& node = test::at(*services.model.topFolder(), path);
        const Rect box = *map().findRectForFile(node);
        const QPointF centre(box.x + box.width / 2, box.y + box.height / 2);
        return map().mapTo(&controller->window(), centre.toPoint());
    }

    void pointAt(const char* path) const
    {
        movePointer(centreOf(path) + QPoint(1, 0));
        movePointer(centreOf(path));
    }

    QAction& action() const
    {
        const auto entries = controller->window().actions();
        return **std::ranges::find(
            entries, titleOf(rowOf(Command::StatusLine)), [](const QAction* entry) {
                return entry->text();
            });
    }

    void endZoom()
    {
        services.treeScreen.now += 10;
        emit map().zoomEnded();
    }
};

TEST_F(TreeStatusBarTest, IsThereWithTheTreeAlone)
{
    EXPECT_FALSE(bar().isVisible());
    showTree();
    EXPECT_TRUE(bar().isVisible());
    controller->homeSelected();
    EXPECT_FALSE(bar().isVisible());
}

TEST_F(TreeStatusBarTest, StandsBelowThePictureWhichMakesRoomForIt)
{
    showTree();
    EXPECT_GT(line().height(), 0);
    EXPECT_EQ(
        map().mapTo(&controller->window(), QPoint(0, map().height())).y(), bar().geometry().top());
    EXPECT_EQ(bar().geometry().bottom(), controller->window().height() - 1);
}

TEST_F(TreeStatusBarTest, TellsOfTheFolderInViewWhileNothingElseIsMeant)
{
    showTree();
    EXPECT_EQ(said(), "data, 950 B, 2 items");
}

TEST_F(TreeStatusBarTest, TellsOfWhatIsSelected)
{
    showTree();
    select("docs");
    EXPECT_EQ(said(), "docs, 900 B, 2 items, 94.7% of data");
}

TEST_F(TreeStatusBarTest, TellsOfWhatIsUnderThePointerBeforeWhatIsSelected)
{
    showTree();
    select("docs");
    pointAt("c");
    EXPECT_EQ(said(), "c, 50 B, 5.3% of data");
}

TEST_F(TreeStatusBarTest, GoesBackToTheSelectedWhenThePointerLeaves)
{
    showTree();
    select("docs");
    pointAt("c");
    movePointer({5, 5});
    EXPECT_EQ(said(), "docs, 900 B, 2 items, 94.7% of data");
}

TEST_F(TreeStatusBarTest, WhatTheKeyboardSelectsIsToldOfAlthoughThePointerRestsOnThePicture)
{
    showTree();
    pointAt("c");
    QTest::keyClick(&map(), Qt::Key_Left);
    EXPECT_EQ(said(), "docs, 900 B, 2 items, 94.7% of data");
    movePointer(centreOf("c") + QPoint(2, 0));
    EXPECT_EQ(said(), "c, 50 B, 5.3% of data");
}

TEST_F(TreeStatusBarTest, ASelectionCountsBeforeItIsDrawn)
{
    showTree();
    pointAt("c");
    controller->treeVC()->setSelectedFile(&test::at(*services.model.topFolder(), "docs"));
    EXPECT_EQ(said(), "docs, 900 B, 2 items, 94.7% of data");
}

TEST_F(TreeStatusBarTest, AFolderInViewCountsBeforeItIsDrawn)
{
    showTree();
    pointAt("c");
    auto& docs = static_cast<Folder&>(test::at(*services.model.topFolder(), "docs"));
    controller->treeVC()->setCurrentFolder(&docs);
    EXPECT_EQ(said(), "docs, 900 B, 2 items, 94.7% of data");
}

TEST_F(TreeStatusBarTest, TellsOfTheNewFolderAsSoonAsAZoomBegins)
{
    showTree();
    zoomIntoDocs();
    ASSERT_TRUE(map().isZooming());
    EXPECT_EQ(said(), "docs, 900 B, 2 items, 94.7% of data");
    movePointer({200, 300});
    movePointer({210, 310});
    EXPECT_EQ(said(), "docs, 900 B, 2 items, 94.7% of data");
    endZoom();
    EXPECT_EQ(said(), "docs, 900 B, 2 items, 94.7% of data");
}

TEST_F(TreeStatusBarTest, SharesAreOfTheFolderThatWasZoomedInto)
{
    showTree();
    zoomIntoDocs();
    endZoom();
    select("docs/b");
    EXPECT_EQ(said(), "b, 200 B, 22.2% of docs");
}

TEST_F(TreeStatusBarTest, FollowsChangesOfTheTree)
{
    showTree();
    select("c");
    test::at(*services.model.topFolder(), "c").setTotalAllocation(60);
    controller->treeVC()->renderTree();
    EXPECT_EQ(said(), "c, 60 B, 6.3% of data");
}

TEST_F(TreeStatusBarTest, ForgetsTheBoxUnderThePointerWithItsPicture)
{
    showTree();
    pointAt("c");
    controller->treeVC()->renderTree();
    EXPECT_EQ(said(), "data, 950 B, 2 items");
}

TEST_F(TreeStatusBarTest, ForgetsTheBoxWhenAnotherWindowComesToTheFront)
{
    showTree();
    pointAt("c");
    QWidget other;
    other.show();
    other.activateWindow();
    ASSERT_TRUE(test::becomesActive(other));
    EXPECT_EQ(said(), "data, 950 B, 2 items");
}

TEST_F(TreeStatusBarTest, NeedsNoTooltips)
{
    setTooltipType(services.treeScreen.defaults, TooltipType::None);
    showTree();
    pointAt("c");
    EXPECT_EQ(said(), "c, 50 B, 5.3% of data");
}

TEST_F(TreeStatusBarTest, TheEntryOfTheMenuHidesItAndGivesItsRoomToThePicture)
{
    showTree();
    const int before = map().height();
    const int given = bar().height();
    EXPECT_TRUE(action().isChecked());
    action().trigger();
    EXPECT_FALSE(bar().isVisible());
    EXPECT_FALSE(action().isChecked());
    EXPECT_EQ(map().height(), before + given);
}

TEST_F(TreeStatusBarTest, TheEntryOfTheMenuShowsItAgain)
{
    showTree();
    action().trigger();
    select("docs");
    action().trigger();
    EXPECT_TRUE(bar().isVisible());
    EXPECT_TRUE(action().isChecked());
    EXPECT_EQ(said(), "docs, 900 B, 2 items, 94.7% of data");
}

TEST_F(TreeStatusBarTest, WhetherItIsWantedIsRemembered)
{
    showTree();
    controller->perform(Command::StatusLine);
    EXPECT_FALSE(services.rootModel.defaults.boolean(kStatusLineKey));
    controller.reset();
    controller = std::make_unique<MainWindowController>(services.get());
    controller->showWindow();
    showTree();
    EXPECT_FALSE(bar().isVisible());
}

TEST_F(TreeStatusBarTest, CannotBeSwitchedWithoutATree)
{
    controller->perform(Command::StatusLine);
    EXPECT_TRUE(services.rootModel.defaults.boolean(kStatusLineKey));
    EXPECT_FALSE(action().isEnabled());
}

TEST_F(TreeStatusBarTest, LosesNothingInTheSmallestWindowButTheMiddleOfAName)
{
    controller->window().resize(760, 520);
    showTree();
    line().setStatus(
        {QString(255, u'W'),
         {QStringLiteral("888.8 GB"),
          QStringLiteral("888,888 items"),
          QStringLiteral("less than 0.1% of photographs")}});
    EXPECT_EQ(controller->window().size(), QSize(760, 520));
    EXPECT_TRUE(line().shownParts().figures.endsWith(QStringLiteral("photographs")));
}

} // namespace
} // namespace tessera
