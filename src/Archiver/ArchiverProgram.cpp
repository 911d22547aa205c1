// SPDX-License-Identifier: MIT
#include "Archiver/ArchiverProgram.h"

#include "Archiver/Archiver.h"
#include "Utils/Log.h"

#include <cstddef>
#include <memory>
#include <string>
#include <variant>

namespace tessera {

namespace {

constexpr int kDone = 0;
constexpr int kFailed = 1;
constexpr int kNothingMade = 3;
constexpr std::uint32_t kReadAndWrite = 0666;
constexpr std::uint32_t kOwnerReadsAndWrites = 0600;

std::string andMore(std::size_t count)
{
    return count > 1 ? " (and " + std::to_string(count - 1) + " more)" : std::string();
}

int fail(const std::string& message, int exitStatus = kFailed)
{
    logLine("tessera-ditto: %s", message.c_str());
    return exitStatus;
}

int exitStatusFor(const ArchiveReport& report, const std::string& target)
{
    if (report.outputError != 0) {
        return fail(ArchiveFailure{report.outputError, "write", target}.text());
    }
    if (report.failureCount > 0) {
        return fail(report.firstFailure.text() + andMore(report.failureCount));
    }
    if (report.leftOutCount > 0) {
        logLine(
            "tessera-ditto: left out '%s', which has no content%s",
            report.firstLeftOut.c_str(),
            andMore(report.leftOutCount).c_str());
    }
    return kDone;
}

} // namespace

int runArchiver(const ArchiverCommandLine& commandLine, ArchiverSystem& system)
{
    auto opened = system.openSource(commandLine.source);
    if (const auto* failure = std::get_if<ArchiveFailure>(&opened)) {
        return fail(failure->text(), kNothingMade);
    }
    auto& source = *std::get<std::unique_ptr<SourceWalk>>(opened);
    // What others may not read they may not read in the archive either.
    const std::uint32_t permissions = (source.permissions() & kReadAndWrite) | kOwnerReadsAndWrites;
    auto created = system.createTarget(commandLine.target, permissions);
    if (const auto* failure = std::get_if<ArchiveFailure>(&created)) {
        return fail(failure->text(), kNothingMade);
    }
    auto& target = *std::get<std::unique_ptr<ArchiveOutput>>(created);
    source.passOver(commandLine.target);
    return exitStatusFor(Archiver(source, target).run(), commandLine.target);
}

} // namespace tessera
