// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>

namespace tessera {

/// What the desktop shows beside other programs' windows. Plain text in UTF-8: what looks like
/// markup in it is meant as it stands.
struct Notification {
    std::string title;
    std::string text;

    bool operator==(const Notification&) const = default;
};

/// Tells the user something while other programs are in front. Main thread only; no operation waits
/// for the desktop, and where nothing shows notifications nothing happens.
class Notifications {
public:
    /// By the token, which may be empty, the desktop lets a window come to the front; it is
    /// printable ASCII of at most 256 bytes.
    using Handler = std::function<void(const std::string& activationToken)>;

    Notifications() = default;
    Notifications(const Notifications&) = delete;
    Notifications& operator=(const Notifications&) = delete;
    virtual ~Notifications() = default;

    /// Called from the event loop when the user clicks on what is shown. It may be empty.
    virtual void setHandler(Handler handler) = 0;

    /// Shows it in the place of the one before.
    virtual void show(const Notification& notification) = 0;

    /// Takes away what is shown, or is about to be; what is shown after the program's end stays.
    virtual void withdraw() = 0;
};

} // namespace tessera
