// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tessera {

/// The names in a folder's `.hidden` file, one a line: file managers do not show these items.
class HiddenList {
public:
    static constexpr std::string_view kFileName = ".hidden";

    /// What lies beyond this many bytes of the file is not heeded.
    static constexpr std::size_t kMaxBytes = std::size_t{64} * 1024;

    /// Lists nothing.
    HiddenList() = default;

    /// Reads the list of the open directory. Anything but a regular file lists nothing, and
    /// neither does one that cannot be read.
    explicit HiddenList(int directory);

    HiddenList(const HiddenList&) = delete;
    HiddenList& operator=(const HiddenList&) = delete;

    bool contains(std::string_view name) const;

private:
    std::string m_text;
    std::vector<std::string_view> m_names; ///< sorted; into the text
};

} // namespace tessera
