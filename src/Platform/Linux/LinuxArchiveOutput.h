// SPDX-License-Identifier: MIT
#pragma once

#include "Archiver/ArchiveOutput.h"
#include "Platform/Linux/FileDescriptor.h"

namespace tessera {

/// An archive that is written to a file.
class LinuxArchiveOutput final : public ArchiveOutput {
public:
    explicit LinuxArchiveOutput(FileDescriptor file);

    [[nodiscard]] int write(std::span<const char> bytes) override;
    [[nodiscard]] int close() override;

private:
    FileDescriptor m_file;
};

} // namespace tessera
