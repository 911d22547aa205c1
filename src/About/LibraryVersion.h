// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tessera {

/// A library that one of the programs uses, and its version where it runs.
struct LibraryVersion {
    std::string name;
    std::string version;

    bool operator==(const LibraryVersion& other) const = default;
};

/// Reads lines such as "libarchive 3.6.2": a name, which may have spaces, and a version. Lines that
/// say something else are left out.
[[nodiscard]] std::vector<LibraryVersion> readLibraryVersions(std::string_view lines);

} // namespace tessera
