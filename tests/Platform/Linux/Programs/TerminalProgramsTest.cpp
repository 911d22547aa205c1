// SPDX-License-Identifier: MIT
#include "Platform/Linux/Programs/TerminalPrograms.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>
#include <vector>

namespace tessera {
namespace {

using testing::ElementsAre;

std::vector<std::string> firstTerminals(const char* desktop, std::size_t count)
{
    std::vector<std::string> programs;
    for (const TerminalCommand& command : terminalCommands(desktop)) {
        programs.push_back(command.program);
    }
    programs.resize(std::min(count, programs.size()));
    return programs;
}

TEST(TerminalPrograms, WhatTheUserChoseComesFirstThenThoseOfTheDesktopThenTheSystems)
{
    EXPECT_THAT(
        firstTerminals("KDE", 3),
        ElementsAre("xdg-terminal-exec", "konsole", "x-terminal-emulator"));
    EXPECT_THAT(
        firstTerminals("XFCE", 3),
        ElementsAre("xdg-terminal-exec", "xfce4-terminal", "x-terminal-emulator"));
}

TEST(TerminalPrograms, ADesktopMayHaveSeveralNames)
{
    EXPECT_THAT(
        firstTerminals("ubuntu:GNOME", 5),
        ElementsAre("xdg-terminal-exec", "ptyxis", "kgx", "gnome-terminal", "x-terminal-emulator"));
}

TEST(TerminalPrograms, PartsOfADesktopsNameAreNotIt)
{
    EXPECT_THAT(
        firstTerminals("GNOME-Classic:XKDE", 2),
        ElementsAre("xdg-terminal-exec", "x-terminal-emulator"));
}

TEST(TerminalPrograms, EachIsTriedOnce)
{
    for (const char* const desktop : {"", "GNOME", "X-Cinnamon:GNOME"}) {
        const std::vector<std::string> all = firstTerminals(desktop, 100);
        EXPECT_EQ(std::set(all.begin(), all.end()).size(), all.size()) << desktop;
        EXPECT_EQ(all.back(), "xterm") << desktop;
    }
}

} // namespace
} // namespace tessera
