// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace tessera {

/// What could not be done with a path.
struct ArchiveFailure {
    int code = 0; ///< errno
    std::string operation; ///< completes "cannot ..."
    std::string path; ///< bytes

    /// "cannot read 'x': Permission denied". Control characters of the path are in it as they are.
    std::string text() const;
};

} // namespace tessera
