// SPDX-License-Identifier: MIT
#pragma once

#include "Base/PathHash.h"
#include "Model/ChildArray.h"
#include "Model/File.h"

#include <memory>
#include <vector>

namespace tessera {

/// A directory: owns its children and keeps them ordered by allocated size, largest first.
class Folder : public File {
public:
    static constexpr NodeType kType = NodeType::Folder;
    static bool isKind(NodeType type) { return type >= NodeType::Folder; }

    ~Folder() = default;

    const ChildArray& children() const { return m_children; }

    /// Bytes that the directory itself occupies on disk, without what is in it. They are no part of
    /// totalAllocation(). 0 while nobody has told.
    std::uint64_t ownAllocation() const { return std::uint64_t{m_ownBlocks} * kOwnBlock; }
    void setOwnAllocation(std::uint64_t bytes);

    /// Building, bottom-up: appends the child and adds its size to this folder alone. A child
    /// that is a folder must be complete; it is sorted here, for the only time of the build.
    File& addChild(std::unique_ptr<File> child);

    /// The same for a folder whose parents do not hang together yet, so that it cannot say where it
    /// is: `path` is its own.
    File& addChild(std::unique_ptr<Folder> child, PathHash path);

    /// Adds a node to a finished tree: every folder up to the root grows and is sorted again.
    File& insertChild(std::unique_ptr<File> child);

    /// Puts `with` in the place of `child`, which must be a child of this folder, and returns
    /// the old node. Every folder up to the root takes the difference and is sorted again.
    std::unique_ptr<File> replaceChild(File& child, std::unique_ptr<File> with);

    /// Takes `child`, which must be a child of this folder, out of the tree and returns it. Its
    /// parent stays as it was, so do not follow it. Every folder up to the root shrinks and is
    /// sorted again.
    std::unique_ptr<File> removeChild(File& child);

    /// Takes all children out, in their order, of a folder that is then of no more use: neither its
    /// size nor anything above it is told.
    std::vector<std::unique_ptr<File>> takeChildren();

    /// A child's size is by `delta` bytes, modulo 2^64, another one than before, which nothing
    /// above knows yet, nor the order here: sort() is to follow.
    void childChanged(std::uint64_t delta);

    /// Orders the children by size, largest first, and gives a colour slot to each that has none.
    /// Slots depend on the folder's path and the children's order alone: every scan gives the same.
    void sort();

protected:
    explicit Folder(NodeType type)
        : File(type)
    {
    }

private:
    template <typename Node>
    friend std::unique_ptr<Node> makeNode(std::string_view fragment);
    friend class File;

    Folder()
        : File(kType)
    {
    }

    /// What st_blocks counts in: no directory occupies a part of one, nor as many as do not fit.
    static constexpr std::uint64_t kOwnBlock = 512;

    File& attach(std::unique_ptr<File> child);
    void orderChildren();
    void assignHues(PathHash seed);
    /// Adds `delta` bytes, modulo 2^64, to this folder and all above it, and sorts each.
    void spread(std::uint64_t delta);

    std::uint32_t m_ownBlocks = 0; ///< stands where File has no fields and no name
    ChildArray m_children;
};

/// Whether `node` is `above` or lies below it.
[[nodiscard]] bool isAtOrBelow(const File& node, const File& above);

} // namespace tessera
