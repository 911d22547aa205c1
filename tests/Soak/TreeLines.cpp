// SPDX-License-Identifier: MIT
#include "TreeLines.h"

#include "Model/TopFolder.h"

#include <algorithm>

namespace tessera::test {

std::vector<std::string> treeLines(const TopFolder& top)
{
    std::vector<std::string> lines;
    std::vector<const File*> open{&top};
    while (!open.empty()) {
        const File& node = *open.back();
        open.pop_back();
        const auto* const folder = nodeCast<Folder>(&node);
        lines.push_back(
            percentEncoded(node.absolutePath()) + (folder == nullptr ? " " : "/ ")
            + std::to_string(node.totalAllocation()) + (node.hidden() ? " hidden" : ""));
        if (folder != nullptr) {
            open.insert(open.end(), folder->children().begin(), folder->children().end());
        }
    }
    std::sort(lines.begin(), lines.end());
    return lines;
}

} // namespace tessera::test
