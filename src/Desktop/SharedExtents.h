// SPDX-License-Identifier: MIT
#pragma once

#include "Base/FileIdentity.h"

#include <cstdint>
#include <stop_token>
#include <string>
#include <vector>

namespace tessera {

/// A regular file: where it was found, and which it was.
struct NamedFile {
    std::string path; ///< absolute, as bytes
    FileIdentity identity;
};

/// How much of a file's content lies in extents of which kind, in bytes of content: a compressed
/// extent takes less on the disk. Holes count nowhere; room that is set aside for a file counts.
struct ExtentBytes {
    /// In extents that another file, a snapshot or the same file at another place refers to as
    /// well: removing this file alone does not free them.
    std::uint64_t shared = 0;
    std::uint64_t own = 0; ///< in all others
    /// So much of `own` lies in extents that are compressed, or otherwise not stored as they are.
    /// What those take on the disk the system does not tell: between nothing and all of it.
    std::uint64_t ownEncoded = 0;

    bool operator==(const ExtentBytes& other) const = default;
};

/// What is known of one file.
struct FileExtents {
    enum class State : std::uint8_t {
        NotLookedAt, ///< for want of time or threads, or after an error on the way
        Known,
        /// The file system does not tell of its extents: files in memory, which share nothing, and
        /// those on servers.
        NotTold,
        MayNotRead, ///< for want of rights
        Changed, ///< it is gone, or something else has taken its name
    };

    State state = State::NotLookedAt;
    ExtentBytes bytes = {}; ///< all 0 unless known

    bool operator==(const FileExtents& other) const = default;
};

struct SharedExtentsAnswer {
    std::vector<FileExtents> files; ///< in the order of the question
    bool isCutShort = true; ///< by a limit, the caller, or a lack of threads
};

/// Which files share what they take on the disk with others: reflinks, deduplicated files, files
/// that a snapshot keeps.
///
/// It tells what is on the disk now and has nothing written for that. Content that was written a
/// moment ago and has no place yet counts as the file's own; a shared extent that was overwritten
/// a moment ago counts as shared until the new content is written out, so that no more is called
/// the file's own than it will have. Files that share with each other alone are called shared,
/// though removing all of them frees what they share.
///
/// For a worker thread. The call looks at so many files, returns within a few seconds, also when
/// file systems are dead, and soon after a stop was asked for.
class SharedExtents {
public:
    SharedExtents() = default;
    SharedExtents(const SharedExtents&) = delete;
    SharedExtents& operator=(const SharedExtents&) = delete;
    virtual ~SharedExtents() = default;

    [[nodiscard]] virtual SharedExtentsAnswer extentsOf(
        const std::vector<NamedFile>& files, const std::stop_token& stop) const = 0;
};

} // namespace tessera
