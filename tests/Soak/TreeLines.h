// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

namespace tessera {
class TopFolder;
} // namespace tessera

namespace tessera::test {

/// A line for each node, with its path, kind and size, sorted: equal for trees of the same content.
std::vector<std::string> treeLines(const TopFolder& top);

} // namespace tessera::test
