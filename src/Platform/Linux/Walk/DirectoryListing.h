// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace tessera {

/// The entries of one directory, in few bytes each, because a walk holds tens of thousands of
/// them ahead of whoever takes its items.
class DirectoryListing {
public:
    enum class Kind : std::uint8_t {
        Unknown, ///< the file system names no kind in its listing
        Directory,
        Regular,
        Other,
    };

    struct Entry {
        std::uint64_t inode = 0;
        std::uint64_t allocatedBytes = 0; ///< 0 for directories
        /// As stat(2) has it: the kernel's own numbers take no more bits. Known where the file has
        /// other names.
        std::uint32_t device = 0;
        std::uint32_t linkCount = 0; ///< names that the file has; 0 where it has one
        std::uint64_t nameOffset : 40;
        std::uint64_t nameLength : 16; ///< more than 255 on some foreign file systems
        Kind kind : 2;
        bool isHidden : 1;
        bool isGone : 1; ///< it vanished after it was listed
    };

    void append(std::string_view name, std::uint64_t inode, Kind kind);

    /// Puts the entries in the order of their inodes, in which the disk holds what is read of
    /// each next.
    void sortByInode();

    /// Gives back the room that growing left over.
    void shrinkToFit();

    std::size_t size() const { return m_entries.size(); }
    Entry& operator[](std::size_t index) { return m_entries[index]; }
    const Entry& operator[](std::size_t index) const { return m_entries[index]; }

    std::string_view name(const Entry& entry) const
    {
        return {m_names.data() + entry.nameOffset, entry.nameLength};
    }

    /// The name as a C string.
    const char* cName(const Entry& entry) const { return m_names.data() + entry.nameOffset; }

private:
    std::vector<Entry> m_entries;
    std::vector<char> m_names; ///< each followed by a zero byte
};

} // namespace tessera
