// SPDX-License-Identifier: MIT
#pragma once

#include <cerrno>
#include <system_error>

namespace tessera {

/// What the system call that has just failed says of the reason.
inline std::error_code lastError()
{
    return {errno, std::generic_category()};
}

} // namespace tessera
