// SPDX-License-Identifier: MIT
#pragma once

#include <optional>

namespace tessera {

/// Whether the user wants choosers of files to show hidden ones. Main thread only.
class HiddenFilesPreference {
public:
    HiddenFilesPreference() = default;
    HiddenFilesPreference(const HiddenFilesPreference&) = delete;
    HiddenFilesPreference& operator=(const HiddenFilesPreference&) = delete;
    virtual ~HiddenFilesPreference() = default;

    /// As it is now; nothing where no desktop keeps such a setting.
    [[nodiscard]] virtual std::optional<bool> showsHiddenFiles() const = 0;
};

} // namespace tessera
