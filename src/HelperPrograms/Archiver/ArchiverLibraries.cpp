// SPDX-License-Identifier: MIT
#include "HelperPrograms/Archiver/ArchiverLibraries.h"

#include <archive.h>

#include <string_view>

namespace tessera {

namespace {

constexpr int kThousand = 1000;

} // namespace

bool asksForLibraries(std::span<const char* const> arguments)
{
    return arguments.size() == 1 && std::string_view(arguments.front()) == "--libraries";
}

std::string archiverLibraries()
{
    // https://github.com/libarchive/libarchive/wiki/ManPageLibarchive3
    const int version = ::archive_version_number(); // 3006002 is 3.6.2
    return "libarchive " + std::to_string(version / kThousand / kThousand) + '.'
        + std::to_string(version / kThousand % kThousand) + '.'
        + std::to_string(version % kThousand) + '\n';
}

} // namespace tessera
