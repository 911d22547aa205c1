// SPDX-License-Identifier: MIT
#include "Platform/Qt/KeepAside.h"

#include <string>
#include <system_error>

namespace tessera {

bool keepAside(const std::filesystem::path& path)
{
    // Somebody whose file breaks this often has another problem than us.
    constexpr int kMaxKept = 1000;
    for (int number = 1; number <= kMaxKept; ++number) {
        std::filesystem::path target = path;
        target += ".corrupt-" + std::to_string(number);
        std::error_code error;
        if (std::filesystem::exists(std::filesystem::symlink_status(target, error))) {
            continue;
        }
        std::filesystem::rename(path, target, error);
        return !error;
    }
    return false;
}

} // namespace tessera
