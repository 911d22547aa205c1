// SPDX-License-Identifier: MIT
#include "Scanning/TreeBuilder.h"

#include "support/MakeTree.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

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

std::vector<int> huesOf(const Folder& folder)
{
    std::vector<int> hues;
    for (const File* child : folder.children()) {
        hues.push_back(child->hue());
    }
    return hues;
}

TEST(TreeBuilder, AFoldersColoursDoNotDependOnWhereTheScanBegan)
{
    const auto scanOf = [](std::string_view root, const std::vector<std::string>& foldersAbove) {
        TreeBuilder builder(rootAt(root));
        unsigned level = 0;
        for (const std::string& folder : foldersAbove) {
            builder.add(directory(folder, ++level));
        }
        for (std::uint64_t bytes = 9; bytes > 0; --bytes) {
            builder.add(document("f" + std::to_string(bytes), level + 1, bytes));
        }
        builder.closeAll();
        auto tree = builder.takeRoot();
        tree->sort();
        return tree;
    };
    const auto whole = scanOf("/", {"t", "a", "b"});
    const auto part = scanOf("/t", {"a", "b"});
    const std::vector<int> expected = huesOf(*scanOf("/t/a/b", {}));
    EXPECT_EQ(huesOf(static_cast<Folder&>(test::at(*whole, "t/a/b"))), expected);
    EXPECT_EQ(huesOf(static_cast<Folder&>(test::at(*part, "a/b"))), expected);
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
