// SPDX-License-Identifier: MIT
#pragma once

#include "Desktop/UserAccount.h"

namespace tessera {

/// getpwuid(3) of the real user id, and the environment's HOME.
class LinuxUserAccount final : public UserAccount {
public:
    [[nodiscard]] std::optional<PasswordEntry> realUser() const override;

    /// HOME when it is set, else the home of the user whose rights the process has, else "/".
    [[nodiscard]] std::string homeDirectory() const override;

    [[nodiscard]] std::uint32_t userNumber() const override;
};

} // namespace tessera
