// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/Linux/Walk/ReadAhead.h"
#include "Scanning/DirectoryEnumerator.h"

namespace tessera {

/// Makes enumerators of the real file system. They have helper threads, which end with the
/// enumerator; without keys, these read no more ahead than a count of the upper two levels needs.
class LinuxFileManager final : public FileManager {
public:
    LinuxFileManager() = default;

    /// For tests, which have to know who reads what when.
    explicit LinuxFileManager(const ReadAheadOptions& options)
        : m_options(options)
    {
    }

    [[nodiscard]] std::unique_ptr<DirectoryEnumerator> enumerator(
        const std::string& path, ItemKeys keys, LinksToStart links) const override;
    [[nodiscard]] std::string pathWithoutLinks(const std::string& path) const override;

private:
    ReadAheadOptions m_options;
};

} // namespace tessera
