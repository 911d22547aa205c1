// SPDX-License-Identifier: MIT
#pragma once

#include "HelperPrograms/Archiver/SourceKind.h"

#include <optional>
#include <span>
#include <string>

namespace tessera {

/// The one thing that the archiver does: making the archive `target` of `source`, if that is of the
/// kind that whoever calls takes it for. Paths are bytes.
struct ArchiverCommandLine {
    std::string source;
    std::string target;
    SourceKind kind = SourceKind::Any;
};

/// Reads the arguments behind the program's name. Nothing is returned for other forms than the one
/// that archiverUsage() shows.
std::optional<ArchiverCommandLine> parseArchiverCommandLine(std::span<const char* const> arguments);

/// The text that the arguments ask for, which are --help or --version alone; null when they ask for
/// none.
const char* requestedArchiverText(std::span<const char* const> arguments);

/// How the program is called, in one line.
const char* archiverUsage();

} // namespace tessera
