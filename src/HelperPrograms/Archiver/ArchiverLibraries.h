// SPDX-License-Identifier: MIT
#pragma once

#include <span>
#include <string>

namespace tessera {

/// Whether the arguments behind the program's name ask which libraries it runs with, as the window
/// about the program does.
bool asksForLibraries(std::span<const char* const> arguments);

/// A line for each: its name, a space and its version.
std::string archiverLibraries();

} // namespace tessera
