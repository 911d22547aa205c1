// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/Linux/Files/FileStatus.h"

#include <sys/types.h>

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace tessera {

/// Makes folders, and in the end removes those it made again that are empty still: a move that
/// fails leaves nothing behind.
class NewFolders {
public:
    NewFolders() = default;
    NewFolders(NewFolders&& other) noexcept = default;
    NewFolders& operator=(NewFolders&& other) noexcept
    {
        // The other's end removes what this one made.
        std::swap(m_made, other.m_made);
        return *this;
    }
    NewFolders(const NewFolders&) = delete;
    NewFolders& operator=(const NewFolders&) = delete;
    ~NewFolders();

    /// Makes the folder unless something has the name already; only the user may enter it, unless
    /// the mode says something else. 0, or the errno.
    [[nodiscard]] int make(
        const FileDescriptor& parent, const std::string& name, mode_t mode = kPrivateFolderMode);

    /// Brings the names of those it made to the disk. 0, or the errno.
    [[nodiscard]] int sync() const;

private:
    static constexpr mode_t kPrivateFolderMode = 0700;

    struct Folder {
        FileDescriptor parent;
        std::string name;
    };

    std::vector<Folder> m_made;
};

/// A trash on the disk, ready to take items of its own mount.
struct TrashDirectory {
    FileDescriptor files; ///< holds the items
    FileDescriptor info; ///< holds a file for each of them that says where it was
    std::string path; ///< the folder that holds those two
    std::string topDirectory; ///< what the original paths are relative to; empty: to nothing
    NewFolders newFolders;
};

/// A trash, or the errno that says why it cannot be used.
struct TrashDirectoryResult {
    int error = 0;
    TrashDirectory trash;

    explicit operator bool() const { return error == 0; }
};

/// Whether rename(2) can move an entry of one folder to the other: it goes neither from one mount
/// to another, even of the same file system, nor from one subvolume to another, even of the same
/// mount.
[[nodiscard]] bool isOnSameMount(const FileStatus& folder, const FileStatus& other);

/// Whether a trash at `path`, there or still to be made, is or will be on the folder's mount.
[[nodiscard]] bool isTrashOnMountOf(const FileStatus& folder, std::string_view path);

/// Whether the path is or lies in a trash, of whichever user, in the folder where its mount begins.
[[nodiscard]] bool isInTopTrash(std::string_view path, const std::string& topDirectory);

/// Opens the folder at `path`, for reaching what is in it, and makes what is missing of it. Links
/// are followed: the user chose where it is. 0, or the errno.
[[nodiscard]] int openPrivateFolder(
    std::string_view path, FileDescriptor& folder, NewFolders& newFolders);

/// Brings the names in the folder to the disk. 0, or the errno; file systems that know nothing of
/// that need it not.
[[nodiscard]] int syncFolder(const FileDescriptor& folder);

/// Opens the trash at `path` and makes what is missing of it, folders above it included.
[[nodiscard]] TrashDirectoryResult openHomeTrash(std::string_view path);

/// Opens the user's trash in the folder where a mount begins and makes what is missing of it: in
/// ".Trash", which the administrator made for all users, where that can be trusted, else beside it.
[[nodiscard]] TrashDirectoryResult openTopTrash(const std::string& topDirectory, uid_t user);

} // namespace tessera
