// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <cstdint>
#include <optional>
#include <string>

namespace tessera {

class File;

/// What the tree told of the item that the preview panel shows. Kept instead of the node, which
/// may go away while the panel is open.
struct ItemFacts {
    std::string path; ///< on the disk, as bytes; empty for space that no file accounts for
    QString name; ///< as shown
    std::uint64_t allocatedBytes = 0;
    std::optional<std::uint64_t> itemCount; ///< of a folder: what lies directly in it

    bool operator==(const ItemFacts&) const = default;
};

/// The facts of the node as it is now; nothing for null.
std::optional<ItemFacts> factsOf(const File* node);

} // namespace tessera
