// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <variant>

namespace tessera {

/// What the user asked for on the command line. Paths are bytes, as the system gave them.
struct CommandLine {
    enum class Action { ShowWindow, WritePicture, PrintHelp, PrintVersion };

    /// What is to be shown: a folder by its name, or what has another name for each user.
    enum class Place { Folder, Home, Disk };

    static constexpr int kDefaultWidth = 1600;
    static constexpr int kDefaultHeight = 1000;

    Action action = Action::ShowWindow;
    Place place = Place::Folder;
    std::string folder; ///< of Place::Folder; empty: none named
    std::string pictureFile;
    int width = kDefaultWidth; ///< of the picture, in points
    int height = kDefaultHeight;
    double scale = 1; ///< pixels a point

    /// How many bytes it takes to make the picture.
    std::uint64_t pictureMemory() const;
};

/// A command line that makes no sense; the message says why in one line.
struct CommandLineError {
    std::string message;
};

/// Reads the arguments behind the program's name.
std::variant<CommandLine, CommandLineError> parseCommandLine(
    std::span<const char* const> arguments);

/// What --help prints.
std::string commandLineHelp();

} // namespace tessera
