// SPDX-License-Identifier: MIT
#pragma once

#include "HelperPrograms/Archiver/SourceWalk.h"
#include "Platform/Linux/Files/FileDescriptor.h"

#include <cstdint>
#include <span>

namespace tessera {

/// Reads a file from its beginning. Holes are not read from the disk; they give zeros.
class SparseFileReader {
public:
    /// Reads at most `length` bytes.
    SparseFileReader(FileDescriptor file, std::uint64_t length);

    /// The next bytes; none at the end, which comes early when the file has shrunk, and none with
    /// the first error.
    [[nodiscard]] ContentPart read(std::span<char> buffer);

private:
    [[nodiscard]] int findData();
    ContentPart failed(int error);
    ContentPart readData(std::span<char> buffer);

    FileDescriptor m_file;
    std::uint64_t m_length;
    std::uint64_t m_position = 0;
    std::uint64_t m_dataBegin = 0; ///< before it is a hole
    std::uint64_t m_dataEnd = 0; ///< behind it nothing is known yet
};

} // namespace tessera
