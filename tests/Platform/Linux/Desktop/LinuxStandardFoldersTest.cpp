// SPDX-License-Identifier: MIT
#include "Platform/Linux/Desktop/LinuxStandardFolders.h"

#include "support/Machine/TempTree.h"

#include <gtest/gtest.h>

#include <fstream>

namespace tessera::test {
namespace {

TEST(LinuxStandardFolders, AreUrlsOfDirectories)
{
    EXPECT_EQ(LinuxStandardFolders().localApplications().absoluteString(), "file:///opt/");
    EXPECT_EQ(LinuxStandardFolders().localUsers().absoluteString(), "file:///home/");
}

TEST(LinuxStandardFolders, EquivalentsAreTheUserDirectories)
{
    const TempTree home;
    home.makeFolder(".config");
    std::ofstream(home.pathOf(".config/user-dirs.dirs"))
        << "XDG_VIDEOS_DIR=\"$HOME/Filme\"\nXDG_DESKTOP_DIR=\"$HOME/Schreibtisch\"\n";
    const LinuxStandardFolders folders;
    EXPECT_EQ(folders.equivalentLocation(LocationKind::Movies, home.path()), home.pathOf("Filme"));
    EXPECT_EQ(
        folders.equivalentLocation(LocationKind::Desktop, home.path()),
        home.pathOf("Schreibtisch"));
    EXPECT_EQ(folders.equivalentLocation(LocationKind::Music, home.path()), "");
}

TEST(LinuxStandardFolders, SomeEquivalentsHaveAFixedPlace)
{
    const LinuxStandardFolders folders;
    EXPECT_EQ(folders.equivalentLocation(LocationKind::Applications, "/no/home"), "/usr");
    EXPECT_EQ(
        folders.equivalentLocation(LocationKind::Library, "/no/home"), "/no/home/.local/share");
    EXPECT_EQ(
        folders.equivalentLocation(LocationKind::Trash, "/no/home"),
        "/no/home/.local/share/Trash/files");
    EXPECT_EQ(folders.equivalentLocation(LocationKind::Movies, "/no/home"), "/no/home/Videos");
    EXPECT_EQ(folders.equivalentLocation(LocationKind::Sites, "/no/home"), "");
    EXPECT_EQ(folders.equivalentLocation(LocationKind::Home, "/no/home"), "");
}

} // namespace
} // namespace tessera::test
