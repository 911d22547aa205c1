// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace tessera {

/// The names in a folder's `.hidden` file, one a line: file managers do not show these items.
///
/// Every folder may have a long list, and all of them the same one. Of a folder with few items the
/// lines are therefore not looked at one by one.
class HiddenList {
public:
    static constexpr std::string_view kFileName = ".hidden";

    /// What lies beyond this many bytes of the file is not heeded.
    static constexpr std::size_t kMaxBytes = std::size_t{64} * 1024;

    /// Lists nothing.
    HiddenList() = default;

    /// Reads the list of the open directory, in which about so many names will be looked up.
    /// Anything but a regular file lists nothing, and neither does one that cannot be read.
    HiddenList(int directory, std::size_t lookups);

    HiddenList(const HiddenList&) = delete;
    HiddenList& operator=(const HiddenList&) = delete;

    bool contains(std::string_view name) const;

private:
    bool isLine(std::string_view name) const;
    void sortLines();

    std::string m_text; ///< each line with its end before and behind it
    std::vector<std::string_view> m_names; ///< sorted; into the text; none when names are few
};

} // namespace tessera
