// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/PlatformServices.h"

#include <memory>
#include <string>

namespace tessera::test {

/// The folders that a run may change: "disk", which it scans, "volume", which may be a file system
/// of its own, "home" and "bin".
class Sandbox {
public:
    explicit Sandbox(std::string path);

    const std::string& path() const { return m_path; }
    std::string disk() const { return m_path + "/disk"; }
    std::string volume() const { return m_path + "/volume"; }
    std::string home() const { return m_path + "/home"; }
    std::string archiver() const { return m_path + "/bin/tessera-ditto"; }
    std::string previewer() const { return m_path + "/bin/tessera-preview"; }

    /// Whether the path is inside.
    bool holds(const std::string& itemPath) const { return itemPath.starts_with(m_path + '/'); }

private:
    std::string m_path;
};

/// How much of what a run has begun is still to end.
struct OpenWork {
    int moves = 0; ///< to the trash
    int archives = 0; ///< being made
    int movesBegun = 0;
    int archivesBegun = 0;
};

/// Makes sure that random actions change nothing outside of the sandbox, whoever runs them: trash
/// and archiver refuse what lies elsewhere, the home screen offers the sandbox's folders alone.
/// The sandbox's disk is slow, so that much can happen during a scan. `work` must outlive the
/// services.
void confine(PlatformServices& services, const Sandbox& sandbox, OpenWork& work);

} // namespace tessera::test
