// SPDX-License-Identifier: MIT
// When it is told that items are back in their places.
#include "TrashUndoFixture.h"

#include <QTest>

#include <gmock/gmock.h>

namespace tessera {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class ReturnedItemsTest : public test::TrashUndoFixture {
protected:
    ReturnedItemsTest()
    {
        QObject::connect(
            &diskChanges, &DiskChanges::itemsMoved, [this](const std::vector<ItemMove>& all) {
                counts.push_back(all.size());
            });
    }

    std::vector<std::size_t> counts; ///< of items that were told of together
};

TEST_F(ReturnedItemsTest, OneItemIsToldAtOnce)
{
    move({"a"});
    undo->undo();
    comesBack("a");
    EXPECT_THAT(counts, ElementsAre(1));
    EXPECT_THAT(back, ElementsAre("/me/docs/a"));
}

TEST_F(ReturnedItemsTest, ItemsOfAStepAreToldTogether)
{
    move({"a", "b", "c"});
    undo->undo();
    comesBack("a");
    comesBack("b");
    EXPECT_THAT(counts, IsEmpty());
    comesBack("c");
    EXPECT_THAT(counts, ElementsAre(3));
    EXPECT_THAT(back, ElementsAre("/me/docs/a", "/me/docs/b", "/me/docs/c"));
}

TEST_F(ReturnedItemsTest, WhatStaysHoldsUpNone)
{
    move({"a", "b"});
    undo->undo();
    comesBack("a");
    stays(PutBackObstacle::ReadOnly);
    EXPECT_THAT(counts, ElementsAre(1));
}

TEST_F(ReturnedItemsTest, WhatIsBackIsToldWhileAnotherTakesItsTime)
{
    move({"a", "b"});
    undo->undo();
    comesBack("a");
    ASSERT_TRUE(QTest::qWaitFor([this] { return !counts.empty(); }));
    EXPECT_THAT(back, ElementsAre("/me/docs/a"));
    comesBack("b");
    EXPECT_THAT(counts, ElementsAre(1, 1));
}

TEST_F(ReturnedItemsTest, WhatWasChosenFromAllIsToldTogetherToo)
{
    undo->putBack({{test::inTrash("a"), 100}, {test::inTrash("b"), 100}});
    comesBack("a");
    comesBack("b");
    EXPECT_THAT(counts, ElementsAre(2));
}

} // namespace
} // namespace tessera
