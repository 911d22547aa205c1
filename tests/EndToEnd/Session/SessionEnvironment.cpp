// SPDX-License-Identifier: MIT
#include "SessionEnvironment.h"

namespace tessera::test {

std::vector<std::string> sessionEnvironment(
    const TempTree& session, const std::string& display, const std::string& busAddress)
{
    std::vector<std::string> environment{
        "DISPLAY=" + display,
        "QT_QPA_PLATFORM=xcb",
        "QT_SCALE_FACTOR=1",
        "WAYLAND_DISPLAY=",
        "LANGUAGE=", // the developer's own
        "DBUS_SESSION_BUS_ADDRESS=" + busAddress,
        "HOME=" + session.pathOf("home")};
    session.makeFolder("home");
    for (const char* kind : {"config", "data", "cache", "runtime"}) {
        session.makeFolder(kind);
    }
    constexpr mode_t kPrivate = 0700;
    session.setMode("runtime", kPrivate);
    environment.push_back("XDG_CONFIG_HOME=" + session.pathOf("config"));
    environment.push_back("XDG_DATA_HOME=" + session.pathOf("data"));
    environment.push_back("XDG_CACHE_HOME=" + session.pathOf("cache"));
    environment.push_back("XDG_STATE_HOME=" + session.pathOf("state"));
    environment.push_back("XDG_RUNTIME_DIR=" + session.pathOf("runtime"));
    return environment;
}

} // namespace tessera::test
