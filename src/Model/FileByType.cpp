// SPDX-License-Identifier: MIT
// What a node does by the class that its type byte names. The other nodes know File, so this part
// of it stands by itself: File.cpp need not know them.
#include "Model/Document.h"
#include "Model/File.h"
#include "Model/Folder.h"
#include "Model/NodePool.h"
#include "Model/TopFolder.h"
#include "Model/Volume.h"

#include <algorithm>
#include <vector>

namespace tessera {

// A million files at about 40 bytes each, name included, is what keeps a whole disk in memory.
static_assert(sizeof(File) == 24);
static_assert(sizeof(Document) == 24);
static_assert(sizeof(Folder) == 40);

std::size_t File::nameOffset(NodeType type)
{
    // A leaf's name starts in the padding behind the last field of File.
    constexpr std::size_t kEndOfFields = 20;
    switch (type) {
    case NodeType::Folder:
        return sizeof(Folder);
    case NodeType::TopFolder:
        return sizeof(TopFolder);
    case NodeType::Volume:
        return sizeof(Volume);
    default:
        return kEndOfFields;
    }
}

std::string File::absolutePath() const
{
    // Upward to the node that knows its path by itself, then downward again, without recursion:
    // a disk may hold chains of folders deeper than any stack.
    std::vector<const File*> below;
    const File* start = this;
    while (start->m_parent != nullptr && nodeCast<TopFolder>(start) == nullptr) {
        below.push_back(start);
        start = start->m_parent;
    }
    const auto* top = nodeCast<TopFolder>(start);
    std::string path(top != nullptr ? std::string_view(top->origin()) : start->fragment());
    std::reverse(below.begin(), below.end());
    for (const File* node : below) {
        if (path != "/") {
            path += '/';
        }
        path += node->fragment();
    }
    return path;
}

void File::operator delete(File* node, std::destroying_delete_t /*tag*/) noexcept
{
    // The parent links of the dying tree lead back up, so releasing needs neither recursion nor
    // memory of its own.
    File* current = node;
    while (true) {
        auto* folder = nodeCast<Folder>(current);
        if (folder != nullptr && !folder->m_children.empty()) {
            current = folder->m_children.takeLast();
            current->m_parent = folder;
            continue;
        }
        Folder* parent = current->m_parent;
        const bool isLast = current == node;
        dispose(current);
        if (isLast) {
            return;
        }
        current = parent;
    }
}

void File::dispose(File* node) noexcept
{
    node->dropOutsideName();
    switch (node->m_type) {
    case NodeType::Folder:
        static_cast<Folder*>(node)->~Folder();
        break;
    case NodeType::TopFolder:
        static_cast<TopFolder*>(node)->~TopFolder();
        break;
    case NodeType::Volume:
        static_cast<Volume*>(node)->~Volume();
        break;
    default:
        node->~File();
    }
    NodePool::release(node);
}

} // namespace tessera
