// SPDX-License-Identifier: MIT
#include "Model/Url.h"

#include <gtest/gtest.h>

namespace tessera {
namespace {

TEST(Url, ADirectorysEndsInASlash)
{
    EXPECT_EQ(Url("/home/me", true).absoluteString(), "file:///home/me/");
    EXPECT_EQ(Url("/home/me", false).absoluteString(), "file:///home/me");
}

TEST(Url, TheRootHasOneSlash)
{
    EXPECT_EQ(Url("/", true).absoluteString(), "file:///");
    EXPECT_EQ(Url("//", true).path(), "/");
}

TEST(Url, TrailingSlashesOfAPathAreDropped)
{
    EXPECT_EQ(Url("/a/b//", true).path(), "/a/b");
}

TEST(Url, EncodesEveryByteThatIsNoPathCharacter)
{
    EXPECT_EQ(Url("/a b%#?\n\xFF;", false).absoluteString(), "file:///a%20b%25%23%3F%0A%FF%3B");
}

TEST(Url, LeavesPathCharactersAsTheyAre)
{
    EXPECT_EQ(Url("/-._~!$&'()*+,=:@", false).absoluteString(), "file:///-._~!$&'()*+,=:@");
}

TEST(Url, LastPathComponentIsTheNameWithoutSlashes)
{
    EXPECT_EQ(lastPathComponent("/home/me/"), "me");
    EXPECT_EQ(lastPathComponent("/home/me"), "me");
    EXPECT_EQ(lastPathComponent("/"), "/");
    EXPECT_EQ(lastPathComponent("me"), "me");
}

} // namespace
} // namespace tessera
