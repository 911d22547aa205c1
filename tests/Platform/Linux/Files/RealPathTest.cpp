// SPDX-License-Identifier: MIT
#include "Platform/Linux/Files/RealPath.h"

#include "Platform/Linux/Files/FileDescriptor.h"
#include "Platform/Linux/Walk/LinuxFileManager.h"
#include "support/Machine/OwnMounts.h"
#include "support/Machine/TempTree.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

namespace tessera::test {
namespace {

TEST(RealPath, HasNoLinksInIt)
{
    const TempTree tree;
    tree.makeFolder("folder");
    tree.makeFolder("folder/sub");
    tree.makeSymbolicLink("link", "folder");
    EXPECT_EQ(realPath(tree.pathOf("link/sub")), tree.pathOf("folder/sub"));
    EXPECT_EQ(realPath(tree.pathOf("link")), tree.pathOf("folder"));
}

TEST(RealPath, OfWhatIsNotThereThereIsNone)
{
    const TempTree tree;
    tree.makeSymbolicLink("link", "nowhere");
    EXPECT_EQ(realPath(tree.pathOf("link")), std::nullopt);
}

TEST(RealPath, WhereTheTextOfALinkSaysSomethingElseThereIsNone)
{
    // The link of a removed folder that is open still names it, with a note behind.
    const TempTree tree;
    tree.makeFolder("folder");
    tree.makeFolder("folder (deleted)");
    const FileDescriptor folder(::open(tree.pathOf("folder").c_str(), O_PATH | O_CLOEXEC));
    tree.removeFolder("folder");
    const std::string link = "/proc/self/fd/" + std::to_string(folder.number());
    EXPECT_EQ(realPath(link), std::nullopt);
}

TEST(RealPath, WhereTheTextOfALinkLeadsToAnotherMountThereIsNone)
{
    if (!OwnMounts::enter()) {
        GTEST_SKIP() << "this process may not mount";
    }
    const TempTree tree;
    tree.makeFolder("folder");
    const std::string path = tree.pathOf("folder");
    const FileDescriptor below(::open(path.c_str(), O_PATH | O_CLOEXEC));
    OwnMounts mounts;
    mounts.bind(path, path);
    EXPECT_EQ(realPath("/proc/self/fd/" + std::to_string(below.number())), std::nullopt);
}

TEST(RealPath, AScansStartWithoutOneKeepsItsOwn)
{
    const TempTree tree;
    EXPECT_EQ(LinuxFileManager().pathWithoutLinks(tree.pathOf("gone")), tree.pathOf("gone"));
}

} // namespace
} // namespace tessera::test
