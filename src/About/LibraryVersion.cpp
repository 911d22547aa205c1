// SPDX-License-Identifier: MIT
#include "About/LibraryVersion.h"

#include <algorithm>

namespace tessera {

std::vector<LibraryVersion> readLibraryVersions(std::string_view lines)
{
    std::vector<LibraryVersion> libraries;
    while (!lines.empty()) {
        const std::string_view line = lines.substr(0, lines.find('\n'));
        const std::size_t space = line.rfind(' ');
        if (space != std::string_view::npos && space > 0 && space + 1 < line.size()) {
            libraries.push_back(
                {std::string(line.substr(0, space)), std::string(line.substr(space + 1))});
        }
        lines.remove_prefix(std::min(line.size() + 1, lines.size()));
    }
    return libraries;
}

} // namespace tessera
