// SPDX-License-Identifier: MIT
#pragma once

#include "Base/FileIdentity.h"

#include <span>

namespace tessera {

/// Where the bytes of an archive go: a file that gets the archive's name when it is complete, so
/// that what is cut short, by whatever, is never taken for an archive.
class ArchiveOutput {
public:
    ArchiveOutput() = default;
    ArchiveOutput(const ArchiveOutput&) = delete;
    ArchiveOutput& operator=(const ArchiveOutput&) = delete;
    virtual ~ArchiveOutput() = default;

    /// Takes all of the bytes, or says by an errno why not.
    [[nodiscard]] virtual int write(std::span<const char> bytes) = 0;

    /// Brings all to the disk, or says by an errno why something did not arrive there.
    [[nodiscard]] virtual int close() = 0;

    /// Gives the file the archive's name, or says by an errno why not: EEXIST when something has
    /// that name meanwhile.
    [[nodiscard]] virtual int publish() = 0;

    /// Cuts the file to nothing. A fragment that filled its disk could not even be thrown away
    /// there.
    virtual void giveRoomBack() = 0;

    virtual FileIdentity identity() const = 0;
};

} // namespace tessera
