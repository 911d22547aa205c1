// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

namespace tessera {

/// How many bytes this process may still take before the system would have to end it or another:
/// what the machine has left without its swap, the control groups that the process is in leave of
/// their limits, and its own limit allows. What is kept of files in memory is room, for the machine
/// and for a group. Whatever the system does not tell is no limit. `root` is where /proc and /sys
/// are.
std::uint64_t availableMemory(const std::string& root = {});

} // namespace tessera
