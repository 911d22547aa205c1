// SPDX-License-Identifier: MIT
#include "Platform/Linux/Files/WriteAll.h"

#include "Platform/Linux/Files/LastError.h"

#include <unistd.h>

namespace tessera {

std::error_code writeBytes(const FileDescriptor& file, std::string_view bytes)
{
    while (!bytes.empty()) {
        const ssize_t written = ::write(file.number(), bytes.data(), bytes.size());
        if (written < 0) {
            const std::error_code error = lastError();
            if (error == std::errc::interrupted) {
                continue;
            }
            return error;
        }
        bytes.remove_prefix(static_cast<std::size_t>(written));
    }
    return {};
}

std::error_code writeAll(const FileDescriptor& file, std::string_view bytes)
{
    if (const std::error_code error = writeBytes(file, bytes)) {
        return error;
    }
    // A full disk or a lost mount may only show itself now.
    return ::fsync(file.number()) == 0 ? std::error_code{} : lastError();
}

} // namespace tessera
