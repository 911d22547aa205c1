// SPDX-License-Identifier: MIT
// What a walk makes of items that change between being listed and being read.
#include "support/Machine/TempTree.h"
#include "support/Machine/WalkTree.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tessera::test {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::Not;

/// "a" with a file in it, and "elsewhere" beside the walked folder, which nothing may lead to.
class ChangingTree : public testing::Test {
protected:
    ChangingTree()
    {
        m_tree.makeFolder("walked");
        m_tree.makeFolder("walked/a");
        m_tree.makeFile("walked/a/file");
        m_tree.makeFolder("elsewhere");
        m_tree.makeFile("elsewhere/intruder");
    }

    /// The paths of a walk during which `change` happens once "a" was delivered.
    std::vector<std::string> walkChanging(const std::function<void()>& change)
    {
        return sortedPaths(
            m_tree.pathOf("walked"), kOnDemand, [&](const WalkedItem& item, DirectoryEnumerator&) {
                if (item.path == "a") {
                    change();
                }
            });
    }

    const TempTree& tree() const { return m_tree; }

private:
    TempTree m_tree;
};

TEST_F(ChangingTree, AFolderThatVanishesComesEmpty)
{
    const auto paths = walkChanging([&] {
        tree().removeFile("walked/a/file");
        tree().removeFolder("walked/a");
    });
    EXPECT_THAT(paths, ElementsAre("a"));
}

TEST_F(ChangingTree, AFolderThatTurnsIntoAFileComesEmpty)
{
    const auto paths = walkChanging([&] {
        tree().rename("walked/a", "moved");
        tree().makeFile("walked/a");
    });
    EXPECT_THAT(paths, ElementsAre("a"));
}

TEST_F(ChangingTree, AFolderThatTurnsIntoALinkIsNotFollowed)
{
    const auto paths = walkChanging([&] {
        tree().rename("walked/a", "moved");
        tree().makeSymbolicLink("walked/a", "../elsewhere");
    });
    EXPECT_THAT(paths, ElementsAre("a"));
}

TEST_F(ChangingTree, AFolderThatTurnsIntoAFifoDoesNotStopTheWalk)
{
    const auto paths = walkChanging([&] {
        tree().rename("walked/a", "moved");
        tree().makeFifo("walked/a");
    });
    EXPECT_THAT(paths, ElementsAre("a"));
}

TEST_F(ChangingTree, AFolderAboveThatIsMovedAwayDoesNotLeadElsewhere)
{
    tree().makeFolder("walked/a/b");
    tree().makeFile("walked/a/b/c");
    tree().makeFolder("elsewhere/b");
    tree().makeFile("elsewhere/b/intruder");
    const auto onItem = [&](const WalkedItem& item, DirectoryEnumerator&) {
        if (item.path == "a/b") {
            tree().rename("walked/a", "moved");
            tree().rename("elsewhere", "walked/a");
        }
    };
    const auto paths = sortedPaths(tree().pathOf("walked"), kOnDemand, onItem);
    EXPECT_THAT(paths, Contains("a/b/c"));
    EXPECT_THAT(paths, Not(Contains("a/b/intruder")));
}

TEST_F(ChangingTree, AFileMadeAfterItsFolderWasListedDoesNotCome)
{
    const auto paths = walkChanging([&] { tree().makeFile("walked/late"); });
    EXPECT_THAT(paths, ElementsAre("a", "a/file"));
}

} // namespace
} // namespace tessera::test
