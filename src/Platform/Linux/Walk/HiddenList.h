// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_set>

namespace tessera {

class DirectoryListing;

/// The names in a folder's `.hidden` file, one a line: file managers do not show these items.
///
/// Every folder may have a long list, and all of them the same one. The lines are therefore never
/// sorted, and of a folder with few items not even looked at one by one.
class HiddenList {
public:
    static constexpr std::string_view kFileName = ".hidden";

    /// What lies beyond this many bytes of the file is not heeded.
    static constexpr std::size_t kMaxBytes = std::size_t{64} * 1024;

    /// Lists nothing.
    HiddenList() = default;

    /// Reads the list of the open directory, to look up the names of its items and no others.
    /// Anything but a regular file lists nothing, and neither does one that cannot be read.
    HiddenList(int directory, const DirectoryListing& listing);

    HiddenList(const HiddenList&) = delete;
    HiddenList& operator=(const HiddenList&) = delete;

    bool contains(std::string_view name) const;

private:
    bool isLine(std::string_view name) const;
    void collectNames(const DirectoryListing& listing);

    std::string m_text; ///< each line with its end before and behind it
    /// Into the text; none when the folder has few items, whose names are then searched in it.
    std::optional<std::unordered_set<std::string_view>> m_names;
};

} // namespace tessera
