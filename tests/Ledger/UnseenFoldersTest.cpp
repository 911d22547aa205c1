// SPDX-License-Identifier: MIT
#include "Ledger/UnseenFolders.h"

#include "Model/TopFolder.h"
#include "support/MakeTree.h"

#include <gtest/gtest.h>

#include <cerrno>

namespace tessera {
namespace {

using test::at;

const std::error_code kDenied(EACCES, std::system_category());

void close(TopFolder& root, std::string_view path)
{
    const File& folder = at(root, path);
    root.findings().addUnreadable({folder.absolutePath(), kDenied, &folder});
}

TEST(UnseenFolders, AreNoneWhereAllWasSeen)
{
    EXPECT_EQ(unseenFolders(*test::makeTree("/t", "a/ ( x:1 )")), UnseenFolders());
}

TEST(UnseenFolders, AreThoseThatCouldNotBeReadAndThoseLeftOut)
{
    const auto root = test::makeTree("/t", "a/ ( ) b/ ( ) .me/ ( ) c/ ( .me/ ( ) )");
    close(*root, "a");
    root->findings().addLeftOut(at(*root, ".me"));
    root->findings().addLeftOut(at(*root, "c/.me"));
    EXPECT_EQ(unseenFolders(*root), (UnseenFolders{{{"/t/a", kDenied}}, 1, 2}));
}

TEST(UnseenFolders, AreWithoutThoseInWhatIsMountedInTheTree)
{
    const auto root = test::makeTree("/t", "a/ ( ) me/ ( in/ ( ) .me/ ( ) ) men/ ( )");
    root->findings().addMounted(at(*root, "me"));
    close(*root, "a");
    close(*root, "me/in");
    close(*root, "men");
    root->findings().addLeftOut(at(*root, "me/.me"));
    EXPECT_EQ(
        unseenFolders(*root), (UnseenFolders{{{"/t/a", kDenied}, {"/t/men", kDenied}}, 2, 0}));
}

TEST(UnseenFolders, AreWithoutTheMountItself)
{
    const auto root = test::makeTree("/t", "me/ ( )");
    root->findings().addMounted(at(*root, "me"));
    close(*root, "me");
    EXPECT_EQ(unseenFolders(*root), UnseenFolders());
}

TEST(UnseenFolders, CountThoseWithoutANameWhereTheyAre)
{
    const auto root = test::makeTree("/t", "a/ ( ) me/ ( in/ ( ) )");
    root->findings().addMounted(at(*root, "me"));
    root->findings().addUnreadable(
        {std::string(ScanFindings::kMostPathBytes, 'x'), kDenied, &at(*root, "me")});
    close(*root, "a");
    close(*root, "me/in");
    ASSERT_EQ(root->findings().unnamed().size(), 2U);
    EXPECT_EQ(unseenFolders(*root), (UnseenFolders{{}, 1, 0}));
}

} // namespace
} // namespace tessera
