// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Url.h"
#include "Model/NodePool.h"
#include "Model/NodeType.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <new>
#include <string>
#include <string_view>
#include <utility>

namespace tessera {

class Folder;

/// One node of a scanned tree. A scan makes millions of these, so the class has no virtual
/// functions, and the name stands in the node's own memory block, right behind its fields.
///
/// Nodes are made by makeNode() and released by deleting any pointer to them, whatever its static
/// type; releasing a folder releases what is below it without recursion.
///
/// A tree is built by one thread and then belongs to the main thread. Nodes have no locks.
class File {
public:
    File(const File&) = delete;
    File& operator=(const File&) = delete;
    ~File() = default;

    /// Bytes that this node occupies on disk; for a folder, the sum over its children.
    std::uint64_t totalAllocation() const { return m_totalAllocation; }
    void setTotalAllocation(std::uint64_t bytes) { m_totalAllocation = bytes; }

    /// The node's own path component, as bytes. Empty for the nodes that stand for no real file.
    /// The view is good until the fragment is set again or the node dies.
    std::string_view fragment() const;
    void setFragment(std::string_view fragment);

    /// The folder that holds this node. It is not cleared when the node is taken out.
    Folder* parent() const { return m_parent; }
    void setParent(Folder* parent) { m_parent = parent; }

    /// The slot of the node's colour, 0 to 15; 0 until its folder is first sorted.
    std::uint8_t hue() const { return m_state & kHueMask; }
    void setHue(std::uint8_t hue);

    bool rescanning() const { return (m_state & kRescanning) != 0; }
    void setRescanning(bool on) { setFlag(kRescanning, on); }
    bool selected() const { return (m_state & kSelected) != 0; }
    void setSelected(bool on) { setFlag(kSelected, on); }
    bool hidden() const { return (m_state & kHidden) != 0; }
    void setHidden(bool on) { setFlag(kHidden, on); }
    bool ignored() const { return (m_state & kIgnored) != 0; }
    void setIgnored(bool on) { setFlag(kIgnored, on); }

    /// Whether the file has other names, which LinkedNames knows.
    bool isLinkedName() const { return m_isLinkedName; }
    void setLinkedName() { m_isLinkedName = true; }

    /// What the user sees: the fragment, or the fixed text of a node that is no real file.
    std::string_view name() const;

    /// totalAllocation() as a double, in bytes.
    double size() const { return static_cast<double>(m_totalAllocation); }

    /// The path from the file system's root, through the nearest TopFolder's origin.
    std::string absolutePath() const;

    /// The file URL of absolutePath().
    Url url() const;

    NodeType type() const { return m_type; }
    bool isFolder() const { return m_type >= NodeType::Folder; }
    static bool isKind(NodeType /*type*/) { return true; }

    static void operator delete(File* node, std::destroying_delete_t tag) noexcept;

protected:
    explicit File(NodeType type)
        : m_type(type)
    {
    }

private:
    template <typename Node>
    friend std::unique_ptr<Node> makeNode(std::string_view fragment);

    static constexpr std::uint8_t kHueMask = 0x0F;
    static constexpr std::uint8_t kRescanning = 0x10;
    static constexpr std::uint8_t kSelected = 0x20;
    static constexpr std::uint8_t kHidden = 0x40;
    static constexpr std::uint8_t kIgnored = 0x80;

    /// In place of a length: the name did not fit behind the fields and has a block of its own.
    static constexpr std::uint8_t kNameOutside = 255;
    static constexpr std::size_t kMaxNameInside = 254;
    static constexpr std::size_t kMinNameRoom = sizeof(void*);

    static std::size_t nameOffset(NodeType type);
    static std::size_t nameRoomFor(std::string_view fragment);

    void setFlag(std::uint8_t flag, bool on);
    void initFragment(std::string_view fragment, std::size_t room);
    char* nameBytes();
    const char* nameBytes() const;
    void dropOutsideName() noexcept;

    /// Ends the life of one node whose children are gone, and gives its memory back.
    static void dispose(File* node) noexcept;

    std::uint64_t m_totalAllocation = 0;
    Folder* m_parent = nullptr;
    NodeType m_type : 7;
    bool m_isLinkedName : 1 = false;
    std::uint8_t m_state = 0;
    std::uint8_t m_nameLength = 0;
    std::uint8_t m_nameRoom = 0;
};

/// Makes a node with its name. `Node` is any class of the tree.
template <typename Node>
std::unique_ptr<Node> makeNode(std::string_view fragment)
{
    const std::size_t room = File::nameRoomFor(fragment);
    void* block = NodePool::allocate(File::nameOffset(Node::kType) + room);
    auto node = std::unique_ptr<Node>(new (block) Node);
    node->initFragment(fragment, room);
    return node;
}

/// The node as a `Node`, or null when it is of another class (or null itself).
template <typename Node>
Node* nodeCast(File* file)
{
    return file != nullptr && Node::isKind(file->type()) ? static_cast<Node*>(file) : nullptr;
}

template <typename Node>
const Node* nodeCast(const File* file)
{
    return file != nullptr && Node::isKind(file->type()) ? static_cast<const Node*>(file) : nullptr;
}

} // namespace tessera
