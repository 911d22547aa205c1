// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace tessera {

/// What tells one file from every other one on this machine, as long as it exists.
struct FileIdentity {
    std::uint64_t device = 0;
    std::uint64_t inode = 0;

    bool operator==(const FileIdentity& other) const = default;
};

/// For tables of files. Inodes are small numbers in a row: every bit counts in all of the result's.
struct FileIdentityHash {
    std::size_t operator()(const FileIdentity& file) const;
};

/// "DEVICE INODE\n" in decimal, by which one program tells another of a file.
std::string fileIdentityLine(const FileIdentity& identity);

/// Reads such a line; nothing when it is anything else.
std::optional<FileIdentity> readFileIdentityLine(std::string_view line);

} // namespace tessera
