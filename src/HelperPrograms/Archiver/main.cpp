// SPDX-License-Identifier: MIT
#include "Compress/ArchiverStatus.h"
#include "HelperPrograms/Archiver/ArchiverCommandLine.h"
#include "HelperPrograms/Archiver/ArchiverLibraries.h"
#include "HelperPrograms/Archiver/ArchiverProgram.h"
#include "HelperPrograms/Archiver/ArchiverSystem.h"

#include <cstdio>
#include <span>

// NOLINTNEXTLINE(bugprone-exception-escape): out of memory ends the program
int main(int argc, char** argv)
{
    using namespace tessera;
    const std::span<const char* const> arguments(argv, static_cast<std::size_t>(argc));
    const auto behindName = arguments.subspan(argc > 0 ? 1 : 0);
    if (const char* text = requestedArchiverText(behindName)) {
        const bool isPrinted = std::fputs(text, stdout) >= 0 && std::fflush(stdout) == 0;
        return isPrinted ? archiver_status::kDone : archiver_status::kFailed;
    }
    const auto commandLine = parseArchiverCommandLine(behindName);
    if (!commandLine) {
        if (asksForLibraries(arguments.subspan(argc > 0 ? 1 : 0))) {
            (void)std::fputs(archiverLibraries().c_str(), stdout);
            return archiver_status::kDone;
        }
        (void)std::fprintf(stderr, "%s\n", archiverUsage());
        return archiver_status::kBadUsage;
    }
    endOnTerminationSignals(
        "tessera-ditto: stopped\n", {archiver_status::kNothingMade, archiver_status::kFailed});
    return runArchiver(*commandLine, *makeArchiverSystem());
}
