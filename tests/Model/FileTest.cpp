// SPDX-License-Identifier: MIT
#include "Model/File.h"

#include "Model/Document.h"
#include "Model/Folder.h"
#include "Model/FreeSpace.h"
#include "Model/TimeMachine.h"
#include "Model/Unknown.h"
#include "support/MakeTree.h"

#include <gtest/gtest.h>

#include <string>

namespace tessera {
namespace {

TEST(File, StartsEmptyWithEveryFlagCleared)
{
    const auto node = makeNode<Document>("a");
    EXPECT_EQ(node->totalAllocation(), 0U);
    EXPECT_EQ(node->parent(), nullptr);
    EXPECT_EQ(node->hue(), 0);
    EXPECT_FALSE(node->rescanning() || node->selected() || node->hidden() || node->ignored());
}

TEST(File, NameIsTheFragment)
{
    EXPECT_EQ(makeNode<Document>("report.pdf")->name(), "report.pdf");
}

TEST(File, PseudoNodesHaveFixedNamesAndNoFragment)
{
    EXPECT_EQ(makeNode<FreeSpace>({})->name(), "Free Space");
    EXPECT_EQ(makeNode<Unknown>({})->name(), "Restricted Files");
    EXPECT_EQ(makeNode<TimeMachine>({})->name(), "Time Machine");
    EXPECT_EQ(makeNode<FreeSpace>({})->fragment(), "");
}

TEST(File, KeepsAnyBytesInAName)
{
    const std::string name("a\nb\xFF\0c", 6);
    EXPECT_EQ(makeNode<Document>(name)->fragment(), name);
    EXPECT_EQ(makeNode<Folder>(name)->fragment(), name);
}

TEST(File, KeepsNamesOfEveryLength)
{
    for (const std::size_t length : {0U, 1U, 7U, 8U, 9U, 253U, 254U, 255U, 256U, 4000U}) {
        const std::string name(length, 'x');
        EXPECT_EQ(makeNode<Document>(name)->fragment(), name);
        EXPECT_EQ(makeNode<Folder>(name)->fragment(), name);
        EXPECT_EQ(makeNode<TopFolder>(name)->fragment(), name);
    }
}

TEST(File, ARenamedNodeKeepsItsNewNameAlsoWhenLonger)
{
    const auto node = makeNode<Document>("short");
    for (const std::size_t length : {300U, 20U, 3U, 300U, 0U}) {
        const std::string name(length, 'n');
        node->setFragment(name);
        EXPECT_EQ(node->fragment(), name);
    }
}

TEST(File, ANameMayBeSetToAPartOfItself)
{
    const auto node = makeNode<Document>("abcdefghij");
    node->setFragment(node->fragment().substr(3));
    EXPECT_EQ(node->fragment(), "defghij");
}

TEST(File, SizeIsTheAllocationAsADouble)
{
    const auto node = makeNode<Document>("a");
    node->setTotalAllocation(4096);
    EXPECT_DOUBLE_EQ(node->size(), 4096.0);
}

TEST(File, SetHueKeepsTheLowFourBitsAndTheFlags)
{
    const auto node = makeNode<Document>("a");
    node->setSelected(true);
    node->setIgnored(true);
    node->setHue(17);
    EXPECT_EQ(node->hue(), 1);
    EXPECT_TRUE(node->selected());
    EXPECT_FALSE(node->hidden());
    EXPECT_TRUE(node->ignored());
    EXPECT_FALSE(node->rescanning());
}

TEST(File, EachFlagChangesAlone)
{
    const auto node = makeNode<Document>("a");
    node->setHue(9);
    node->setHidden(true);
    node->setRescanning(true);
    node->setHidden(false);
    EXPECT_TRUE(node->rescanning());
    EXPECT_FALSE(node->hidden());
    EXPECT_FALSE(node->selected());
    EXPECT_FALSE(node->ignored());
    EXPECT_EQ(node->hue(), 9);
}

TEST(File, ALoneNodeReturnsItsFragmentAsItsPath)
{
    const auto node = makeNode<Folder>("lone");
    EXPECT_EQ(node->absolutePath(), "lone");
}

TEST(File, UnderTheRootNoSlashIsDoubled)
{
    const auto top = test::makeTree("/", "Users/ ( x:1 )");
    EXPECT_EQ(test::at(*top, "Users").absolutePath(), "/Users");
    EXPECT_EQ(test::at(*top, "Users/x").absolutePath(), "/Users/x");
}

TEST(File, UrlOfADocumentIsNoDirectory)
{
    const auto top = test::makeTree("/home", "a:1 b/ ( )");
    EXPECT_EQ(test::at(*top, "a").url().absoluteString(), "file:///home/a");
    EXPECT_EQ(test::at(*top, "b").url().absoluteString(), "file:///home/b/");
}

TEST(File, CastsOnlyToItsOwnKinds)
{
    const auto folder = makeNode<Folder>("f");
    const auto top = makeNode<TopFolder>("t");
    const auto document = makeNode<Document>("d");
    EXPECT_EQ(nodeCast<TopFolder>(folder.get()), nullptr);
    EXPECT_EQ(nodeCast<Folder>(top.get()), top.get());
    EXPECT_EQ(nodeCast<Folder>(document.get()), nullptr);
    EXPECT_EQ(nodeCast<Folder>(static_cast<File*>(nullptr)), nullptr);
}

} // namespace
} // namespace tessera
