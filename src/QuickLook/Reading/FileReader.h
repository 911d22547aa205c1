// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <system_error>

namespace tessera {

enum class FileKind : std::uint8_t {
    Unknown,
    Regular,
    Folder,
    SymbolicLink,
    Fifo,
    Socket,
    BlockDevice,
    CharacterDevice,
};

/// What the system says of one item, without following it where it is a link.
struct FileDescription {
    std::error_code error; ///< why nothing is known; then the rest is empty
    FileKind kind = FileKind::Unknown;
    std::uint64_t length = 0; ///< bytes of content, as far as the system knows beforehand
    std::optional<std::int64_t> modified; ///< seconds since 1970-01-01 00:00 UTC
    std::optional<std::int64_t> created; ///< likewise; many file systems do not know
    std::string linkTarget; ///< bytes, as they stand in the link
};

/// The content of an open regular file. Used by one thread at a time.
class ReadableFile {
public:
    ReadableFile() = default;
    ReadableFile(const ReadableFile&) = delete;
    ReadableFile& operator=(const ReadableFile&) = delete;
    virtual ~ReadableFile() = default;

    /// Reads from the offset on and says how many bytes came, which may be fewer than there is
    /// room for; 0 at the end. Nothing when reading failed or would have to wait for somebody to
    /// write.
    [[nodiscard]] virtual std::optional<std::size_t> readAt(
        std::uint64_t offset, std::span<char> into)
        = 0;

    /// The number by which another process can be given the open file; negative when there is none.
    [[nodiscard]] virtual int descriptor() const = 0;
};

struct OpenedFile {
    FileDescription description;
    std::error_code contentError; ///< why a regular file's content cannot be read
    std::unique_ptr<ReadableFile> content; ///< null for all that is no readable regular file
};

/// Describes items and opens regular files for reading; never changes anything on the disk. It
/// takes as long as the file system does, so it is called from workers that can be abandoned.
class FileReader {
public:
    FileReader() = default;
    FileReader(const FileReader&) = delete;
    FileReader& operator=(const FileReader&) = delete;
    virtual ~FileReader() = default;

    /// Only a regular file is opened: opening a pipe waits for its other end, and opening a device
    /// may start something. The path is absolute, as bytes, and no link is followed on it. Callable
    /// from any thread.
    [[nodiscard]] virtual OpenedFile open(const std::string& path) const = 0;
};

} // namespace tessera
