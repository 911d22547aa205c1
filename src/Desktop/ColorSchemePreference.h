// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>

namespace tessera {

enum class ColorScheme : std::uint8_t { NoPreference, Dark, Light };

/// Whether the user asked the desktop for dark or for light windows. Main thread only.
class ColorSchemePreference {
public:
    using Handler = std::function<void()>;

    ColorSchemePreference() = default;
    ColorSchemePreference(const ColorSchemePreference&) = delete;
    ColorSchemePreference& operator=(const ColorSchemePreference&) = delete;
    virtual ~ColorSchemePreference() = default;

    /// What is known so far; never waits for the desktop.
    [[nodiscard]] virtual ColorScheme colorScheme() const = 0;

    /// Begins to follow the desktop. Called from the event loop whenever the answer may be another.
    virtual void setHandler(Handler handler) = 0;
};

} // namespace tessera
