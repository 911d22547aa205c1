// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string_view>

namespace tessera {

/// A number for a folder's path, the same on every machine and in every run: FNV-1a in 64 bits
/// over the path's bytes and a slash. It can be carried on from folder to folder on the way down.
class PathHash {
public:
    explicit PathHash(std::string_view path);

    /// That of the folder of this name inside.
    PathHash of(std::string_view name) const;

    std::uint64_t value() const { return m_value; }

private:
    void add(std::string_view bytes);

    std::uint64_t m_value = 0xcbf29ce484222325;
};

} // namespace tessera
