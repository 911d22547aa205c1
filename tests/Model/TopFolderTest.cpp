// SPDX-License-Identifier: MIT
#include "Model/TopFolder.h"

#include "support/MakeTree.h"

#include <gtest/gtest.h>

namespace tessera {
namespace {

TEST(TopFolder, AbsolutePathIsTheOriginAlsoInsideAnotherTree)
{
    const auto outer = test::makeTree("/home", "old/ ( )");
    outer->replaceChild(test::at(*outer, "old"), test::makeTree("/elsewhere/new", "x:5"));
    EXPECT_EQ(test::at(*outer, "new").absolutePath(), "/elsewhere/new");
    EXPECT_EQ(test::at(*outer, "new/x").absolutePath(), "/elsewhere/new/x");
}

TEST(TopFolder, ANodeWasReadByTheInnermostScanAroundIt)
{
    const auto outer = test::makeTree("/home", "old/ ( ) x:5");
    outer->setScanBegan({100, 1});
    auto inner = test::makeTree("/home/new", "a/ ( y:5 )");
    inner->setScanBegan({200, 2});
    outer->replaceChild(test::at(*outer, "old"), std::move(inner));
    EXPECT_EQ(scanBeganOf(test::at(*outer, "x")), (FileTime{100, 1}));
    EXPECT_EQ(scanBeganOf(test::at(*outer, "new/a/y")), (FileTime{200, 2}));
    EXPECT_EQ(scanBeganOf(test::at(*outer, "new")), (FileTime{200, 2}));
}

TEST(TopFolder, ANodeOfNoScanWasNeverRead)
{
    EXPECT_EQ(scanBeganOf(*makeNode<Folder>("a")), FileTime());
}

} // namespace
} // namespace tessera
