// SPDX-License-Identifier: MIT
#pragma once

#include <sys/types.h>

#include <cstdint>
#include <string>
#include <string_view>

namespace tessera::test {

/// A temporary directory on the real file system, removed at the end with all it then holds. The
/// names given to it are bytes, relative to the directory, joined by "/". What cannot be made
/// throws std::system_error.
class TempTree {
public:
    /// In the directory for temporary files.
    TempTree();

    /// In `parent`.
    explicit TempTree(const std::string& parent);

    TempTree(const TempTree&) = delete;
    TempTree& operator=(const TempTree&) = delete;
    ~TempTree();

    /// A tree in memory where the system has room for files there: for trees of many items.
    static std::string fastParent();

    /// Absolute, without a trailing slash.
    const std::string& path() const { return m_path; }
    std::string pathOf(std::string_view name) const;

    void makeFolder(std::string_view name) const;
    void makeFile(std::string_view name, std::size_t bytes = 0) const;
    void writeFile(std::string_view name, std::string_view content) const;
    void makeSparseFile(std::string_view name, off_t length) const;
    void makeSymbolicLink(std::string_view name, const std::string& target) const;
    void makeHardLink(std::string_view name, std::string_view existing) const;
    void makeFifo(std::string_view name) const;
    void makeSocket(std::string_view name) const;
    void makeNullDevice(std::string_view name) const; ///< for the super-user only

    /// Folders "d" inside each other; with `sibling`, an empty folder of that name beside each.
    void makeChain(std::size_t depth, const std::string& sibling = {}) const;

    void setMode(std::string_view name, mode_t mode) const;
    void rename(std::string_view from, std::string_view to) const;
    void removeFile(std::string_view name) const;
    void removeFolder(std::string_view name) const; ///< an empty one

    /// st_blocks × 512 of the item itself.
    std::uint64_t allocatedBytes(std::string_view name) const;

private:
    std::string m_path;
};

} // namespace tessera::test
