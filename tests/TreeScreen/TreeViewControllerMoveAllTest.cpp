// SPDX-License-Identifier: MIT
// The basket goes to the trash from the tree screen, and comes back.
#include "Model/NodeLookup.h"
#include "TreeViewControllerFixture.h"

#include <string>

namespace tessera {
namespace {

class TreeViewControllerMoveAllTest : public test::TreeViewControllerFixture {
protected:
    TreeViewControllerMoveAllTest() { connect(); }

    void connect()
    {
        QObject::connect(
            controller.get(), &TreeViewController::pictureRebuilt, [this] { ++drawings; });
        QObject::connect(
            controller.get(), &TreeViewController::basketMoveEnded, [this] { ++ends; });
    }

    /// A tree of so many files, all in the basket.
    void chooseMany(int count)
    {
        std::string items;
        for (int i = 0; i < count; ++i) {
            items += "f" + std::to_string(i) + ":1000 ";
        }
        controller.reset();
        model.setTopFolder(test::makeTree("/data", items));
        controller = std::make_unique<TreeViewController>(model, view, services.get(), &actions);
        connect();
        for (int i = 0; i < count; ++i) {
            ASSERT_TRUE(services.basket.add(node("f" + std::to_string(i))));
        }
    }

    void moveAll()
    {
        services.mainThread.runUntil([this] { return services.basket.isLookedAt(); });
        controller->moveBasketToTrash({});
    }

    void end()
    {
        RecycleResult result;
        for (const Url& place : services.workspace.recycled.back()) {
            const Url to("/trash/files/" + std::string(place.lastPathComponent()), false);
            result.newUrls[place.absoluteString()] = to;
            result.trashed.push_back({place, to, {1, result.trashed.size() + 1}});
        }
        ASSERT_TRUE(services.workspace.finishRecycling(result));
    }

    int drawings = 0;
    int ends = 0;
};

TEST_F(TreeViewControllerMoveAllTest, AllOfItGoesAndIsDrawnOnce)
{
    ASSERT_TRUE(services.basket.add(node("docs/a")));
    ASSERT_TRUE(services.basket.add(node("c\xFF")));
    moveAll();
    EXPECT_TRUE(controller->isMovingBasket());
    drawings = 0;
    end();
    EXPECT_EQ(model.topFolder()->totalAllocation(), 200000U);
    EXPECT_TRUE(services.basket.basket().isEmpty());
    EXPECT_EQ(drawings, 1);
    EXPECT_EQ(ends, 1);
    EXPECT_FALSE(controller->isMovingBasket());
}

TEST_F(TreeViewControllerMoveAllTest, WhatNobodyCouldLookAtIsLookedAtOnceMore)
{
    const std::string place = placeOnDisk(node("docs/a")).path();
    services.itemStates->setAnswer(place, {ItemAnswer::Outcome::MayNotLook, {}});
    ASSERT_TRUE(services.basket.add(node("docs/a")));
    services.mainThread.runUntil([this] { return services.basket.isLookedAt(); });
    services.itemStates->setAnswer(place, {ItemAnswer::Outcome::Known, {}});
    moveAll();
    services.mainThread.runUntil([this] { return services.basket.isLookedAt(); });
    EXPECT_EQ(services.workspace.recycled.size(), 1U);
}

TEST_F(TreeViewControllerMoveAllTest, AnotherNameOfAFileThatHasMovedIsNoOtherForThat)
{
    ASSERT_TRUE(services.basket.add(node("docs/a")));
    moveAll();
    ItemAnswer file{ItemAnswer::Outcome::Known, {}};
    file.state.identity = {1, 1}; // which end() gives to the first
    services.itemStates->setAnswer(placeOnDisk(node("docs/b")).path(), file);
    ASSERT_TRUE(services.basket.add(node("docs/b")));
    end();
    services.mainThread.runUntil([this] { return services.basket.isLookedAt(); });
    EXPECT_TRUE(services.basket.expectedOf(node("docs/b"))->movedByOtherName);
}

TEST_F(TreeViewControllerMoveAllTest, WhatIsSelectedAndStaysIsSelectedStill)
{
    ASSERT_TRUE(services.basket.add(node("docs/a")));
    moveAll();
    select("docs/b");
    end();
    EXPECT_EQ(controller->selectedFile(), &node("docs/b"));
}

TEST_F(TreeViewControllerMoveAllTest, WhatIsSelectedAndGoesIsSelectedNoMore)
{
    ASSERT_TRUE(services.basket.add(node("docs/a")));
    select("docs/a");
    moveAll();
    end();
    EXPECT_EQ(controller->selectedFile(), nullptr);
}

TEST_F(TreeViewControllerMoveAllTest, WhoLooksIntoAFolderThatGoesSeesTheOneAroundIt)
{
    ASSERT_TRUE(services.basket.add(node("docs")));
    controller->setCurrentFolder(static_cast<Folder*>(&node("docs")));
    moveAll();
    end();
    EXPECT_EQ(controller->currentFolder(), model.topFolder());
}

TEST_F(TreeViewControllerMoveAllTest, DeletingAnItemOfTheBasketTakesItOut)
{
    ASSERT_TRUE(services.basket.add(node("docs/a")));
    select("docs/a");
    controller->trashItem();
    end();
    EXPECT_TRUE(services.basket.basket().isEmpty());
}

TEST_F(TreeViewControllerMoveAllTest, AThousandItemsComeBackInOneDrawing)
{
    constexpr int kCount = 1000;
    chooseMany(kCount);
    moveAll();
    end();
    EXPECT_EQ(model.topFolder()->totalAllocation(), 0U);
    drawings = 0;
    services.trashUndo.undo();
    for (int i = 0; i < kCount; ++i) {
        PutBackResult result;
        result.place = services.workspace.putBacks.back().item.from;
        ASSERT_TRUE(services.workspace.finishPuttingBack(result));
    }
    EXPECT_EQ(drawings, 1);
    EXPECT_EQ(model.topFolder()->totalAllocation(), 1000U * kCount);
    EXPECT_FALSE(services.trashUndo.redoTitle().isEmpty());
}

} // namespace
} // namespace tessera
