// SPDX-License-Identifier: MIT
#pragma once

#include "HelperPrograms/Archiver/ArchiveFailure.h"
#include "HelperPrograms/Archiver/ArchiveOutput.h"
#include "HelperPrograms/Archiver/SourceKind.h"
#include "HelperPrograms/Archiver/SourceWalk.h"

#include <memory>
#include <string>
#include <variant>

namespace tessera {

/// What the archiver asks of the operating system. Paths are bytes of any length. The folder that
/// two paths have in common is opened once: whoever swaps it meanwhile cannot have one folder's
/// content archived in another, where more people may read it.
class ArchiverSystem {
public:
    template <typename Opened>
    using Result = std::variant<std::unique_ptr<Opened>, ArchiveFailure>;

    ArchiverSystem() = default;
    ArchiverSystem(const ArchiverSystem&) = delete;
    ArchiverSystem& operator=(const ArchiverSystem&) = delete;
    virtual ~ArchiverSystem() = default;

    /// Opens a folder, a file or a link for archiving, whatever slashes the path ends in. Fails
    /// when it is of another kind.
    [[nodiscard]] virtual Result<SourceWalk> openSource(const std::string& path, SourceKind kind)
        = 0;

    /// Makes a new file that its owner alone may read, which will become the archive at `path`,
    /// and tells its identity on standard output. Fails when anything has the one's name or the
    /// other's, be it a link to nowhere.
    [[nodiscard]] virtual Result<ArchiveOutput> createTarget(const std::string& path) = 0;
};

/// The one for the system that the program is built for.
std::unique_ptr<ArchiverSystem> makeArchiverSystem();

/// What a process ends with when it is asked to end.
struct StoppedStatus {
    int nothingMade; ///< as long as it has not created its target
    int fragmentMade;
};

/// From now on a request to end the process writes `line` to standard error and ends it at once.
/// To be called once.
void endOnTerminationSignals(const char* line, StoppedStatus status);

} // namespace tessera
