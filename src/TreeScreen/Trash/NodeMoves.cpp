// SPDX-License-Identifier: MIT
#include "TreeScreen/Trash/NodeMoves.h"

#include "Base/FolderAround.h"
#include "Model/NodeLookup.h"
#include "TreeScreen/Map/TreeScreen.h"

#include <cstddef>
#include <utility>

namespace tessera {

LooseNode takeFromScreen(File& node, TreeScreen& screen)
{
    screen.nodeWillLeave(node);
    return takeOut(node);
}

std::vector<LooseNode> takeFromScreen(const std::vector<File*>& nodes, TreeScreen& screen)
{
    for (File* const node : nodes) {
        screen.nodeWillLeave(*node);
    }
    return takeOut(nodes);
}

void renameNode(File& node, const std::string& from, const std::string& to)
{
    node.setFragment(lastPathComponent(to));
    std::vector<File*> left{&node};
    while (!left.empty()) {
        File* const at = left.back();
        left.pop_back();
        if (auto* top = nodeCast<TopFolder>(at);
            top != nullptr && top->origin().starts_with(from)) {
            top->setOrigin(to + top->origin().substr(from.size()));
        }
        if (const auto* folder = nodeCast<Folder>(at)) {
            left.insert(left.end(), folder->children().begin(), folder->children().end());
        }
    }
}

const File* putOnScreen(
    TopFolder& top, const std::string& path, LooseNode loose, TreeScreen& screen)
{
    std::string parent(folderAround(path));
    auto* const nearest = nodeCast<Folder>(nearestNodeAtPath(top, parent));
    if (nearest == nullptr) {
        return nullptr;
    }
    for (const std::size_t there = nearest->absolutePath().size(); parent.size() > there;
         parent = std::string(folderAround(parent))) {
        auto folder = makeNode<Folder>(lastPathComponent(parent));
        folder->setHidden(lastPathComponent(parent).starts_with('.'));
        folder->insertChild(std::move(loose.node));
        loose.node = std::move(folder);
    }
    const File& came = putIn(*nearest, std::move(loose));
    screen.nodeCame(came);
    return &came;
}

} // namespace tessera
