// SPDX-License-Identifier: MIT
#include "QuickLook/ItemFacts.h"

#include "Model/FreeSpace.h"
#include "support/MakeTree.h"

#include <gtest/gtest.h>

#include <memory>

namespace tessera {

namespace {

class ItemFactsTest : public testing::Test {
protected:
    std::unique_ptr<TopFolder> tree
        = test::makeTree("/home/anna", "docs/ ( x:1000 y:2000 ) a.txt:4096");
    const File* selected = nullptr;
};

} // namespace

TEST_F(ItemFactsTest, ADocumentHasItsPathNameAndSize)
{
    selected = &test::at(*tree, "docs/x");

    const auto facts = factsOf(selected);

    ASSERT_TRUE(facts.has_value());
    EXPECT_EQ(facts->path, "/home/anna/docs/x");
    EXPECT_EQ(facts->name, QStringLiteral("x"));
    EXPECT_EQ(facts->allocatedBytes, 1000U);
    EXPECT_FALSE(facts->itemCount);
}

TEST_F(ItemFactsTest, ThePathIsWhereTheLinksToTheScanLed)
{
    tree->setRealOrigin("/disk");

    EXPECT_EQ(factsOf(&test::at(*tree, "docs/x"))->path, "/disk/docs/x");
}

TEST_F(ItemFactsTest, AFolderHasTheNumberOfItsItems)
{
    selected = &test::at(*tree, "docs");

    EXPECT_EQ(factsOf(selected)->itemCount, 2U);
    EXPECT_EQ(factsOf(selected)->allocatedBytes, 3000U);
}

TEST_F(ItemFactsTest, SpaceThatIsNoFileHasNoPath)
{
    const auto space = makeNode<FreeSpace>("");
    selected = space.get();

    EXPECT_EQ(factsOf(selected)->path, "");
    EXPECT_EQ(factsOf(selected)->name, QStringLiteral("Free Space"));
}

TEST_F(ItemFactsTest, WithoutANodeThereAreNone)
{
    EXPECT_FALSE(factsOf(selected));
}

} // namespace tessera
