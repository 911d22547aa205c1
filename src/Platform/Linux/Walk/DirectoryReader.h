// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/Linux/Walk/DirectoryListing.h"
#include "Scanning/DirectoryEnumerator.h"

#include <atomic>

namespace tessera {

/// What a directory lists.
struct ListingResult {
    DirectoryListing listing;
    int error = 0; ///< errno that ended the listing early; what was listed until then is there
};

/// Reads one open directory: first what it lists, then what its entries are. The steps are apart
/// so that several threads can share the second one.
class DirectoryReader {
public:
    /// `isCancelled` stops a long listing early; it must outlive the reader.
    DirectoryReader(ItemKeys keys, const std::atomic<bool>& isCancelled)
        : m_keys(keys)
        , m_isCancelled(isCancelled)
    {
    }

    /// Lists the directory in inode order and marks what is hidden.
    [[nodiscard]] ListingResult list(int directory) const;

    /// Whether the entry has to be looked at by readStatus().
    bool needsStatus(const DirectoryListing::Entry& entry) const;

    /// Completes the entries from `begin` to before `end`. Those that cannot be looked at keep what
    /// the listing says of them, and no size; returned is the errno of the first of these, else 0.
    /// Entries that are gone are marked so, which is no error.
    [[nodiscard]] int readStatus(
        int directory, DirectoryListing& listing, std::size_t begin, std::size_t end) const;

private:
    ItemKeys m_keys;
    const std::atomic<bool>& m_isCancelled;
};

} // namespace tessera
