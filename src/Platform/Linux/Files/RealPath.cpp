// SPDX-License-Identifier: MIT
#include "Platform/Linux/Files/RealPath.h"

#include "Platform/Linux/Files/FileStatus.h"

#include <fcntl.h>

#include <cstdlib>
#include <memory>

namespace tessera {

std::optional<std::string> realPath(const std::string& path)
{
    const std::unique_ptr<char, decltype(&std::free)> resolved(
        ::realpath(path.c_str(), nullptr), &std::free);
    if (resolved == nullptr) {
        return std::nullopt;
    }
    // The kernel's own links, those in /proc, lead to where their text does not.
    const StatusResult byText = statusAt(AT_FDCWD, resolved.get());
    const StatusResult byLinks = statusAt(AT_FDCWD, path.c_str(), LinkMode::Follow);
    const bool isSame = byText && byLinks && byText.status.identity == byLinks.status.identity
        && byText.status.mountId == byLinks.status.mountId;
    return isSame ? std::optional<std::string>(resolved.get()) : std::nullopt;
}

} // namespace tessera
