// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace tessera {

/// What the password database says of a user.
struct PasswordEntry {
    std::string name; ///< login name
    std::string directory; ///< home directory, as bytes
};

/// Who runs the program.
class UserAccount {
public:
    UserAccount() = default;
    UserAccount(const UserAccount&) = delete;
    UserAccount& operator=(const UserAccount&) = delete;
    virtual ~UserAccount() = default;

    /// The entry of the real user, not of the one whose rights the process has.
    [[nodiscard]] virtual std::optional<PasswordEntry> realUser() const = 0;

    /// The home directory as the process's surroundings give it, which may be another one.
    [[nodiscard]] virtual std::string homeDirectory() const = 0;

    /// The number of the user whose rights the process has.
    [[nodiscard]] virtual std::uint32_t userNumber() const = 0;
};

/// Login name and home directory of the real user. A user without an entry in the password
/// database stops the process.
[[nodiscard]] std::string realUserName(const UserAccount& account);
[[nodiscard]] std::string realHomeDirectory(const UserAccount& account);

} // namespace tessera
