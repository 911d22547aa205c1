// SPDX-License-Identifier: MIT
#include "Platform/Linux/Files/ReadToEnd.h"

#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstddef>
#include <utility>

namespace tessera {

std::optional<std::string> readToEnd(const FileDescriptor& file)
{
    if (!file.isOpen()) {
        return std::nullopt; // errno is of the attempt to open it
    }
    std::string text;
    std::array<char, 4096> piece{};
    ssize_t count = 0;
    do {
        count = ::read(file.number(), piece.data(), piece.size());
        text.append(piece.data(), static_cast<std::size_t>(std::max<ssize_t>(count, 0)));
    } while (count > 0 || (count < 0 && errno == EINTR));
    return count == 0 ? std::optional(std::move(text)) : std::nullopt;
}

} // namespace tessera
