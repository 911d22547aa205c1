// SPDX-License-Identifier: MIT
#include "Archiver/ArchiverCommandLine.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace tessera {

namespace {

constexpr std::array<std::string_view, 3> kOptions{"-c", "-k", "--sequesterRsrc"};

} // namespace

std::optional<ArchiverCommandLine> parseArchiverCommandLine(std::span<const char* const> arguments)
{
    if (arguments.size() != kOptions.size() + 2
        || !std::equal(kOptions.begin(), kOptions.end(), arguments.begin())) {
        return std::nullopt;
    }
    ArchiverCommandLine commandLine{arguments[kOptions.size()], arguments[kOptions.size() + 1]};
    if (commandLine.source.empty() || commandLine.target.empty()) {
        return std::nullopt;
    }
    return commandLine;
}

const char* archiverUsage()
{
    return "usage: tessera-ditto -c -k --sequesterRsrc SOURCE TARGET";
}

} // namespace tessera
