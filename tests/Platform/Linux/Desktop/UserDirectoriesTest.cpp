// SPDX-License-Identifier: MIT
#include "Platform/Linux/Desktop/UserDirectories.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tessera {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

TEST(UserDirectories, AreBelowTheHomeDirectoryOrAbsolute)
{
    EXPECT_THAT(
        userDirectories(
            "# written by a program\n"
            "XDG_DESKTOP_DIR=\"$HOME/Schreibtisch\"\n"
            "  XDG_MUSIC_DIR = \"/data/my music/\"  \n",
            "/home/eve"),
        ElementsAre(
            Pair("XDG_DESKTOP_DIR", "/home/eve/Schreibtisch"),
            Pair("XDG_MUSIC_DIR", "/data/my music")));
}

TEST(UserDirectories, OneThatIsTurnedOffIsTheHomeDirectory)
{
    EXPECT_THAT(
        userDirectories("XDG_PUBLICSHARE_DIR=\"$HOME/\"\nXDG_MUSIC_DIR=\"$HOME\"", "/home/eve"),
        ElementsAre(Pair("XDG_MUSIC_DIR", "/home/eve"), Pair("XDG_PUBLICSHARE_DIR", "/home/eve")));
}

TEST(UserDirectories, QuotedCharactersStandForThemselves)
{
    EXPECT_THAT(
        userDirectories("XDG_MUSIC_DIR=\"$HOME/a\\\"b\\\\c\\$d\"", "/h"),
        ElementsAre(Pair("XDG_MUSIC_DIR", "/h/a\"b\\c$d")));
}

TEST(UserDirectories, TheLaterOfTwoCounts)
{
    EXPECT_THAT(userDirectories("A=\"/one\"\nA=\"/two\"\n", "/h"), ElementsAre(Pair("A", "/two")));
}

TEST(UserDirectories, OtherLinesAreLeftOut)
{
    EXPECT_THAT(
        userDirectories(
            "nonsense\n\nA=/unquoted\nB=\"relative\"\nC=\"/no end\nD=\nE=\"$HOMES/x\"\nF=\"\\",
            "/h"),
        IsEmpty());
}

} // namespace
} // namespace tessera
