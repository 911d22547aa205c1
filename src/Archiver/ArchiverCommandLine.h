// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <span>
#include <string>

namespace tessera {

/// The one thing that the archiver does: making the archive `target` of `source`. Paths are bytes.
struct ArchiverCommandLine {
    std::string source;
    std::string target;
};

/// Reads the arguments behind the program's name. They have one form only; nothing is returned for
/// any other.
std::optional<ArchiverCommandLine> parseArchiverCommandLine(std::span<const char* const> arguments);

/// How the program is called, in one line.
const char* archiverUsage();

} // namespace tessera
