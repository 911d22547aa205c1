// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace tessera {

/// A name and a value that a file carries beside its content. Both are bytes.
struct ExtendedAttribute {
    std::string name;
    std::string value;

    bool operator==(const ExtendedAttribute& other) const = default;
};

/// Something that an archive holds, without its content.
struct ArchiveItem {
    enum class Kind : std::uint8_t { Folder, File, Link };

    std::string path; ///< bytes, joined by "/", beginning with the source's own name
    Kind kind = Kind::File;
    std::uint32_t permissions = 0; ///< the twelve bits that chmod(2) sets
    std::int64_t modified = 0; ///< seconds since 1970-01-01 00:00 UTC
    std::uint32_t owner = 0;
    std::uint32_t group = 0;
    std::uint64_t length = 0; ///< bytes of content that a file is expected to have; may get fewer
    std::string linkTarget; ///< of a link
    std::vector<ExtendedAttribute> attributes;
    bool lacksAttributes = false; ///< it has more of them, which could not be read
};

} // namespace tessera
