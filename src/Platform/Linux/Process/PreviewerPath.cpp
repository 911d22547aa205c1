// SPDX-License-Identifier: MIT
#include "Platform/Linux/Process/PreviewerPath.h"

#include <unistd.h>

namespace tessera {

std::string findPreviewer(const std::string& programFolder)
{
    std::string built = programFolder + "/tessera-preview";
    if (::access(built.c_str(), X_OK) == 0) {
        return built;
    }
    return programFolder.substr(0, programFolder.rfind('/')) + "/libexec/tessera/tessera-preview";
}

} // namespace tessera
