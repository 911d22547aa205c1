// SPDX-License-Identifier: MIT
#pragma once

#include "Base/FileTime.h"

#include <cstdint>
#include <stop_token>
#include <string>

namespace tessera {

/// Finds out whether items have changed, all that is in a folder included. For a worker thread,
/// which may wait for a disk for as long as that likes.
class ItemChanges {
public:
    enum class Answer : std::uint8_t {
        None, ///< all is as it was then
        Some, ///< or it may be: something was changed, came or went, or cannot be looked at
        Gone, ///< nothing is there
    };

    ItemChanges() = default;
    ItemChanges(const ItemChanges&) = delete;
    ItemChanges& operator=(const ItemChanges&) = delete;
    virtual ~ItemChanges() = default;

    /// By the times that the system itself sets, of the item at that absolute path, be it a link,
    /// and of all below it on the same file system. Some after a stop.
    [[nodiscard]] virtual Answer since(
        const std::string& path, const FileTime& time, const std::stop_token& stop) const = 0;
};

} // namespace tessera
