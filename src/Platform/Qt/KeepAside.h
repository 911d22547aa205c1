// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>

namespace tessera {

/// Moves a file that cannot be understood out of the way, to the first free name of
/// "PATH.corrupt-1", "PATH.corrupt-2" and so on, so that a new one can be written and nothing is
/// lost. False when it could not be moved.
[[nodiscard]] bool keepAside(const std::filesystem::path& path);

} // namespace tessera
