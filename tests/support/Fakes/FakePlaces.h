// SPDX-License-Identifier: MIT
#pragma once

#include "Desktop/MountedVolumes.h"
#include "Desktop/UserAccount.h"

#include <algorithm>
#include <string>
#include <vector>

namespace tessera::test {

/// Volumes that the test names.
class FakeMountedVolumes final : public MountedVolumes {
public:
    std::vector<MountedVolume> mountedVolumes() const override { return list; }

    std::optional<MountedVolume> volumeAt(const std::string& path) const override
    {
        const auto found = std::find_if(list.begin(), list.end(), [&](const auto& volume) {
            return volume.url.path() == path;
        });
        return found != list.end() ? std::optional(*found) : std::nullopt;
    }

    std::vector<MountedVolume> list;
};

/// A user that the test names.
class FakeUserAccount final : public UserAccount {
public:
    std::optional<PasswordEntry> realUser() const override { return real; }
    std::string homeDirectory() const override { return home; }
    std::uint32_t userNumber() const override { return 0; }

    PasswordEntry real{"me", "/real/me"};
    std::string home = "/home/me";
};

} // namespace tessera::test
