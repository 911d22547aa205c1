// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <system_error>
#include <vector>

namespace tessera {

class File;

/// A folder whose content a scan could not list, or not to its end.
struct UnreadableFolder {
    std::string path; ///< absolute, as bytes
    std::error_code reason; ///< of the system category
    const File* node = nullptr; ///< in the tree

    bool operator==(const UnreadableFolder& other) const
    {
        return path == other.path && reason == other.reason;
    }
};

/// What a scan found beside the nodes of its tree, which belongs to the tree's root.
///
/// All of it is known by its nodes, so that a part of the tree leaves and joins with what was found
/// in it, to the last folder, wherever it goes. It must hear of nodes that leave the tree, before
/// they die: a copy would not, and so there is none.
class ScanFindings {
public:
    using Nodes = std::vector<const File*>;

    /// So many unreadable folders are known by name, and fewer where their paths are longer than
    /// this altogether; the others are counted, at 8 bytes each.
    static constexpr std::size_t kMostNamed = 10'000;
    static constexpr std::size_t kMostPathBytes = std::size_t{16} << 20;

    ScanFindings() = default;
    ScanFindings(const ScanFindings&) = delete;
    ScanFindings& operator=(const ScanFindings&) = delete;
    ScanFindings(ScanFindings&&) = default;
    ScanFindings& operator=(ScanFindings&&) = default;
    ~ScanFindings() = default;

    /// The first ones, in the order of the walk; those that joined the tree later come last.
    const std::vector<UnreadableFolder>& unreadable() const { return m_unreadable; }
    /// Unreadable folders beyond those that are named.
    const Nodes& unnamed() const { return m_unnamed; }
    std::size_t unreadableCount() const { return m_unreadable.size() + m_unnamed.size(); }

    /// Folders that the walk passed by on purpose.
    const Nodes& leftOut() const { return m_leftOut; }

    /// Folders with what is mounted there: they are in the tree, and take nothing of the file
    /// system that was scanned.
    const Nodes& mounted() const { return m_mounted; }
    bool isMounted(const File& folder) const;

    /// Whether the next unreadable folder is named. Otherwise its path need not be put together,
    /// which takes long for one that lies deep.
    bool hasRoomForName() const
    {
        return m_unreadable.size() < kMostNamed && m_pathBytes < kMostPathBytes;
    }

    /// Each of a node in the tree.
    void addUnreadable(UnreadableFolder folder);
    void addLeftOut(const File& folder);
    void addMounted(const File& folder);

    /// Takes out what was found at and below `leaving`, which is still in its tree.
    ScanFindings takeOut(const File& leaving);

    /// Takes in what was found in a part of the tree that has joined it. Paths are those that the
    /// folders have now.
    void takeIn(const ScanFindings& coming);

    /// What was found at a node stands for `other` now.
    void replace(const File& node, const File& other);

private:
    std::vector<UnreadableFolder> m_unreadable;
    std::size_t m_pathBytes = 0; ///< of those
    Nodes m_unnamed;
    Nodes m_leftOut;
    Nodes m_mounted;
};

} // namespace tessera
