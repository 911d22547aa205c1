// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Url.h"
#include "Model/LinkedNames.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace tessera {

class File;
class Folder;
class TopFolder;

/// Whether the node stands for a file or folder of its own: others are space on the disk, whose
/// paths are those of the folder around them. The one rule of what may be moved or compressed.
[[nodiscard]] bool isItem(const File& node);

/// Where the item was when it was scanned, with no link in the path: a scan follows none below the
/// folder it begins at, and that folder's own path had none either once it was resolved. So a link
/// that is met on this way was put there later, and leads away from what was scanned.
[[nodiscard]] Url placeOnDisk(const File& node);

/// Likewise for a path in the tree.
[[nodiscard]] std::string pathOnDisk(const TopFolder& top, std::string_view path);

/// The path that the tree has for a place on the disk, which differs where the scan began at a
/// path with links.
[[nodiscard]] std::string pathInTree(const TopFolder& top, std::string_view path);

/// What a name of a file that has several stands for; nothing for any other node.
[[nodiscard]] std::optional<LinkedNames::Description> linkedNameOf(const File& node);

/// Bytes on disk of everything that the node names, also of files that are counted at other names:
/// what it takes to read it all.
[[nodiscard]] std::uint64_t allocationOfAllNames(const File& node);

/// The node of exactly that absolute path, or null: names are compared whole, component by
/// component.
[[nodiscard]] File* nodeAtPath(TopFolder& top, std::string_view absolutePath);

/// The folder of the tree that holds, or would hold, the item of that path; null when it is not
/// there.
[[nodiscard]] Folder* parentAtPath(TopFolder& top, std::string_view absolutePath);

/// The node itself, or else the deepest node on the way there; null when the path is not the top
/// folder's nor below it.
[[nodiscard]] File* nearestNodeAtPath(TopFolder& top, std::string_view absolutePath);

} // namespace tessera
