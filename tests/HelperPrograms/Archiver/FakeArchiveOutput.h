// SPDX-License-Identifier: MIT
#pragma once

#include "HelperPrograms/Archiver/ArchiveOutput.h"

#include <cerrno>
#include <cstddef>
#include <limits>
#include <string>

namespace tessera::test {

/// Keeps the bytes, as long as there is room.
class FakeArchiveOutput final : public ArchiveOutput {
public:
    [[nodiscard]] int write(std::span<const char> part) override
    {
        if (part.size() > room - bytes.size()) {
            ++failedWrites;
            return ENOSPC;
        }
        bytes.append(part.data(), part.size());
        return 0;
    }

    [[nodiscard]] int close() override
    {
        isClosed = true;
        return closeError;
    }

    [[nodiscard]] int publish() override { return 0; }
    void giveRoomBack() override { bytes.clear(); }
    FileIdentity identity() const override { return {}; }

    std::size_t room = std::numeric_limits<std::size_t>::max();
    std::string bytes;
    int closeError = 0;
    int failedWrites = 0;
    bool isClosed = false;
};

} // namespace tessera::test
