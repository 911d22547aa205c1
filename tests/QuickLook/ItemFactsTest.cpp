// SPDX-License-Identifier: MIT
#include "QuickLook/ItemFacts.h"

#include "Model/FreeSpace.h"
#include "QuickLook/PanelFixture.h"

namespace tessera {

namespace {

class ItemFactsTest : public testing::Test {
protected:
    std::unique_ptr<TopFolder> tree
        = test::makeTree("/home/anna", "docs/ ( x:1000 y:2000 ) a.txt:4096");
    test::FakeTreeScreen screen;
};

} // namespace

TEST_F(ItemFactsTest, ADocumentHasItsPathNameAndSize)
{
    screen.selected = &test::at(*tree, "docs/x");

    const auto facts = factsOf(screen);

    ASSERT_TRUE(facts.has_value());
    EXPECT_EQ(facts->path, "/home/anna/docs/x");
    EXPECT_EQ(facts->name, QStringLiteral("x"));
    EXPECT_EQ(facts->allocatedBytes, 1000U);
    EXPECT_FALSE(facts->itemCount);
}

TEST_F(ItemFactsTest, AFolderHasTheNumberOfItsItems)
{
    screen.selected = &test::at(*tree, "docs");

    EXPECT_EQ(factsOf(screen)->itemCount, 2U);
    EXPECT_EQ(factsOf(screen)->allocatedBytes, 3000U);
}

TEST_F(ItemFactsTest, SpaceThatIsNoFileHasNoPath)
{
    const auto space = makeNode<FreeSpace>("");
    screen.selected = space.get();

    EXPECT_EQ(factsOf(screen)->path, "");
    EXPECT_EQ(factsOf(screen)->name, QStringLiteral("Free Space"));
}

TEST_F(ItemFactsTest, WithoutANodeThereAreNone)
{
    EXPECT_FALSE(factsOf(screen));
}

} // namespace tessera
