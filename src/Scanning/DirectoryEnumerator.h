// SPDX-License-Identifier: MIT
#pragma once

#include "Base/FileIdentity.h"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <system_error>

namespace tessera {

/// One item met by a DirectoryEnumerator.
struct DirectoryItem {
    std::string_view name; ///< its own path component, as bytes; good until the next item
    unsigned level = 0; ///< 1 for what lies directly in the enumerated directory
    bool isDirectory = false; ///< a symbolic link to a directory is none
    bool isHidden = false; ///< false unless the item's keys are read
    std::uint64_t allocatedBytes = 0; ///< on disk; 0 for directories and unless the keys are read
    /// Names that the file has, on the whole file system; 0 for directories, for what has no other
    /// name, and unless the keys are read.
    std::uint32_t linkCount = 0;
    FileIdentity identity{}; ///< known where there are other names
};

/// What a walk found out about a directory when it entered it.
struct EnteredDirectory {
    std::uint64_t allocatedBytes = 0; ///< of the directory itself; 0 where another mount begins
    /// Why it could not be listed, or not to its end; of the system category. None where it went
    /// away meanwhile, or another mount begins.
    std::error_code problem{};
};

/// Walks the items below a directory depth-first: a directory comes right before what it holds.
/// What cannot be read does not end it: an unreadable directory comes as an empty one, an item that
/// vanished does not come at all. Used by one thread at a time.
class DirectoryEnumerator {
public:
    DirectoryEnumerator() = default;
    DirectoryEnumerator(const DirectoryEnumerator&) = delete;
    DirectoryEnumerator& operator=(const DirectoryEnumerator&) = delete;
    virtual ~DirectoryEnumerator() = default;

    /// Fetches the next item; false at the end.
    [[nodiscard]] virtual bool next(DirectoryItem& item) = 0;

    /// The directory that was fetched last is not walked.
    virtual void skipDescendants() = 0;

    /// The directory that the latest call of next() entered: the one that was fetched before, and
    /// with the first call the one where the walk starts. Null when it entered none, and where
    /// nothing is known. Good until the next call.
    [[nodiscard]] virtual const EnteredDirectory* entered() const = 0;
};

/// What an enumerator reads of each item beside its name, level and kind.
enum class ItemKeys : std::uint8_t {
    None,
    SizeAndHidden,
};

/// Whether links may be part of the path that leads to where a walk starts. Below, none is
/// followed.
enum class LinksToStart : std::uint8_t {
    Follow, ///< somebody chose that path
    Refuse, ///< the path comes from an earlier walk, so a link in it was put there since
};

/// Makes enumerators. Callable from any thread.
class FileManager {
public:
    FileManager() = default;
    FileManager(const FileManager&) = delete;
    FileManager& operator=(const FileManager&) = delete;
    virtual ~FileManager() = default;

    /// An enumerator of all that lies below the directory at `path` (bytes). Hidden items are
    /// included; mount points come as empty directories; symbolic links are not followed. A
    /// `path` that cannot be read, or leads over links that are refused, yields no items.
    [[nodiscard]] virtual std::unique_ptr<DirectoryEnumerator> enumerator(
        const std::string& path, ItemKeys keys, LinksToStart links) const = 0;

    /// The path without links that leads to the directory at `path`; `path` itself where there is
    /// none. Takes as long as the file system does.
    [[nodiscard]] virtual std::string pathWithoutLinks(const std::string& path) const = 0;
};

} // namespace tessera
