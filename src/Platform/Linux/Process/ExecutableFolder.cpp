// SPDX-License-Identifier: MIT
#include "Platform/Linux/Process/ExecutableFolder.h"

#include <unistd.h>

#include <array>
#include <climits>

namespace tessera {

std::string executableFolder()
{
    std::array<char, PATH_MAX> path{};
    const ssize_t length = ::readlink("/proc/self/exe", path.data(), path.size());
    if (length <= 0) {
        return {};
    }
    const std::string program(path.data(), static_cast<std::size_t>(length));
    return program.substr(0, program.rfind('/'));
}

} // namespace tessera
