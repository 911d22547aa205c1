// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <optional>

namespace tessera {

enum class ColorScheme : std::uint8_t { NoPreference, Dark, Light };

/// A colour's parts, from 0 to 1.
struct AccentColor {
    double red = 0;
    double green = 0;
    double blue = 0;

    bool operator==(const AccentColor&) const = default;
};

/// Whether the user asked the desktop for dark or for light windows, and in which colour what is
/// selected stands out. Main thread only.
class ColorSchemePreference {
public:
    using Handler = std::function<void()>;

    ColorSchemePreference() = default;
    ColorSchemePreference(const ColorSchemePreference&) = delete;
    ColorSchemePreference& operator=(const ColorSchemePreference&) = delete;
    virtual ~ColorSchemePreference() = default;

    /// What is known so far; never waits for the desktop.
    [[nodiscard]] virtual ColorScheme colorScheme() const = 0;

    /// Likewise; nothing where the user has no choice or has made none.
    [[nodiscard]] virtual std::optional<AccentColor> accentColor() const { return std::nullopt; }

    /// Begins to follow the desktop. Called from the event loop whenever an answer may be another.
    virtual void setHandler(Handler handler) = 0;
};

} // namespace tessera
