// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

namespace tessera::test {

/// Mounts that only this process sees, taken away again at the end in reverse order. To be declared
/// after the tree that they are mounted on, and used on the process's first thread.
class OwnMounts {
public:
    OwnMounts() = default;
    OwnMounts(const OwnMounts&) = delete;
    OwnMounts& operator=(const OwnMounts&) = delete;
    ~OwnMounts();

    /// Whether this process may mount: as the super-user, or as one in a name space of its own.
    [[nodiscard]] static bool enter();

    /// Each throws std::system_error when it fails.
    void mountMemory(const std::string& path, const std::string& options = {});
    void bind(const std::string& existing, const std::string& path);
    static void makeReadOnly(const std::string& path);

private:
    std::vector<std::string> m_points;
};

} // namespace tessera::test
