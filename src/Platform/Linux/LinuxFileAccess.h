// SPDX-License-Identifier: MIT
#pragma once

#include "Shell/FileAccess.h"

namespace tessera {

class LinuxFileAccess final : public FileAccess {
public:
    [[nodiscard]] std::error_code checkFolder(const std::string& path) const override;
    [[nodiscard]] std::string absolutePath(const std::string& path) const override;
    [[nodiscard]] std::error_code writeFile(
        const std::string& path, std::string_view bytes) const override;
};

} // namespace tessera
