// SPDX-License-Identifier: MIT
#include "Base/Url.h"

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

TEST(Url, ReadsBackWhatItWrites)
{
    for (const Url& url : {Url("/a b%#?\n\xFF;", false), Url("/home/me", true), Url("/", true)}) {
        EXPECT_EQ(Url::fromAbsoluteString(url.absoluteString()), url);
    }
}

TEST(Url, ReadsLowerCaseEscapesAndTheLocalHost)
{
    EXPECT_EQ(Url::fromAbsoluteString("file://localhost/a%c3%a9"), Url("/a\xC3\xA9", false));
}

TEST(Url, ReadsUrlsWithoutAPlaceForTheHost)
{
    EXPECT_EQ(Url::fromAbsoluteString("file:/a%20b/"), Url("/a b", true));
}

TEST(Url, ReadsSchemeAndHostInEitherCase)
{
    EXPECT_EQ(Url::fromAbsoluteString("FILE:///a"), Url("/a", false));
    EXPECT_EQ(Url::fromAbsoluteString("File://LocalHost/A"), Url("/A", false));
}

TEST(Url, KnowsUrlsFromPaths)
{
    EXPECT_TRUE(Url::isWrittenIn("file:/a"));
    EXPECT_TRUE(Url::isWrittenIn("FILE:a"));
    for (const char* path : {"", "file", "files:/a", "/file:/a", "./file:a", "fil\x05:/a"}) {
        EXPECT_FALSE(Url::isWrittenIn(path)) << path;
    }
}

TEST(Url, ReadsNothingElseThanAbsoluteFileUrls)
{
    for (const char* text :
         {"",
          "http://x/a",
          "file:///a%",
          "file:///a%4",
          "file:///a%G0",
          "file:///a%00b",
          "file://host/a",
          "file://",
          "file:",
          "file:a",
          "file:localhost/a",
          "file://localhosts/a",
          "/a"}) {
        EXPECT_EQ(Url::fromAbsoluteString(text), std::nullopt) << text;
    }
}

TEST(Url, WordsStartTextsInEitherCaseOfTheirLettersAlone)
{
    EXPECT_TRUE(startsWithWord("AZ.", "az."));
    EXPECT_TRUE(startsWithWord("Az", "az"));
    EXPECT_TRUE(startsWithWord("az and more", "az"));
    EXPECT_FALSE(startsWithWord("a", "az"));
    EXPECT_FALSE(startsWithWord("az\x0E", "az.")); // as far from the dot as capitals from letters
    EXPECT_FALSE(startsWithWord("@", "`")); // likewise, beside the capitals
    EXPECT_FALSE(startsWithWord("[", "{"));
}

TEST(Url, ATextThatEndsWithinAWordDoesNotStartWithIt)
{
    EXPECT_FALSE(startsWithWord(std::string_view("file:").substr(0, 3), "file:"));
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
