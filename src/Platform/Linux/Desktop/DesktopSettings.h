// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>

using GSettings = struct _GSettings; // NOLINT(bugprone-reserved-identifier): as GIO declares it

namespace tessera {

/// What GNOME and its relatives keep about the look of windows, in GSettings. Whatever is not
/// installed has no value. Main thread only.
class DesktopSettings {
public:
    static constexpr const char* kSchema = "org.gnome.desktop.interface";

    /// `schema`: need not exist. It is looked for when first needed, which starts a thread.
    explicit DesktopSettings(std::string schema = kSchema);
    DesktopSettings(const DesktopSettings&) = delete;
    DesktopSettings& operator=(const DesktopSettings&) = delete;
    ~DesktopSettings();

    std::optional<bool> boolean(const char* key) const;
    /// Also of a key that has one of several values.
    std::optional<std::string> string(const char* key) const;

    /// Called from the event loop after each change.
    void setHandler(std::function<void()> handler);

private:
    struct Release {
        void operator()(GSettings* settings) const;
    };

    GSettings* settings() const;

    std::string m_schema;
    std::function<void()> m_handler;
    mutable std::optional<std::unique_ptr<GSettings, Release>> m_settings;
};

} // namespace tessera
