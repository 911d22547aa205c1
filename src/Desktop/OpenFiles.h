// SPDX-License-Identifier: MIT
#pragma once

#include "Base/FileIdentity.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <stop_token>
#include <string>
#include <vector>

namespace tessera {

/// A process that has a file open.
struct FileHolder {
    std::int64_t process = 0; ///< its number
    std::string name; ///< bytes that the process itself chose: any but 0, line breaks too

    bool operator==(const FileHolder& other) const = default;
};

/// A file that some process has open.
struct HeldFile {
    FileIdentity identity;
    /// What it takes on the disk (st_blocks x 512). Nothing of a file that is known only as one
    /// that is mapped into memory, where the system does not let the program look at such files.
    std::optional<std::uint64_t> allocatedBytes;
    std::vector<FileHolder> holders; ///< each process once
    /// Where it lay or lies as far as the system knows, as bytes; to be shown only, for another
    /// file may lie there now. Line breaks may be written "\012". Empty where nobody knows.
    std::string path = {};
};

/// Which files are open, as far as the program may know.
struct OpenFilesAnswer {
    std::vector<HeldFile> files; ///< each once, however many processes hold it and however often
    std::size_t unreadableProcesses = 0; ///< of whose files the program may not know all
    /// Whether the system does not even tell which processes there are.
    bool hidesProcesses = false;
    /// Whether there are files without names in file systems made of layers, as containers have
    /// them: on which disk those take space the system does not tell.
    bool hasFilesInLayers = false;
    bool isCutShort = true; ///< by the time limit, the caller, or a lack of threads

    /// What all the files take on the disk, no more than kMaxAllocation.
    [[nodiscard]] std::uint64_t allocatedBytes() const;

    /// Whether there may be more than that.
    [[nodiscard]] bool isAtLeast() const;
};

/// What processes have open: descriptors, and files mapped into memory, programs and libraries that
/// run among them. A folder that a process merely stands in is not open. What another thread of a
/// process opened for itself alone is not known, nor what the system itself holds: a swap file, the
/// image of a mounted disk, a descriptor on its way from one process to another, a file registered
/// with io_uring.
///
/// For a worker thread. The call returns within a few seconds, also when file systems are dead, and
/// soon after a stop was asked for; then the answer is cut short. Who has more questions of that
/// kind asks them side by side. The answer is of one moment per process, not of one for all, and of
/// descriptors before mappings.
class OpenFiles {
public:
    OpenFiles() = default;
    OpenFiles(const OpenFiles&) = delete;
    OpenFiles& operator=(const OpenFiles&) = delete;
    virtual ~OpenFiles() = default;

    /// The files and folders of a file system that no folder names any more (st_nlink is 0) and
    /// that take space only because they are open. `device` is FileSystemSizes::device; where
    /// nobody told that (0), nothing is looked at, and the answer is cut short. Of a file without a
    /// known size, that it has no name is what the table of mappings says, which may mean one of
    /// several names.
    [[nodiscard]] virtual OpenFilesAnswer withoutNames(
        std::uint64_t device, const std::stop_token& stop) const = 0;

    /// Those of the files that some process has open, this one included.
    [[nodiscard]] virtual OpenFilesAnswer among(
        const std::vector<FileIdentity>& files, const std::stop_token& stop) const = 0;
};

} // namespace tessera
