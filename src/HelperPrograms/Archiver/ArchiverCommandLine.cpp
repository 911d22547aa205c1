// SPDX-License-Identifier: MIT
#include "HelperPrograms/Archiver/ArchiverCommandLine.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>

namespace tessera {

namespace {

constexpr std::array<std::string_view, 3> kOptions{"-c", "-k", "--sequesterRsrc"};

constexpr std::size_t kPaths = 2;

/// The kind that stands before the paths, or nothing when that is no option for one.
std::optional<SourceKind> kindOf(std::string_view option)
{
    if (option == "--folder") {
        return SourceKind::Folder;
    }
    return option == "--file" ? std::optional(SourceKind::File) : std::nullopt;
}

} // namespace

std::optional<ArchiverCommandLine> parseArchiverCommandLine(std::span<const char* const> arguments)
{
    if (arguments.size() < kOptions.size() + kPaths
        || !std::equal(kOptions.begin(), kOptions.end(), arguments.begin())) {
        return std::nullopt;
    }
    std::span<const char* const> rest = arguments.subspan(kOptions.size());
    auto kind = std::optional(SourceKind::Any);
    if (rest.size() > kPaths) {
        kind = kindOf(rest.front());
        rest = rest.subspan(1);
    }
    if (!kind || rest.size() != kPaths) {
        return std::nullopt;
    }
    ArchiverCommandLine commandLine{rest[0], rest[1], *kind};
    if (commandLine.source.empty() || commandLine.target.empty()) {
        return std::nullopt;
    }
    return commandLine;
}

const char* archiverUsage()
{
    return "usage: tessera-ditto -c -k --sequesterRsrc [--folder | --file] SOURCE TARGET";
}

} // namespace tessera
