// SPDX-License-Identifier: MIT
#include "TreeScreen/PathBar/ToolbarPathItem.h"

#include "TreeScreen/PathBar/ToolbarPathControl.h"
#include "support/Fakes/FakeIconProvider.h"
#include "support/MakeTree.h"

#include <gtest/gtest.h>

namespace tessera {

TEST(ToolbarPathItem, OffersAllItsRoomToThePathBar)
{
    test::FakeIconProvider icons;
    const auto tree = test::makeTree("/home/anna", "a:1");
    ToolbarPathItem item;
    item.pathControl().setPathComponents(pathComponents(*tree, icons));
    item.resize(800, 30);
    item.show();

    EXPECT_EQ(item.pathControl().toolbarRequestedRect(), (Rect{0, 0, 800, 30}));
    EXPECT_EQ(item.pathControl().width(), item.pathControl().naturalSize().width());
}

TEST(ToolbarPathItem, WantsAllTheRoomThatIsLeft)
{
    const ToolbarPathItem item;
    EXPECT_EQ(item.sizePolicy().horizontalPolicy(), QSizePolicy::Expanding);
}

} // namespace tessera
