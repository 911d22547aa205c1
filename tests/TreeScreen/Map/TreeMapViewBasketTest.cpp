// SPDX-License-Identifier: MIT
#include "Basket/Basket.h"
#include "TreeScreen/Map/TreeMapViewFixture.h"

#include <QImage>
#include <QRect>

#include <gtest/gtest.h>

namespace tessera::test {
namespace {

/// What two pictures of the same size have different.
QRect changesIn(const QImage& picture, const QImage& before)
{
    QRect changes;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (picture.pixel(x, y) != before.pixel(x, y)) {
                changes |= QRect(x, y, 1, 1);
            }
        }
    }
    return changes;
}

class TreeMapViewBasketTest : public TreeMapViewTest {
protected:
    TreeMapViewBasketTest() { view->setBasket(&m_basket); }
    ~TreeMapViewBasketTest() override { view->setBasket(nullptr); }

    QImage pictureWith(File& item)
    {
        m_basket.add(item);
        view->basketChanged();
        return view->picture().copy();
    }

    const QImage m_unmarked = view->picture().copy();
    Basket m_basket;
};

TEST_F(TreeMapViewBasketTest, AnEmptyBasketMarksNothing)
{
    EXPECT_EQ(view->picture(), m_unmarked);
}

TEST_F(TreeMapViewBasketTest, AChosenItemsBoxIsMarkedToItsEdgesAndNothingElse)
{
    EXPECT_EQ(changesIn(pictureWith(a), m_unmarked), QRect(203, 3, 100, 294));
}

TEST_F(TreeMapViewBasketTest, AnItemInANestedLevelIsMarkedWhereItsBoxIs)
{
    EXPECT_EQ(changesIn(pictureWith(x), m_unmarked), QRect(11, 27, 184, 168));
}

TEST_F(TreeMapViewBasketTest, WhatIsInAChosenFolderHasNoMarkOfItsOwn)
{
    const QImage folderAlone = pictureWith(docs);
    EXPECT_EQ(pictureWith(x), folderAlone);
}

TEST_F(TreeMapViewBasketTest, ABoxForSeveralItemsHasACornerForOneOfThem)
{
    EXPECT_TRUE(QRect(386, 3, 11, 11).contains(changesIn(pictureWith(c), m_unmarked)));
    EXPECT_FALSE(changesIn(pictureWith(c), m_unmarked).isEmpty());
}

TEST_F(TreeMapViewBasketTest, AFolderHasACornerForAnItemThatThePictureDoesNotShow)
{
    view->removeAllBranches();
    auto top = std::make_unique<TreeBranch>(Rect{0, 0, 400, 300});
    std::vector<std::unique_ptr<LayoutObject>> items;
    items.push_back(box(&docs, {3, 3, 200, 294}));
    top->setLayoutItems(std::move(items));
    view->addBranch(std::move(top));
    const QImage before = view->picture().copy();
    const QRect changes = changesIn(pictureWith(x), before);
    EXPECT_TRUE(QRect(192, 3, 11, 11).contains(changes));
    EXPECT_FALSE(changes.isEmpty());
}

TEST_F(TreeMapViewBasketTest, TheMarksGoWithTheItems)
{
    pictureWith(a);
    m_basket.clear();
    view->basketChanged();
    EXPECT_EQ(view->picture(), m_unmarked);
}

TEST_F(TreeMapViewBasketTest, AZoomsPicturesHaveTheMarksToo)
{
    const QImage marked = pictureWith(a);
    EXPECT_EQ(view->paint(*topBranch), marked);
}

} // namespace
} // namespace tessera::test
