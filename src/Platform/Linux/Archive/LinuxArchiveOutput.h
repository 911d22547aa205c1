// SPDX-License-Identifier: MIT
#pragma once

#include "HelperPrograms/Archiver/ArchiveOutput.h"
#include "Platform/Linux/Files/FileDescriptor.h"
#include "Platform/Linux/Files/LongPath.h"

#include <string>

namespace tessera {

/// An archive that is written to a file.
class LinuxArchiveOutput final : public ArchiveOutput {
public:
    /// `file` is the new file of the name `partName` beside `target`, which it will become.
    LinuxArchiveOutput(
        FileDescriptor file, const FileIdentity& identity, NamedPlace target, std::string partName);

    [[nodiscard]] int write(std::span<const char> bytes) override;
    [[nodiscard]] int close() override;
    [[nodiscard]] int publish() override;
    void giveRoomBack() override;
    FileIdentity identity() const override { return m_identity; }

private:
    const FileDescriptor m_file;
    const FileIdentity m_identity;
    const NamedPlace m_target;
    const std::string m_partName;
};

} // namespace tessera
