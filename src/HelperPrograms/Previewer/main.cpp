// SPDX-License-Identifier: MIT
#include "HelperPrograms/Previewer/AnswerWriter.h"
#include "HelperPrograms/Previewer/FileDevice.h"
#include "HelperPrograms/Previewer/Previewer.h"
#include "HelperPrograms/Previewer/PreviewerSystem.h"
#include "QuickLook/Reading/RasterArguments.h"

#include <cstdio>
#include <cstdlib>
#include <span>

namespace {

constexpr int kFailed = 1;
constexpr int kBadUsage = 2;

int fail(const char* line, int status)
{
    (void)std::fprintf(stderr, "%s\n", line);
    return status;
}

} // namespace

// NOLINTNEXTLINE(bugprone-exception-escape): out of memory ends the program
int main(int argc, char** argv)
{
    using namespace tessera;
    const std::span<const char* const> arguments(argv, static_cast<std::size_t>(argc));
    const auto request = parseRasterArguments(arguments.subspan(argc > 0 ? 1 : 0));
    if (!request) {
        return fail("usage: tessera-preview picture|pages WIDTH HEIGHT <FILE", kBadUsage);
    }
    const PreviewerInput input = standardInput();
    if (input.file == nullptr) {
        return fail("tessera-preview: standard input is no regular file", kFailed);
    }
    if (!limitProcess()) {
        return fail("tessera-preview: the limits cannot be set", kFailed);
    }
    loadDecoders();
    confineProcess();
    FileDevice device(*input.file, input.length);
    AnswerWriter writer(writeStandardOutput);
    const bool isDone = answerRequest(*request, device, writer);
    // Whoever waits for the answer has it, and nothing is left to be tidied up.
    std::_Exit(isDone ? 0 : kFailed);
}
