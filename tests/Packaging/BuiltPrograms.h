// SPDX-License-Identifier: MIT
#pragma once

#include <sstream>
#include <string>
#include <vector>

namespace tessera::test {

/// The paths of all programs of the build.
inline std::vector<std::string> builtPrograms()
{
    std::istringstream paths(TESSERA_PROGRAMS);
    std::vector<std::string> programs;
    for (std::string path; std::getline(paths, path, ':');) {
        programs.push_back(path);
    }
    return programs;
}

} // namespace tessera::test
