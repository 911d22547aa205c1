// SPDX-License-Identifier: MIT
#pragma once

#include "Base/FileIdentity.h"
#include "Base/PlaceTable.h"

#include <cstddef>
#include <cstdint>
#include <deque>
#include <functional>
#include <optional>
#include <unordered_map>
#include <vector>

namespace tessera {

class File;

/// The names in a tree of files that have several. Each such file counts once, at one of its names;
/// the others have no size of their own.
///
/// Takes at most 32 bytes for each name, and nothing for a file that has only one. It must hear of
/// nodes that leave the tree, before they die. Like the tree, it belongs to one thread at a time.
class LinkedNames {
public:
    /// What a name stands for.
    struct Description {
        std::uint32_t linkCount = 0; ///< names that the file had on its disk when it was scanned
        const File* countedAt = nullptr; ///< the name in this tree that has the size
    };

    /// A file of which some names lie inside a part of the tree.
    struct Share {
        const File* countedAt = nullptr; ///< the name in this tree that has the size
        const File* inside = nullptr; ///< the first of its names in there
        std::size_t namesInside = 0;
        std::size_t names = 0; ///< in this tree
        std::uint32_t linkCount = 0; ///< as in Description; the largest that any name tells
    };

    bool isEmpty() const { return m_names.empty(); }
    std::size_t size() const { return m_names.size(); }

    /// Takes the next name of a tree that is being built. True for the first of a file, which
    /// counts; any other is to get no size.
    bool add(File& name, const FileIdentity& file, std::uint32_t linkCount);

    /// Nothing for a node that is not among the names. Looks at each name.
    std::optional<Description> describe(const File& node) const;

    /// The files that have names for which `isInside` says so, in the order of the scan. Asks for
    /// each name once, and takes as long as there are names.
    std::vector<Share> sharesOf(const std::function<bool(const File&)>& isInside) const;

    /// Takes out the names at and below `leaving`, which is still in its tree. Where a file was
    /// counted at one of them, the next name that stays gets its size, and what lies above grows.
    /// What leaves counts each of its files as well, as if it had never been in this tree.
    LinkedNames takeOut(const File& leaving);

    /// The same of several nodes, none of which lies in another: what leaves with each, in their
    /// order. Looks at each name once, however many nodes there are.
    std::vector<LinkedNames> takeOut(const std::vector<const File*>& leaving);

    /// Takes in the names at and below a node that joins the tree, and is in no folder of it yet.
    /// Those of files that are counted here already lose their size, and so does what lies above
    /// them in that node.
    void takeIn(const LinkedNames& coming);

    /// Both at once, for a part of the tree that was read anew: a file that was counted in it, and
    /// is in it still, stays counted there. One that is counted outside gets the size that was
    /// read.
    void exchange(const File& leaving, const LinkedNames& coming);

    /// Bytes that the files occupy whose names at and below the node are counted elsewhere, each
    /// name for itself: what somebody reads who reads them all, beside the node's own size. Looks
    /// at each name.
    std::uint64_t countedElsewhere(const File& node) const;

private:
    struct Name {
        std::uint64_t inode;
        File* node;
        std::uint32_t device; ///< its place in m_devices
        std::uint32_t linkCount : 31;
        std::uint32_t isCounted : 1;
    };

    using FileSizes = std::unordered_map<FileIdentity, std::uint64_t, FileIdentityHash>;

    class Parts;
    class Resizing;
    struct Gone;

    FileIdentity fileOf(const Name& name) const { return {m_devices[name.device], name.inode}; }
    Name* countedNameOf(const FileIdentity& file);
    const Name* countedNameOf(const FileIdentity& file) const;
    bool holdsNamesBelow(const File& node) const;

    std::uint32_t placeOf(std::uint64_t device);
    void append(Name name, const FileIdentity& file);
    void enter(std::size_t place);
    void countAt(std::size_t place);

    Gone removeBelow(const std::vector<const File*>& leaving);
    void findCounted();
    void passOn(FileSizes owed, Resizing& resizing);
    void countAll(const LinkedNames& staying, const FileSizes& owed, Resizing& resizing);

    std::deque<Name> m_names; ///< in the order of the scan
    std::vector<std::uint64_t> m_devices;
    std::uint32_t m_lastDevice = 0; ///< most names are on the device of the one before
    PlaceTable m_counted; ///< where the counted names stand in m_names, by their files
};

} // namespace tessera
