// SPDX-License-Identifier: MIT
#include "Platform/Linux/Walk/HiddenList.h"

#include "Platform/Linux/Files/FileDescriptor.h"
#include "Platform/Linux/Walk/DirectoryListing.h"
#include "support/Machine/TempTree.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <array>
#include <string>

namespace tessera::test {
namespace {

bool isListed(const TempTree& tree, std::string_view name)
{
    const FileDescriptor folder(::open(tree.path().c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    DirectoryListing listing;
    listing.append(name, 1, DirectoryListing::Kind::Regular);
    return HiddenList(folder.number(), listing).contains(name);
}

TEST(HiddenList, HasTheLinesOfTheFile)
{
    const TempTree tree;
    tree.writeFile(".hidden", "a\nb");
    EXPECT_TRUE(isListed(tree, "b"));
}

TEST(HiddenList, OfALinkHasNothing)
{
    const TempTree tree;
    tree.writeFile("list", "a\n");
    tree.makeSymbolicLink(".hidden", "list");
    EXPECT_FALSE(isListed(tree, "a"));
}

TEST(HiddenList, DoesNotWaitForTheOtherEndOfAPipe)
{
    const TempTree tree;
    tree.makeFifo(".hidden");
    EXPECT_FALSE(isListed(tree, "a"));
}

TEST(HiddenList, LeavesWhatIsInAPipeToWhomItIsFor)
{
    const TempTree tree;
    tree.makeFifo(".hidden");
    const FileDescriptor pipe(
        ::open(tree.pathOf(".hidden").c_str(), O_RDWR | O_NONBLOCK | O_CLOEXEC));
    ASSERT_EQ(::write(pipe.number(), "a\n", 2), 2);
    EXPECT_FALSE(isListed(tree, "a"));
    std::array<char, 8> left{};
    EXPECT_EQ(::read(pipe.number(), left.data(), left.size()), 2);
}

} // namespace
} // namespace tessera::test
