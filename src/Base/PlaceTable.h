// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

namespace tessera {

/// Where in a list things stand that are looked for by a hash. Holds no keys: who asks says whether
/// what stands at a place is what is looked for, and what its hash is. An entry takes at most six
/// bytes.
class PlaceTable {
public:
    PlaceTable() = default;

    /// With room for so many entries.
    explicit PlaceTable(std::size_t entries)
        : m_slots(entries + entries / kEntriesForAFreeSlot + kFirstSlots, kFree)
    {
    }

    /// The place of the entry of that hash that `matches`.
    template <typename Matches>
    std::optional<std::uint32_t> find(std::size_t hash, Matches matches) const
    {
        if (m_slots.empty()) {
            return std::nullopt;
        }
        for (std::size_t slot = slotOf(hash); m_slots[slot] != kFree; slot = slotBehind(slot)) {
            if (matches(m_slots[slot] - 1)) {
                return m_slots[slot] - 1;
            }
        }
        return std::nullopt;
    }

    /// Nothing that matches may be there already. `hashOf` says the hash of what stands at a place.
    template <typename HashOf>
    void insert(std::size_t hash, std::uint32_t place, HashOf hashOf)
    {
        if (isFull()) {
            grow(hashOf);
        }
        put(hash, place);
        ++m_size;
    }

private:
    static constexpr std::uint32_t kFree = 0; ///< else the place and one more
    static constexpr std::size_t kFirstSlots = 16;

    static constexpr std::size_t kEntriesForAFreeSlot = 8;

    /// A tenth is free, so that a search comes to its end.
    bool isFull() const { return m_size >= m_slots.size() - m_slots.size() / 10; }

    /// By a product instead of a remainder: a table may have any number of slots.
    std::size_t slotOf(std::size_t hash) const
    {
        constexpr unsigned kBits = 32;
        return static_cast<std::size_t>(((hash >> kBits) * m_slots.size()) >> kBits);
    }

    std::size_t slotBehind(std::size_t slot) const { return (slot + 1) % m_slots.size(); }

    void put(std::size_t hash, std::uint32_t place)
    {
        std::size_t slot = slotOf(hash);
        while (m_slots[slot] != kFree) {
            slot = slotBehind(slot);
        }
        m_slots[slot] = place + 1;
    }

    /// By a quarter: doubled, it would be half empty.
    template <typename HashOf>
    void grow(HashOf hashOf)
    {
        std::vector<std::uint32_t> old(m_slots.size() + m_slots.size() / 4 + kFirstSlots, kFree);
        old.swap(m_slots);
        for (const std::uint32_t entry : old) {
            if (entry != kFree) {
                put(hashOf(entry - 1), entry - 1);
            }
        }
    }

    std::vector<std::uint32_t> m_slots;
    std::size_t m_size = 0;
};

} // namespace tessera
