// SPDX-License-Identifier: MIT
#pragma once

#include "HelperPrograms/Archiver/ArchiveItem.h"

#include <string>
#include <string_view>
#include <vector>

namespace tessera {

/// The extended attributes of one item as the content of an AppleDouble file: RFC 1740, version 2,
/// with the attribute table that macOS keeps behind the Finder information. Big-endian throughout.
///
/// Two attributes have places of their own in the format: "com.apple.FinderInfo" of exactly 32
/// bytes, and "com.apple.ResourceFork". All others go into the table in the order given.
class AppleDouble {
public:
    explicit AppleDouble(const std::vector<ExtendedAttribute>& attributes);

    /// The file's content.
    std::string bytes() const;

    /// Where an archive keeps the file that belongs to the item at `path`: "a/b" gives
    /// "__MACOSX/a/._b". A folder's path has no slash at its end. A name too long to get the "._"
    /// is shortened and marked, or no disk could take the file.
    static std::string pathFor(std::string_view path);

private:
    std::string attributeTable() const;

    std::string m_finderInfo;
    std::string m_resourceFork;
    std::vector<ExtendedAttribute> m_others;
};

} // namespace tessera
