// SPDX-License-Identifier: MIT
#pragma once

#include <span>

namespace tessera {

/// Where the bytes of an archive go.
class ArchiveOutput {
public:
    ArchiveOutput() = default;
    ArchiveOutput(const ArchiveOutput&) = delete;
    ArchiveOutput& operator=(const ArchiveOutput&) = delete;
    virtual ~ArchiveOutput() = default;

    /// Takes all of the bytes, or says by an errno why not.
    [[nodiscard]] virtual int write(std::span<const char> bytes) = 0;

    /// Says by an errno whether something written before did not arrive; 0 when all did.
    [[nodiscard]] virtual int close() = 0;
};

} // namespace tessera
