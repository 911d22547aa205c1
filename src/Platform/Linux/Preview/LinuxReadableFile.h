// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/Linux/Files/FileDescriptor.h"
#include "QuickLook/Reading/FileReader.h"

namespace tessera {

/// A regular file that is open for reading.
class LinuxReadableFile final : public ReadableFile {
public:
    explicit LinuxReadableFile(FileDescriptor file);

    [[nodiscard]] std::optional<std::size_t> readAt(
        std::uint64_t offset, std::span<char> into) override;
    [[nodiscard]] int descriptor() const override { return m_file.number(); }

private:
    FileDescriptor m_file;
};

} // namespace tessera
