// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

namespace tessera::test {

/// One item of a tree that is written as text.
struct TreeTextItem {
    std::string_view name; ///< into the text
    unsigned level = 0; ///< 1 for what stands outside all parentheses
    bool isDirectory = false;
    bool isHidden = false; ///< the name starts with "."
    std::uint64_t bytes = 0; ///< 0 for directories
    std::uint64_t inode = 0; ///< of a file that has several names
    std::uint32_t linkCount = 0; ///< how many
};

/// Reads "docs/ ( a:700 .b:300 ) c:50": items are separated by spaces, "name:bytes" is a file,
/// "name:bytes#7/13" one of the 13 names of the file of inode 7, and "name/ ( … )" a directory with
/// what stands between the parentheses. The items come depth-first;
/// a text that is none of that throws std::invalid_argument.
std::vector<TreeTextItem> parseTreeText(std::string_view text);

} // namespace tessera::test
