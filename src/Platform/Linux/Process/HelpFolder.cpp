// SPDX-License-Identifier: MIT
#include "Platform/Linux/Process/HelpFolder.h"

#include <unistd.h>

#include <array>

namespace tessera {

std::string findHelpFolder(const std::string& programFolder)
{
    const std::string installation = programFolder.substr(0, programFolder.rfind('/'));
    const std::array candidates{programFolder + "/help", installation + "/share/tessera/help"};
    for (const std::string& candidate : candidates) {
        if (::access(candidate.c_str(), R_OK | X_OK) == 0) {
            return candidate;
        }
    }
    return {};
}

} // namespace tessera
