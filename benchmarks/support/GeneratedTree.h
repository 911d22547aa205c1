// SPDX-License-Identifier: MIT
#pragma once

#include "Model/TopFolder.h"

#include <cstddef>
#include <memory>
#include <string_view>

namespace tessera::bench {

/// A tree in memory of about `items` nodes, the same at every run: one folder in 17 items, sizes
/// skewed as on real disks, three folders that hold a tenth of all items each, and twenty chains of
/// folders 200 deep.
std::unique_ptr<TopFolder> generateTree(std::size_t items);

/// A folder with `files` files and nothing else.
std::unique_ptr<TopFolder> generateFlatFolder(std::size_t files);

/// The names of the folders of generateTree() that hold a tenth of all items each.
inline constexpr std::string_view kCrowdedPrefix = "crowded-";

} // namespace tessera::bench
