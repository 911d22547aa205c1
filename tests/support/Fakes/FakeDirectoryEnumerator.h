// SPDX-License-Identifier: MIT
#pragma once

#include "Scanning/DirectoryEnumerator.h"

#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace tessera::test {

/// A file system in memory: whatever path is enumerated, the same items lie below it. Paths given
/// to it are names joined by "/" from there, "" being the enumerated directory itself. Set it up
/// before it is used; one enumerator at a time may be at work.
class FakeFileManager final : public FileManager {
public:
    /// `items` is text as parseTreeText() reads it, such as "docs/ ( a:700 .b:300 ) c:50".
    explicit FakeFileManager(std::string_view items);

    /// The directory at `path` comes as an empty one, which may not be read.
    void makeUnreadable(std::string_view path);

    /// Bytes that the directory at `path` takes itself; 0 unless told.
    void setOwnAllocation(const std::string& path, std::uint64_t bytes)
    {
        m_ownAllocations[path] = bytes;
    }

    /// The item at `path`, with all below it, is gone by the time its turn comes.
    void makeVanish(std::string_view path);

    /// The item at `path`, with all below it, appears only after the first walk.
    void makeAppearLate(std::string_view path);

    /// Called with an item's path, on the enumerating thread, right before the item is delivered.
    void onItem(std::function<void(const std::string& path)> action);

    /// The paths for which enumerators were asked, in order.
    const std::vector<std::string>& enumeratedPaths() const { return m_enumeratedPaths; }
    /// What each of those may lead over.
    const std::vector<LinksToStart>& linksToStarts() const { return m_linksToStarts; }

    /// `path` leads over links to `place`.
    void setPathWithoutLinks(const std::string& path, const std::string& place)
    {
        m_pathsWithoutLinks[path] = place;
    }

    [[nodiscard]] std::unique_ptr<DirectoryEnumerator> enumerator(
        const std::string& path, ItemKeys keys, LinksToStart links) const override;
    [[nodiscard]] std::string pathWithoutLinks(const std::string& path) const override;

private:
    friend class FakeDirectoryEnumerator;

    struct Entry {
        std::string path;
        std::string name;
        unsigned level = 0;
        bool isDirectory = false;
        bool isHidden = false;
        std::uint64_t bytes = 0;
        std::uint64_t inode = 0;
        std::uint32_t linkCount = 0;
    };

    std::vector<Entry> m_entries;
    std::set<std::string, std::less<>> m_unreadable;
    std::set<std::string, std::less<>> m_vanishing;
    std::set<std::string, std::less<>> m_late;
    std::map<std::string, std::uint64_t> m_ownAllocations;
    std::function<void(const std::string& path)> m_onItem;
    std::map<std::string, std::string> m_pathsWithoutLinks;
    mutable std::vector<std::string> m_enumeratedPaths;
    mutable std::vector<LinksToStart> m_linksToStarts;
};

/// Walks the items of a FakeFileManager, which must outlive it.
class FakeDirectoryEnumerator final : public DirectoryEnumerator {
public:
    FakeDirectoryEnumerator(const FakeFileManager& fileManager, ItemKeys keys);

    [[nodiscard]] bool next(DirectoryItem& item) override;
    void skipDescendants() override;
    [[nodiscard]] const EnteredDirectory* entered() const override;

private:
    void enter();
    bool isMissing(const std::string& path) const;
    void passOver(unsigned level);

    const FakeFileManager& m_fileManager;
    ItemKeys m_keys;
    bool m_isFirst; ///< of all walks
    std::optional<std::string> m_unentered = ""; ///< the path of the directory fetched last
    std::optional<EnteredDirectory> m_entered;
    std::size_t m_position = 0;
    unsigned m_lastLevel = 0;
};

} // namespace tessera::test
