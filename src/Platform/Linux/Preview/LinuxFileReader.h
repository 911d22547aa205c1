// SPDX-License-Identifier: MIT
#pragma once

#include "QuickLook/Reading/FileReader.h"

namespace tessera {

class LinuxFileReader final : public FileReader {
public:
    [[nodiscard]] OpenedFile open(const std::string& path) const override;
};

} // namespace tessera
