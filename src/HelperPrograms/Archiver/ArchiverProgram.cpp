// SPDX-License-Identifier: MIT
#include "HelperPrograms/Archiver/ArchiverProgram.h"

#include "Base/Log.h"
#include "Compress/ArchiverStatus.h"
#include "HelperPrograms/Archiver/Archiver.h"

#include <cerrno>
#include <cstddef>
#include <memory>
#include <string>
#include <variant>

namespace tessera {

namespace {

std::string andMore(std::size_t count)
{
    return count > 1 ? " (and " + std::to_string(count - 1) + " more)" : std::string();
}

int fail(const ArchiveFailure& failure, int exitStatus, std::size_t count = 1)
{
    logLine("tessera-ditto: %s%s", failure.text().c_str(), andMore(count).c_str());
    return exitStatus;
}

/// A line, if there is anything to say.
void note(const CountedItems& items, const char* before, const char* behind)
{
    if (items.count > 0) {
        logLine(
            "tessera-ditto: %s'%s'%s%s",
            before,
            items.first.c_str(),
            behind,
            andMore(items.count).c_str());
    }
}

void noteWhatIsMissing(const ArchiveReport& report)
{
    note(report.leftOut, "left out ", ", which has no content");
    note(report.vanished, "left out ", ", which vanished meanwhile");
    note(report.lackingAttributes, "left out attributes of ", ", which cannot be read");
    note(report.shrunk, "", " became shorter while it was read");
}

int outputFailure(int error, const std::string& path, ArchiveOutput& target)
{
    target.giveRoomBack();
    const bool isFull = error == ENOSPC || error == EDQUOT;
    return fail(
        {error, "write", path}, isFull ? archiver_status::kDiskFull : archiver_status::kFailed);
}

int finish(const ArchiveReport& report, const std::string& path, ArchiveOutput& target)
{
    if (report.outputError != 0) {
        return outputFailure(report.outputError, path, target);
    }
    if (report.failureCount > 0) {
        return fail(report.firstFailure, archiver_status::kFailed, report.failureCount);
    }
    if (const int error = target.publish(); error != 0) {
        return fail({error, "create", path}, archiver_status::kFailed);
    }
    noteWhatIsMissing(report);
    return archiver_status::kDone;
}

} // namespace

int runArchiver(const ArchiverCommandLine& commandLine, ArchiverSystem& system)
{
    auto opened = system.openSource(commandLine.source, commandLine.kind);
    if (const auto* failure = std::get_if<ArchiveFailure>(&opened)) {
        return fail(*failure, archiver_status::kNothingMade);
    }
    auto created = system.createTarget(commandLine.target);
    if (const auto* failure = std::get_if<ArchiveFailure>(&created)) {
        return fail(*failure, archiver_status::kNothingMade);
    }
    auto& source = *std::get<std::unique_ptr<SourceWalk>>(opened);
    auto& target = *std::get<std::unique_ptr<ArchiveOutput>>(created);
    source.passOver(target.identity());
    return finish(Archiver(source, target).run(), commandLine.target, target);
}

} // namespace tessera
