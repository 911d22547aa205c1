// SPDX-License-Identifier: MIT
#include "Model/ChildArray.h"

#include <algorithm>
#include <cassert>
#include <cstdlib>
#include <limits>
#include <new>

namespace tessera {

namespace {

constexpr std::size_t kFirstCapacity = 4;

} // namespace

// std::realloc instead of a vector: it grows large arrays in place and gives room back exactly.
ChildArray::~ChildArray()
{
    // NOLINTNEXTLINE(cppcoreguidelines-owning-memory)
    std::free(m_items);
} // NOLINT(cppcoreguidelines-owning-memory)

std::size_t ChildArray::indexOf(const File& node) const
{
    return static_cast<std::size_t>(std::find(begin(), end(), &node) - begin());
}

void ChildArray::append(File* node)
{
    if (m_size == m_capacity) {
        const std::size_t capacity = m_capacity;
        reallocate(std::max(kFirstCapacity, capacity + capacity / 2));
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

void ChildArray::shrinkToFit()
{
    if (m_size != m_capacity) {
        reallocate(m_size);
    }
}

void ChildArray::reallocate(std::size_t capacity)
{
    assert(capacity <= std::numeric_limits<std::uint32_t>::max());
    if (capacity == 0) {
        std::free(m_items); // NOLINT(cppcoreguidelines-owning-memory)
        m_items = nullptr;
        m_capacity = 0;
        return;
    }
    // NOLINTNEXTLINE(cppcoreguidelines-owning-memory)
    void* grown = std::realloc(static_cast<void*>(m_items), capacity * sizeof(void*));
    if (grown == nullptr) {
        throw std::bad_alloc();
    }
    m_items = static_cast<File**>(grown);
    m_capacity = static_cast<std::uint32_t>(capacity);
}

} // namespace tessera
