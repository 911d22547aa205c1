// SPDX-License-Identifier: MIT
#include "Start/FolderToShow.h"

#include "Start/CommandLine.h"
#include "support/Fakes/FakePlaces.h"

#include <gtest/gtest.h>

#include <vector>

namespace tessera {
namespace {

using Place = CommandLine::Place;

std::string shown(
    Place place,
    const std::vector<std::string>& disks = {"/"},
    const std::string& home = "/home/me")
{
    test::FakeMountedVolumes volumes;
    for (const std::string& disk : disks) {
        volumes.list.push_back({.url = Url(disk, true)});
    }
    CommandLine commandLine;
    commandLine.place = place;
    commandLine.folder = place == Place::Folder ? "named" : "";
    return folderToShow(commandLine, home, volumes);
}

TEST(FolderToShow, AFolderIsShownAsItWasNamed)
{
    EXPECT_EQ(shown(Place::Folder), "named");
}

TEST(FolderToShow, TheHomeFolderIsTheUsers)
{
    EXPECT_EQ(shown(Place::Home), "/home/me");
}

TEST(FolderToShow, TheDiskIsTheInnermostThatHoldsTheHomeFolder)
{
    EXPECT_EQ(shown(Place::Disk, {"/", "/home", "/data"}), "/home");
    EXPECT_EQ(shown(Place::Disk, {"/home", "/"}), "/home");
}

TEST(FolderToShow, TheHomeFolderMayBeADisk)
{
    EXPECT_EQ(shown(Place::Disk, {"/", "/home/me"}), "/home/me");
}

TEST(FolderToShow, WhatOnlyBeginsLikeTheHomeFolderDoesNotHoldIt)
{
    EXPECT_EQ(shown(Place::Disk, {"/", "/ho", "/home/m", "/home/me/usb"}), "/");
}

TEST(FolderToShow, WithoutAnyDiskItIsTheRoot)
{
    EXPECT_EQ(shown(Place::Disk, {}), "/");
    EXPECT_EQ(shown(Place::Disk, {"/home/me/usb"}), "/");
}

} // namespace
} // namespace tessera
