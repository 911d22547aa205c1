// SPDX-License-Identifier: MIT
#pragma once

/// How the archiving program ends. Others than these are those of a process that never was or that
/// somebody killed.
namespace tessera::archiver_status {

inline constexpr int kDone = 0; ///< the archive has its name and holds everything with content
inline constexpr int kFailed = 1; ///< something is missing, and the archive has not got its name
inline constexpr int kBadUsage = 2; ///< nothing was made
inline constexpr int kNothingMade = 3; ///< what is in the archive's place is somebody else's
inline constexpr int kDiskFull = 4; ///< as kFailed; what was made is empty

} // namespace tessera::archiver_status
