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

const char* requestedArchiverText(std::span<const char* const> arguments)
{
    const std::string_view wish = arguments.size() == 1 ? arguments.front() : "";
    if (wish == "--help" || wish == "-h") {
        return "Usage: tessera-ditto -c -k --sequesterRsrc [--folder | --file] SOURCE TARGET\n"
               "\n"
               "Makes the zip archive TARGET of SOURCE, as Tessera does when it compresses. The\n"
               "archive is made as TARGET.part and gets its name when it is whole. Nothing is "
               "ever\n"
               "replaced or removed.\n"
               "\n"
               "Options:\n"
               "  -c               make an archive\n"
               "  -k               of the zip format\n"
               "  --sequesterRsrc  with extended attributes in a folder of their own\n"
               "  --folder         only if SOURCE is a folder\n"
               "  --file           only if SOURCE is no folder\n"
               "  -h, --help       print this text\n"
               "  --version        print the version\n"
               "\n"
               "The first three are always given, in this order.\n"
               "\n"
               "Exit status: 0 done, 1 failed and a part may be left, 2 the command line makes no\n"
               "sense, 3 nothing was made, 4 the disk is full.\n";
    }
    return wish == "--version" ? "tessera-ditto " TESSERA_VERSION "\n" : nullptr;
}

const char* archiverUsage()
{
    return "usage: tessera-ditto -c -k --sequesterRsrc [--folder | --file] SOURCE TARGET";
}

} // namespace tessera
