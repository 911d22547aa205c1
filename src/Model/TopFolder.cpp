// SPDX-License-Identifier: MIT
#include "Model/TopFolder.h"

namespace tessera {

const TopFolder* rootOfScan(const File& node)
{
    const File* root = &node;
    while (root->parent() != nullptr) {
        root = root->parent();
    }
    return nodeCast<TopFolder>(root);
}

TopFolder* rootOfScan(File& node)
{
    return const_cast<TopFolder*>(rootOfScan(std::as_const(node)));
}

FileTime scanBeganOf(const File& node)
{
    const File* at = &node;
    while (at != nullptr && nodeCast<TopFolder>(at) == nullptr) {
        at = at->parent();
    }
    return at == nullptr ? FileTime() : nodeCast<TopFolder>(at)->scanBegan();
}

} // namespace tessera
