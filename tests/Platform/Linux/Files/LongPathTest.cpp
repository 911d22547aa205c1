// SPDX-License-Identifier: MIT
#include "Platform/Linux/Files/LongPath.h"

#include "Platform/Linux/Files/FileStatus.h"
#include "support/Machine/TempTree.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <cerrno>

namespace tessera::test {
namespace {

FileIdentity identityOf(const std::string& path)
{
    return statusAt(AT_FDCWD, path.c_str()).status.identity;
}

FileIdentity identityOf(const FileDescriptor& opened)
{
    return statusOf(opened.number()).status.identity;
}

TEST(LongPath, OpensTheFolderThatHoldsTheItem)
{
    const TempTree tree;
    const NamedPlace place = openFolderOf(tree.pathOf("item"));
    EXPECT_EQ(place.error, 0);
    EXPECT_EQ(place.name, "item");
    EXPECT_EQ(identityOf(place.folder), identityOf(tree.path()));
}

TEST(LongPath, SlashesAtTheEndMeanNothing)
{
    const TempTree tree;
    EXPECT_EQ(openFolderOf(tree.pathOf("item//")).name, "item");
}

TEST(LongPath, ANameAloneIsInTheCurrentFolder)
{
    const NamedPlace place = openFolderOf("item");
    EXPECT_EQ(place.name, "item");
    EXPECT_EQ(identityOf(place.folder), identityOf("."));
}

TEST(LongPath, ANameBelowTheRootIsInTheRoot)
{
    const NamedPlace place = openFolderOf("/item");
    EXPECT_EQ(place.name, "item");
    EXPECT_EQ(identityOf(place.folder), identityOf("/"));
}

TEST(LongPath, DotsAreResolved)
{
    const TempTree tree;
    tree.makeFolder("a");
    tree.makeFolder("a/b");
    EXPECT_EQ(openFolderOf(tree.pathOf("a/b/.")).name, "b");
    EXPECT_EQ(openFolderOf(tree.pathOf("a/b/..")).name, "a");
}

TEST(LongPath, TheRootIsInNoFolder)
{
    EXPECT_EQ(openFolderOf("/").error, EINVAL);
    EXPECT_EQ(openFolderOf("/tmp/..").error, EINVAL);
}

TEST(LongPath, AnEmptyPathIsAnError)
{
    EXPECT_NE(openFolderOf("").error, 0);
}

TEST(LongPath, AFolderThatIsMissingIsAnError)
{
    EXPECT_EQ(openFolderOf("/no/such/item").error, ENOENT);
}

TEST(LongPath, ANameTooLongForTheSystemIsAnError)
{
    EXPECT_EQ(openFolderOf("/" + std::string(10'000, 'n') + "/item").error, ENAMETOOLONG);
}

TEST(LongPath, PathsLongerThanTheSystemTakesAreOpened)
{
    const TempTree tree;
    tree.makeChain(6000);
    std::string path = tree.path();
    for (int i = 0; i < 6000; ++i) {
        path += "/d";
    }
    const NamedPlace place = openFolderOf(path + "/item");
    EXPECT_EQ(place.error, 0);
    const NamedPlace deepest = openFolderOf(path);
    EXPECT_EQ(identityOf(place.folder), statusAt(deepest.folder.number(), "d").status.identity);
}

TEST(LongPath, PathsAreCutAtWholeNamesWhereverThoseEnd)
{
    constexpr std::size_t kDepth = 2200; // more than one call takes
    const TempTree tree;
    tree.makeChain(kDepth);
    std::string below;
    for (std::size_t i = 1; i < kDepth; ++i) {
        below += "/d";
    }
    EXPECT_EQ(openFolderOf(tree.pathOf("d") + below + "/item").error, 0);
    tree.rename("d", "dd");
    EXPECT_EQ(openFolderOf(tree.pathOf("dd") + below + "/item").error, 0);
}

TEST(LongPathWithoutLinks, OpensTheFolderThatHoldsTheItem)
{
    const TempTree tree;
    tree.makeFolder("a");
    const NamedPlace place = openFolderOfWithoutLinks(tree.pathOf("a/item"));
    EXPECT_EQ(place.error, 0);
    EXPECT_EQ(place.name, "item");
    EXPECT_EQ(identityOf(place.folder), identityOf(tree.pathOf("a")));
}

TEST(LongPathWithoutLinks, ALinkOnTheWayIsAnError)
{
    const TempTree tree;
    tree.makeFolder("a");
    tree.makeFolder("a/b");
    tree.makeSymbolicLink("link", "a");
    EXPECT_EQ(openFolderOfWithoutLinks(tree.pathOf("link/item")).error, ELOOP);
    EXPECT_EQ(openFolderOfWithoutLinks(tree.pathOf("link/b/item")).error, ELOOP);
}

TEST(LongPathWithoutLinks, TheItemItselfMayBeALink)
{
    const TempTree tree;
    tree.makeSymbolicLink("link", "nowhere");
    const NamedPlace place = openFolderOfWithoutLinks(tree.pathOf("link"));
    EXPECT_EQ(place.error, 0);
    EXPECT_EQ(identityOf(place.folder), identityOf(tree.path()));
}

TEST(LongPathWithoutLinks, AFileOnTheWayIsAnError)
{
    const TempTree tree;
    tree.makeFile("file");
    EXPECT_EQ(openFolderOfWithoutLinks(tree.pathOf("file/item")).error, ENOTDIR);
}

TEST(LongPathWithoutLinks, WhatNamesNothingInAFolderIsAnError)
{
    for (const char* path : {"", "/", "relative", "/tmp/", "/tmp/.", "/tmp/.."}) {
        EXPECT_EQ(openFolderOfWithoutLinks(path).error, EINVAL) << path;
    }
}

TEST(LongPathWithoutLinks, ALinkFarDownALongPathIsAnError)
{
    constexpr std::size_t kDepth = 2200; // more than one call takes
    const TempTree tree;
    tree.makeChain(kDepth);
    std::string path = tree.path();
    for (std::size_t i = 0; i < kDepth; ++i) {
        path += "/d";
    }
    const NamedPlace deepest = openFolderOfWithoutLinks(path + "/link");
    ASSERT_EQ(deepest.error, 0);
    ASSERT_EQ(::symlinkat(".", deepest.folder.number(), "link"), 0);
    EXPECT_EQ(openFolderOfWithoutLinks(path + "/link/item").error, ELOOP);
}

} // namespace
} // namespace tessera::test
