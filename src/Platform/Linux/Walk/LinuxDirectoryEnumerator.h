// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/Linux/Walk/ReadAhead.h"
#include "Scanning/DirectoryEnumerator.h"

#include <optional>
#include <vector>

namespace tessera {

/// Walks a directory of the real file system. The items of one directory come in the order of
/// their inodes. Files are not opened, but for `.hidden` lists; of a directory that cannot be
/// opened, is a mount point, or is no directory any more when its turn comes, nothing is walked.
class LinuxDirectoryEnumerator final : public DirectoryEnumerator {
public:
    /// Of the open directory; of none, nothing is walked.
    LinuxDirectoryEnumerator(OpenedFolder start, ItemKeys keys, const ReadAheadOptions& options);

    [[nodiscard]] bool next(DirectoryItem& item) override;
    void skipDescendants() override;
    [[nodiscard]] const EnteredDirectory* entered() const override;

private:
    /// How far one of the folders that the walk is inside of has come.
    struct Place {
        WalkFolder* folder = nullptr;
        std::size_t nextEntry = 0;
        std::size_t nextSubfolder = 0;
    };

    void enter(WalkFolder& folder);
    void enterLastDirectory();
    void leaveFolder();
    void countTaken();
    void deliver(const DirectoryListing::Entry& entry, DirectoryItem& item);

    ReadAhead m_readAhead;
    std::vector<Place> m_path; ///< outermost first
    bool m_isAtDirectory = false; ///< the last item is a directory that is still to be entered
    bool m_isAtStart = true; ///< likewise the folder where the walk starts
    std::optional<EnteredDirectory> m_entered; ///< by the latest call of next()
    std::size_t m_uncounted = 0; ///< entries taken that the read-ahead has not been told of
};

} // namespace tessera
