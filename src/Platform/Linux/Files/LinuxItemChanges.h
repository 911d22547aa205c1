// SPDX-License-Identifier: MIT
#pragma once

#include "Desktop/ItemChanges.h"

namespace tessera {

/// Walks a folder without opening its files.
class LinuxItemChanges final : public ItemChanges {
public:
    [[nodiscard]] Answer since(
        const std::string& path, const FileTime& time, const std::stop_token& stop) const override;
};

} // namespace tessera
