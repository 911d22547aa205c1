// SPDX-License-Identifier: MIT
// What a walk tells of files that have several names, and that totals agree with other programs.
#include "Model/NodeLookup.h"
#include "Platform/Linux/Walk/LinuxFileManager.h"
#include "support/Machine/RandomDisk.h"
#include "support/Machine/ScanTree.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <map>
#include <sstream>
#include <string>

namespace tessera::test {
namespace {

std::map<std::string, DirectoryItem> itemsIn(const TempTree& tree, ItemKeys keys)
{
    std::map<std::string, DirectoryItem> items;
    const auto walk = LinuxFileManager().enumerator(tree.path(), keys, LinksToStart::Follow);
    DirectoryItem item;
    while (walk->next(item)) {
        items.emplace(item.name, item);
    }
    return items;
}

/// What another program finds, which counts the folders' own blocks as well.
std::uint64_t bytesOfFilesByDu(const std::string& path)
{
    const ProgramResult result = runProgram("find", {path, "-type", "d", "-printf", "%b\\n"});
    std::istringstream lines(result.standardOutput);
    std::uint64_t bytes = bytesByDu(path);
    for (std::uint64_t blocks = 0; lines >> blocks;) {
        bytes -= blocks * 512;
    }
    return bytes;
}

TEST(LinkedFiles, AWalkTellsTheFileOfAName)
{
    const TempTree tree;
    tree.makeFile("file", 1);
    tree.makeHardLink("other", "file");
    struct stat status { };
    ASSERT_EQ(::stat(tree.pathOf("file").c_str(), &status), 0);
    const auto items = itemsIn(tree, ItemKeys::SizeAndHidden);
    EXPECT_EQ(items.at("file").identity, (FileIdentity{status.st_dev, status.st_ino}));
    EXPECT_EQ(items.at("other").identity, items.at("file").identity);
    EXPECT_EQ(items.at("file").linkCount, 2U);
}

TEST(LinkedFiles, AFileOfOneNameHasNoOthers)
{
    const TempTree tree;
    tree.makeFile("file", 1);
    EXPECT_EQ(itemsIn(tree, ItemKeys::SizeAndHidden).at("file").linkCount, 0U);
}

/// A folder's links are its subfolders.
TEST(LinkedFiles, AFolderHasNoOtherNames)
{
    const TempTree tree;
    tree.makeFolder("folder");
    tree.makeFolder("folder/a");
    EXPECT_EQ(itemsIn(tree, ItemKeys::SizeAndHidden).at("folder").linkCount, 0U);
}

TEST(LinkedFiles, AWalkWithoutKeysTellsNothingOfLinks)
{
    const TempTree tree;
    tree.makeFile("file", 1);
    tree.makeHardLink("other", "file");
    EXPECT_EQ(itemsIn(tree, ItemKeys::None).at("file").linkCount, 0U);
}

TEST(LinkedFiles, ASymbolicLinkMayHaveSeveralNamesToo)
{
    const TempTree tree;
    tree.makeSymbolicLink("link", std::string(200, 'x'));
    tree.makeHardLink("other", "link");
    EXPECT_EQ(scanTree(tree.path())->totalAllocation(), bytesOfFilesByDu(tree.path()));
}

TEST(LinkedFiles, TotalsAreWhatDuFindsLessTheFoldersOwnBlocks)
{
    for (unsigned seed = 0; seed < 10; ++seed) {
        const TempTree tree;
        const RandomDisk disk(tree, seed);
        // What has no place yet may take another number of blocks than once it has one.
        runProgram("sync", {"-f", tree.path()});
        const auto top = scanTree(tree.path());
        EXPECT_FALSE(top->linkedNames().isEmpty());
        EXPECT_EQ(top->totalAllocation(), bytesOfFilesByDu(tree.path())) << "seed " << seed;
    }
}

/// Some file systems allow no more than 65,000 names of a file.
TEST(LinkedFiles, AHundredThousandNamesOfTwoFilesCountTwice)
{
    constexpr int kNames = 50'000;
    const TempTree tree(TempTree::fastParent());
    for (const std::string file : {"a", "b"}) {
        tree.makeFile(file, 4096);
        for (int i = 1; i < kNames; ++i) {
            tree.makeHardLink(file + std::to_string(i), file);
        }
    }
    const auto top = scanTree(tree.path());
    EXPECT_EQ(top->totalAllocation(), 2 * tree.allocatedBytes("a"));
    EXPECT_EQ(linkedNameOf(*top->children()[2 * kNames - 1])->linkCount, 50'000U);
}

} // namespace
} // namespace tessera::test
