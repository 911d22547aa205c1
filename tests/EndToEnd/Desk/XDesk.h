// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QPoint>
#include <QRect>

#include <xcb/xcb.h>

#include <array>
#include <chrono>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace tessera::test {

/// A window that can be seen on the screen.
struct XWindow {
    enum class Kind { Main, Dialog, Panel, Tooltip, Menu, Other };

    xcb_window_t id = XCB_NONE;
    Kind kind = Kind::Other;
    QRect frame; ///< on the screen
    std::string title; ///< UTF-8
};

/// Keys by the names that X gives them (keysyms).
namespace key {
inline constexpr std::uint32_t kEscape = 0xFF1B;
inline constexpr std::uint32_t kReturn = 0xFF0D;
inline constexpr std::uint32_t kBackspace = 0xFF08;
inline constexpr std::uint32_t kDelete = 0xFFFF;
inline constexpr std::uint32_t kSpace = 0x0020;
inline constexpr std::uint32_t kUp = 0xFF52;
inline constexpr std::uint32_t kDown = 0xFF54;
inline constexpr std::uint32_t kRight = 0xFF53;
inline constexpr std::uint32_t kMenu = 0xFF67;
inline constexpr std::uint32_t kHome = 0xFF50;
inline constexpr std::uint32_t kF1 = 0xFFBE;
inline constexpr std::uint32_t kF5 = 0xFFC2;
inline constexpr std::uint32_t kControl = 0xFFE3;
inline constexpr std::uint32_t kAlt = 0xFFE9;
inline constexpr std::uint32_t kShift = 0xFFE1;
} // namespace key

/// The user in front of an X server's screen: looks at it, moves the pointer and presses real
/// buttons and keys, which reach the programs by the way of any other; and what a window manager
/// does for the user, for there may be none. All coordinates are the screen's; windows are meant
/// without what a window manager puts around them. Each function returns when the server has done
/// it.
class XDesk {
public:
    /// Throws std::runtime_error when there is no server or it cannot be driven.
    explicit XDesk(const std::string& display);

    QRect screen() const;
    /// What can be seen in that part of the screen; a null image when it reaches out of it.
    QImage picture(const QRect& part) const;
    /// Bottom to top.
    std::vector<XWindow> windows() const;
    std::optional<XWindow> window(XWindow::Kind kind) const; ///< the topmost of the kind

    enum class Button : std::uint8_t { Left = 1, Right = 3 };
    void movePointer(QPoint to);
    void click(QPoint at, Button button = Button::Left);
    void doubleClick(QPoint at);
    /// With the left button down, by as many steps as a hand makes.
    void drag(QPoint from, QPoint to);
    void typeKey(std::uint32_t keysym);
    /// Presses the keys one after the other and lets them go in reverse, such as Control and "o".
    void typeKeys(const std::vector<std::uint32_t>& keysyms);
    void typeText(const std::string& latin1);

    void activate(const XWindow& window);
    bool isActive(const XWindow& window) const; ///< whether it gets the keys
    /// Whether a window manager is at work.
    bool isManaged() const;
    void setFrame(const XWindow& window, const QRect& frame);
    void requestClose(const XWindow& window);
    void minimise(const XWindow& window);

private:
    struct Disconnecter {
        void operator()(xcb_connection_t* connection) const { xcb_disconnect(connection); }
    };

    void sync() const;
    xcb_atom_t atom(const std::string& name) const;
    std::string property(xcb_window_t window, const std::string& name) const;
    std::vector<xcb_window_t> childrenOf(xcb_window_t window) const;
    xcb_window_t clientIn(xcb_window_t window) const;
    XWindow::Kind kindOf(xcb_window_t window, bool isUnmanaged) const;
    std::optional<XWindow> describe(xcb_window_t window) const;
    struct Key {
        std::uint8_t code = 0;
        bool needsShift = false;
    };
    Key keyOf(std::uint32_t keysym) const;
    void send(std::uint8_t eventType, std::uint8_t detail, std::chrono::milliseconds delay) const;
    void sendMessage(
        xcb_window_t receiver,
        xcb_window_t about,
        const std::string& type,
        const std::array<std::uint32_t, 2>& values) const;
    void sendClick(Button button, std::chrono::milliseconds delay) const;

    std::unique_ptr<xcb_connection_t, Disconnecter> m_connection;
    const xcb_screen_t* m_screen = nullptr;
    std::optional<QPoint> m_lastClick;
    QPoint m_pointer;
};

} // namespace tessera::test
