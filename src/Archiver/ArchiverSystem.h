// SPDX-License-Identifier: MIT
#pragma once

#include "Archiver/ArchiveFailure.h"
#include "Archiver/ArchiveOutput.h"
#include "Archiver/SourceWalk.h"

#include <cstdint>
#include <memory>
#include <string>
#include <variant>

namespace tessera {

/// What the archiver asks of the operating system. Paths are bytes of any length.
class ArchiverSystem {
public:
    template <typename Opened>
    using Result = std::variant<std::unique_ptr<Opened>, ArchiveFailure>;

    ArchiverSystem() = default;
    ArchiverSystem(const ArchiverSystem&) = delete;
    ArchiverSystem& operator=(const ArchiverSystem&) = delete;
    virtual ~ArchiverSystem() = default;

    /// Opens a folder, a file or a link for archiving, whatever slashes the path ends in.
    [[nodiscard]] virtual Result<SourceWalk> openSource(const std::string& path) = 0;

    /// Makes a new file. Fails when anything has that name, be it a link to nowhere.
    [[nodiscard]] virtual Result<ArchiveOutput> createTarget(
        const std::string& path, std::uint32_t permissions)
        = 0;
};

/// The one for the system that the program is built for.
std::unique_ptr<ArchiverSystem> makeArchiverSystem();

/// From now on a request to end the process writes `line` to standard error and ends it at once
/// with `exitStatus`. To be called once.
void endOnTerminationSignals(const char* line, int exitStatus);

} // namespace tessera
