// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <system_error>

namespace tessera {

/// Has a thread of its own do the work, which nobody waits for; says why where the system has no
/// thread left, and then nothing is done. Callable from any thread.
[[nodiscard]] std::error_code startThread(std::function<void()> work);

} // namespace tessera
