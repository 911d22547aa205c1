// SPDX-License-Identifier: MIT
#include "Model/ChildArray.h"

#include "Model/NodePool.h"

#include <algorithm>
#include <cassert>
#include <cstdlib>
#include <new>

namespace tessera {

namespace {

constexpr std::size_t kFirstCapacity = 4;
constexpr std::uint32_t kMaxCapacity = 0x7FFFFFFF;

/// A longer array would leave too much of the pool's chunks unused.
constexpr std::size_t kMaxItemsInPool = 2048;

} // namespace

ChildArray::~ChildArray()
{
    release();
}

void ChildArray::release() noexcept
{
    if (m_isInPool != 0) {
        NodePool::release(static_cast<void*>(m_items));
    } else {
        // NOLINTNEXTLINE(cppcoreguidelines-owning-memory): realloc grows arrays in place
        std::free(static_cast<void*>(m_items));
    }
}

std::size_t ChildArray::indexOf(const File& node) const
{
    return static_cast<std::size_t>(std::find(begin(), end(), &node) - begin());
}

void ChildArray::append(File* node)
{
    if (m_size == m_capacity) {
        grow();
    }
    m_items[m_size] = node;
    ++m_size;
}

void ChildArray::removeAt(std::size_t index)
{
    assert(index < m_size);
    std::copy(begin() + index + 1, end(), begin() + index);
    --m_size;
}

void ChildArray::grow()
{
    const std::size_t old = m_capacity;
    const std::size_t capacity = std::max(kFirstCapacity, old + old / 2);
    void* const onHeap = m_isInPool != 0 ? nullptr : static_cast<void*>(m_items);
    // NOLINTNEXTLINE(cppcoreguidelines-owning-memory)
    void* const grown = std::realloc(onHeap, capacity * sizeof(void*));
    if (grown == nullptr) {
        throw std::bad_alloc();
    }
    auto** const items = static_cast<File**>(grown);
    if (m_isInPool != 0) {
        std::copy(begin(), end(), items);
        release();
        m_isInPool = 0;
    }
    m_items = items;
    m_capacity = capacity & kMaxCapacity;
}

void ChildArray::settle()
{
    if (m_isInPool != 0 || m_size == 0) {
        return;
    }
    const std::size_t bytes = m_size * sizeof(void*);
    if (m_size <= kMaxItemsInPool) {
        auto** const items = static_cast<File**>(NodePool::allocate(bytes));
        std::copy(begin(), end(), items);
        release();
        m_items = items;
        m_isInPool = 1;
    } else {
        // NOLINTNEXTLINE(cppcoreguidelines-owning-memory)
        void* const exact = std::realloc(static_cast<void*>(m_items), bytes);
        if (exact == nullptr) {
            return;
        }
        m_items = static_cast<File**>(exact);
    }
    m_capacity = m_size & kMaxCapacity;
}

} // namespace tessera
