// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <string>
#include <vector>

namespace tessera {

/// For each path (bytes), whether the system says that nothing is there. What it does not say in
/// time, because the path lies on a disk that does not answer, counts as still there: a server
/// that is down for an hour has lost nothing.
std::vector<bool> gonePaths(
    const std::vector<std::string>& paths, std::chrono::milliseconds timeLimit);

} // namespace tessera
