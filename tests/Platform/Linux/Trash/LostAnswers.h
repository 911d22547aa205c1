// SPDX-License-Identifier: MIT
#pragma once

namespace tessera::test {

/// What this program's own renameat() and renameat2() do.
enum class Renames {
    Work, ///< as the system's
    Fail, ///< nothing, and report an error
    LoseTheirAnswer, ///< what they are to do, and report an error all the same
};

/// As long as it lives, renames on this thread meet a file system that breaks off with EIO.
class BrokenRenames {
public:
    /// With `knowsNoReplace` false, renameat2() is unknown, as on many network file systems.
    explicit BrokenRenames(Renames renames, bool knowsNoReplace = true);
    BrokenRenames(const BrokenRenames&) = delete;
    BrokenRenames& operator=(const BrokenRenames&) = delete;
    ~BrokenRenames();
};

} // namespace tessera::test
