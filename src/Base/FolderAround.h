// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <cstddef>
#include <string_view>

namespace tessera {

/// The absolute path of the folder that holds what is at an absolute path, as a part of that; "/"
/// is in itself. Empty where the path is.
[[nodiscard]] inline std::string_view folderAround(std::string_view path)
{
    return path.substr(0, std::max<std::size_t>(path.rfind('/'), 1));
}

} // namespace tessera
