// SPDX-License-Identifier: MIT
#pragma once

#include "Base/FileIdentity.h"
#include "Platform/Linux/Files/FileDescriptor.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tessera {

/// What the system remembers of a file that somebody has open.
struct OpenFileStatus {
    int error = 0; ///< errno, and nothing else is known
    FileIdentity identity;
    std::uint32_t mode = 0; ///< kind and permissions, as stat(2) has them
    std::uint32_t links = 0; ///< names that the file has
    std::uint64_t allocatedBytes = 0;

    explicit operator bool() const { return error == 0; }

    /// Whether the program may not know more.
    bool isForbidden() const;
};

/// A file that a process has mapped into its memory.
struct Mapping {
    FileIdentity identity; ///< the device is the file system's, which files may show another of
    std::string addresses; ///< "START-END", its name in "map_files"
    std::string path; ///< bytes, line breaks as "\012"; with " (deleted)" where that name is gone

    bool looksDeleted() const;
};

/// The program that a process runs.
struct RunningProgram {
    OpenFileStatus status;
    std::string path; ///< bytes; with " (deleted)" where that name is gone
};

/// Where the system shows what a process has open.
enum class FilesShown : std::uint8_t {
    InProcess,
    InItsThreads, ///< its first thread has ended; for the process it shows empty lists
    Nowhere, ///< it has nothing open: it runs in the kernel alone, or has ended
};

/// One process, as /proc tells of it. The number may become another process's; what is said then
/// is that this one is gone. Asks no file system, so that a dead one stops nobody; only a process
/// whose memory is being changed makes its mappings wait.
/// https://man7.org/linux/man-pages/man5/proc.5.html
class ProcessFiles {
public:
    /// `proc` is the open folder /proc; `number` is in decimal.
    ProcessFiles(int proc, const std::string& number);

    bool isThere() const { return m_folder.isOpen(); }

    /// What the process calls itself, as bytes; empty when it is gone.
    std::string name() const;

    /// Which mounts it sees; empty when the program may not know.
    std::string mountNamespace() const;

    /// Its table of mounts (MountTable); nothing when the program may not know, or it is gone.
    std::optional<std::string> mountInfo() const;

    FilesShown filesShown() const;

    /// The names of its descriptors in "fd"; none when it is gone, nothing when the program may
    /// not know.
    std::optional<std::vector<std::string>> descriptors() const;

    /// The number of the mount that the descriptor's file was opened on.
    std::optional<std::uint64_t> mountOf(const std::string& descriptor) const;

    /// The files that it has mapped, each place of a file once; likewise.
    std::optional<std::vector<Mapping>> mappings() const;

    OpenFileStatus statusOf(const std::string& descriptor) const;
    /// Forbidden to most programs.
    OpenFileStatus statusOf(const Mapping& mapping) const;
    /// Everybody may look at it who may know of the process's files.
    RunningProgram program() const;

    /// As RunningProgram::path; empty when it is gone.
    std::string pathOf(const std::string& descriptor) const;

private:
    FileDescriptor m_folder;
};

/// The numbers of all processes, in the system's order; nothing when the folder cannot be read.
[[nodiscard]] std::optional<std::vector<std::string>> processNumbers(int proc);

/// Whether this process lives in a name space of its own, as in a sandbox or a container, from
/// which the system's other processes cannot be seen. False where the system does not tell.
[[nodiscard]] bool isOfInnerNamespace(int proc);

/// A path without the word " (deleted)" that the system adds to it.
[[nodiscard]] std::string withoutDeletedWord(std::string path);

/// Of a line like "7f00-7f10 r-xp 00000000 08:01 123    /usr/bin/a (deleted)"; nothing when it is
/// of memory without a file.
[[nodiscard]] std::optional<Mapping> mappingFrom(std::string_view line);

/// Of a text like /proc/PID/stat.
[[nodiscard]] FilesShown filesShownBy(std::string_view stat);

} // namespace tessera
