// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

namespace tessera {

class File;

/// The ordered children of a folder: pointers only, in 16 bytes, because every folder of a large
/// tree carries one. It does not own the nodes; Folder does.
class ChildArray {
public:
    ChildArray() = default;
    ChildArray(const ChildArray&) = delete;
    ChildArray& operator=(const ChildArray&) = delete;
    ~ChildArray();

    std::size_t size() const { return m_size; }
    bool empty() const { return m_size == 0; }
    File* operator[](std::size_t index) const { return m_items[index]; }
    File** begin() { return m_items; }
    File** end() { return m_items + m_size; }
    File* const* begin() const { return m_items; }
    File* const* end() const { return m_items + m_size; }
    std::span<File* const> span() const { return {m_items, m_size}; }

    /// Position of the node, by identity; size() when it is not here.
    std::size_t indexOf(const File& node) const;

    void append(File* node);
    void set(std::size_t index, File* node) { m_items[index] = node; }
    void removeAt(std::size_t index);
    File* takeLast() { return m_items[--m_size]; }

    /// Gives back the room that growing left over. For folders that are complete: what is in
    /// memory for good then lies as densely as the nodes do.
    void settle();

private:
    void grow();
    void release() noexcept;

    File** m_items = nullptr;
    std::uint32_t m_size = 0;
    std::uint32_t m_capacity : 31 = 0;
    std::uint32_t m_isInPool : 1 = 0; ///< the items lie in the NodePool, not on the heap
};

} // namespace tessera
