// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>

namespace tessera {

/// The path with no link, dots or slashes too many in it that leads where `path` leads; nothing
/// when that leads nowhere, or to a place that no such path leads to, like the root that another
/// process has. Takes as long as the file systems on the way do.
[[nodiscard]] std::optional<std::string> realPath(const std::string& path);

} // namespace tessera
