// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace tessera {

class File;
class Folder;
class TopFolder;

/// Items of one tree that the user collects, to act on all of them at once. Nothing is done to them
/// here. One that lies inside another chosen one stays chosen, but counts with that: when the outer
/// one leaves the basket, it counts for itself.
///
/// It must hear of nodes that leave the tree, before they die. Like the tree, it belongs to the
/// main thread.
class Basket {
public:
    struct Entry {
        File* item = nullptr;
        const File* inside = nullptr; ///< the nearest chosen folder around it; null where none is

        bool operator==(const Entry& other) const = default;
    };

    /// False, and nothing is done, for the root of the tree, for space that is no item, and for
    /// what is chosen already.
    bool add(File& item);

    /// False when it was not chosen.
    bool remove(const File& item);

    /// Whether the item is chosen then.
    bool toggle(File& item);

    void clear();

    bool isEmpty() const { return m_items.empty(); }
    std::size_t size() const { return m_items.size(); }

    /// Whether the node itself is chosen. Fast enough for painting.
    bool isMarked(const File& node) const { return m_marked.contains(&node); }

    /// Whether something below the node is chosen. As fast.
    bool holdsMarked(const File& node) const { return m_above.contains(&node); }

    /// In the order of choosing.
    std::vector<Entry> entries() const;

    /// The largest first, and behind each what is inside it, likewise. Equals stay in the order of
    /// choosing.
    std::vector<Entry> entriesBySize() const;

    /// Those that count for themselves, in the order of choosing: together they are all that is
    /// chosen, and nothing twice.
    std::vector<File*> outermost() const;

    /// Bytes on disk of all that is chosen, nothing twice.
    std::uint64_t totalAllocation() const;

    /// The node is about to leave its place in the tree. What is chosen at and below it is chosen
    /// no longer; its paths are returned, in the order of choosing, for the user to be told.
    std::vector<std::string> nodeWillLeave(const File& node);

    /// The folder is out of the tree of that root, and another stands in its place. What was chosen
    /// in it is found again by its path; the paths of what is gone, or is no item of its kind any
    /// more, are returned likewise.
    std::vector<std::string> folderWasReplaced(const Folder& folder, TopFolder& top);

private:
    const File* nearestMarkedAround(const File& item) const;
    void mark(const File& item);
    void unmark(const File& item);
    void markAllAnew();
    std::vector<File*> itemsAtOrBelow(const File& node) const;

    std::vector<File*> m_items; ///< in the order of choosing
    std::unordered_set<const File*> m_marked; ///< the same
    /// How many chosen items lie below each folder that has any.
    std::unordered_map<const File*, std::size_t> m_above;
};

} // namespace tessera
