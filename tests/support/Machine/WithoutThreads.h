// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

namespace tessera::test {

/// Does the work on a thread that can start no others, as where the user has as many as the system
/// allows. False when the system does not let that be arranged; then nothing is done.
[[nodiscard]] bool withoutThreads(const std::function<void()>& work);

} // namespace tessera::test
