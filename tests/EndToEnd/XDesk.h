// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QPoint>
#include <QRect>

#include <xcb/xcb.h>

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
} // namespace key

/// The user in front of an X server's screen: looks at it, moves the pointer and presses real
/// buttons and keys, which reach the programs by the way of any other; and what a window manager
/// does for the user, for there is none. All coordinates are the screen's. Each function returns
/// when the server has done it.
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
    void typeKey(std::uint32_t keysym);

    void activate(const XWindow& window);
    bool isActive(const XWindow& window) const; ///< whether it gets the keys
    void setFrame(const XWindow& window, const QRect& frame);
    void requestClose(const XWindow& window);

private:
    struct Disconnecter {
        void operator()(xcb_connection_t* connection) const { xcb_disconnect(connection); }
    };

    void sync() const;
    xcb_atom_t atom(const std::string& name) const;
    std::string property(xcb_window_t window, const std::string& name) const;
    XWindow::Kind kindOf(xcb_window_t window, bool isUnmanaged) const;
    std::optional<XWindow> describe(xcb_window_t window) const;
    void send(std::uint8_t eventType, std::uint8_t detail, std::chrono::milliseconds delay) const;
    void sendClick(Button button, std::chrono::milliseconds delay) const;

    std::unique_ptr<xcb_connection_t, Disconnecter> m_connection;
    const xcb_screen_t* m_screen = nullptr;
    std::optional<QPoint> m_lastClick;
    QPoint m_pointer;
};

} // namespace tessera::test
