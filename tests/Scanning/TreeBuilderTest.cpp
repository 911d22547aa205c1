// SPDX-License-Identifier: MIT
#include "Scanning/TreeBuilder.h"

#include "support/makeTree.h"

#include <gtest/gtest.h>

namespace tessera {
namespace {

std::unique_ptr<TopFolder> rootAt(std::string_view path)
{
    auto root = makeNode<TopFolder>(lastPathComponent(path));
    root->setOrigin(std::string(path));
    return root;
}

DirectoryItem directory(std::string_view name, unsigned level)
{
    return {name, level, true, false, 0};
}

DirectoryItem document(std::string_view name, unsigned level, std::uint64_t bytes)
{
    return {name, level, false, false, bytes};
}

TEST(TreeBuilder, AttachesAFolderOnlyWhenItIsComplete)
{
    TreeBuilder builder(rootAt("/t"));
    builder.add(directory("a", 1));
    builder.add(document("x", 2, 100));
    EXPECT_TRUE(builder.root().children().empty());
    builder.add(document("y", 1, 7));
    EXPECT_EQ(builder.root().totalAllocation(), 107U);
}

TEST(TreeBuilder, ClosesSeveralFoldersAtOnce)
{
    TreeBuilder builder(rootAt("/t"));
    builder.add(directory("a", 1));
    builder.add(directory("b", 2));
    builder.add(document("x", 3, 5));
    builder.add(directory("c", 1));
    builder.closeAll();
    const auto root = builder.takeRoot();
    EXPECT_EQ(test::at(*root, "a/b/x").totalAllocation(), 5U);
    EXPECT_EQ(test::at(*root, "a").totalAllocation(), 5U);
    EXPECT_TRUE(test::at(*root, "c").isFolder());
}

TEST(TreeBuilder, KeepsTheHiddenFlagOfFoldersAndDocuments)
{
    TreeBuilder builder(rootAt("/t"));
    builder.add({".a", 1, true, true, 0});
    builder.add({".x", 2, false, true, 1});
    builder.closeAll();
    const auto root = builder.takeRoot();
    EXPECT_TRUE(test::at(*root, ".a").hidden());
    EXPECT_TRUE(test::at(*root, ".a/.x").hidden());
}

TEST(TreeBuilder, KnowsThePathOfAnItemBeforeAndAfterItIsAdded)
{
    TreeBuilder builder(rootAt("/"));
    builder.add(directory("a", 1));
    EXPECT_EQ(builder.pathOf(2, "x"), "/a/x");
    builder.add(document("x", 2, 1));
    EXPECT_EQ(builder.pathOf(2, "x"), "/a/x");
    EXPECT_EQ(builder.pathOf(1, "b"), "/b");
}

} // namespace
} // namespace tessera
