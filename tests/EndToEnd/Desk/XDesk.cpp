// SPDX-License-Identifier: MIT
#include "XDesk.h"

#include <xcb/xtest.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <stdexcept>
#include <utility>

namespace tessera::test {

namespace {

/// Presses that come faster and closer to each other count as a double click.
constexpr std::chrono::milliseconds kBetweenClicks{700};
constexpr std::chrono::milliseconds kBeforeDrop{300};
constexpr int kNearPixels = 16;

/// Who asks, as a window manager wants to know it: a pager, which is always obeyed.
constexpr std::uint32_t kByPager = 2;

constexpr std::uint32_t kIconicState = 3; ///< ICCCM 4.1.3.1

constexpr std::uint32_t kLongestProperty = 1024; ///< in units of four bytes

struct Freer {
    // NOLINTNEXTLINE(cppcoreguidelines-owning-memory): answers are the caller's to free
    void operator()(void* answer) const { std::free(answer); }
};

/// The answer to a request; null when the server refused it.
template <auto Receive, typename Request>
auto answer(xcb_connection_t* connection, Request request)
{
    auto* received = Receive(connection, request, nullptr);
    return std::unique_ptr<std::remove_pointer_t<decltype(received)>, Freer>(received);
}

} // namespace

XDesk::XDesk(const std::string& display)
    : m_connection(xcb_connect(display.c_str(), nullptr))
{
    constexpr std::uint8_t kMajor = 2;
    constexpr std::uint16_t kMinor = 2;
    xcb_connection_t* const server = m_connection.get();
    if (xcb_connection_has_error(server) != 0
        || !answer<xcb_test_get_version_reply>(
            server, xcb_test_get_version(server, kMajor, kMinor))) {
        throw std::runtime_error("no X server with the test extension at " + display);
    }
    m_screen = xcb_setup_roots_iterator(xcb_get_setup(server)).data;
}

QRect XDesk::screen() const
{
    return {0, 0, m_screen->width_in_pixels, m_screen->height_in_pixels};
}

QImage XDesk::picture(const QRect& part) const
{
    const auto pixels = answer<xcb_get_image_reply>(
        m_connection.get(),
        xcb_get_image(
            m_connection.get(),
            XCB_IMAGE_FORMAT_Z_PIXMAP,
            m_screen->root,
            static_cast<std::int16_t>(part.x()),
            static_cast<std::int16_t>(part.y()),
            static_cast<std::uint16_t>(part.width()),
            static_cast<std::uint16_t>(part.height()),
            ~0U));
    if (pixels == nullptr) {
        return {};
    }
    // The copy is the image's own.
    return QImage(
               xcb_get_image_data(pixels.get()), part.width(), part.height(), QImage::Format_RGB32)
        .copy();
}

std::vector<XWindow> XDesk::windows() const
{
    std::vector<XWindow> found;
    for (const xcb_window_t id : childrenOf(m_screen->root)) {
        if (const std::optional<XWindow> window = describe(clientIn(id))) {
            found.push_back(*window);
        }
    }
    return found;
}

std::vector<xcb_window_t> XDesk::childrenOf(xcb_window_t window) const
{
    const auto tree = answer<xcb_query_tree_reply>(
        m_connection.get(), xcb_query_tree(m_connection.get(), window));
    if (tree == nullptr) {
        return {};
    }
    const xcb_window_t* const first = xcb_query_tree_children(tree.get());
    return {first, first + xcb_query_tree_children_length(tree.get())};
}

/// The program's window in a frame of the window manager's, which marks those it takes care of.
xcb_window_t XDesk::clientIn(xcb_window_t window) const
{
    const std::vector<xcb_window_t> children = childrenOf(window);
    const auto client = std::ranges::find_if(
        children, [this](xcb_window_t child) { return !property(child, "WM_STATE").empty(); });
    return client == children.end() ? window : *client;
}

std::optional<XWindow> XDesk::window(XWindow::Kind kind) const
{
    const std::vector<XWindow> all = windows();
    const auto found = std::find_if(
        all.rbegin(), all.rend(), [kind](const XWindow& window) { return window.kind == kind; });
    return found == all.rend() ? std::nullopt : std::optional(*found);
}

/// Nothing when the window cannot be seen or has just gone away.
std::optional<XWindow> XDesk::describe(xcb_window_t window) const
{
    xcb_connection_t* const server = m_connection.get();
    const auto attributes = answer<xcb_get_window_attributes_reply>(
        server, xcb_get_window_attributes(server, window));
    const auto geometry = answer<xcb_get_geometry_reply>(server, xcb_get_geometry(server, window));
    const auto place = answer<xcb_translate_coordinates_reply>(
        server, xcb_translate_coordinates(server, window, m_screen->root, 0, 0));
    if (attributes == nullptr || geometry == nullptr || place == nullptr
        || attributes->map_state != XCB_MAP_STATE_VIEWABLE) {
        return std::nullopt;
    }
    return XWindow{
        window,
        kindOf(window, attributes->override_redirect != 0),
        {place->dst_x, place->dst_y, geometry->width, geometry->height},
        property(window, "_NET_WM_NAME")};
}

XWindow::Kind XDesk::kindOf(xcb_window_t window, bool isUnmanaged) const
{
    // The types stand in the order of preference; the last is one that every manager knows.
    const std::string types = property(window, "_NET_WM_WINDOW_TYPE");
    xcb_atom_t type = XCB_ATOM_NONE;
    if (types.size() >= sizeof(type)) {
        std::copy_n(types.data(), sizeof(type), reinterpret_cast<char*>(&type));
    }
    if (type == atom("_NET_WM_WINDOW_TYPE_TOOLTIP")) {
        return XWindow::Kind::Tooltip;
    }
    if (isUnmanaged) {
        // The window manager has such windows too, of no type.
        return types.empty() ? XWindow::Kind::Other : XWindow::Kind::Menu;
    }
    const std::array kinds{
        std::pair{"_NET_WM_WINDOW_TYPE_NORMAL", XWindow::Kind::Main},
        std::pair{"_NET_WM_WINDOW_TYPE_DIALOG", XWindow::Kind::Dialog},
        std::pair{"_NET_WM_WINDOW_TYPE_UTILITY", XWindow::Kind::Panel}};
    const auto* const found
        = std::ranges::find_if(kinds, [&](const auto& kind) { return atom(kind.first) == type; });
    return found == kinds.end() ? XWindow::Kind::Other : found->second;
}

std::string XDesk::property(xcb_window_t window, const std::string& name) const
{
    const auto value = answer<xcb_get_property_reply>(
        m_connection.get(),
        xcb_get_property(
            m_connection.get(), 0, window, atom(name), XCB_ATOM_ANY, 0, kLongestProperty));
    if (value == nullptr) {
        return {};
    }
    const auto length = static_cast<std::size_t>(xcb_get_property_value_length(value.get()));
    return {static_cast<const char*>(xcb_get_property_value(value.get())), length};
}

xcb_atom_t XDesk::atom(const std::string& name) const
{
    const auto interned = answer<xcb_intern_atom_reply>(
        m_connection.get(),
        xcb_intern_atom(
            m_connection.get(), 0, static_cast<std::uint16_t>(name.size()), name.c_str()));
    return interned == nullptr ? xcb_atom_t{XCB_ATOM_NONE} : interned->atom;
}

/// Waits until the server has done all that was asked of it: it takes requests in their order.
void XDesk::sync() const
{
    answer<xcb_get_input_focus_reply>(m_connection.get(), xcb_get_input_focus(m_connection.get()));
}

void XDesk::send(std::uint8_t eventType, std::uint8_t detail, std::chrono::milliseconds delay) const
{
    xcb_test_fake_input(
        m_connection.get(),
        eventType,
        detail,
        static_cast<std::uint32_t>(delay.count()),
        m_screen->root,
        static_cast<std::int16_t>(m_pointer.x()),
        static_cast<std::int16_t>(m_pointer.y()),
        0);
}

void XDesk::movePointer(QPoint to)
{
    m_pointer = to;
    send(XCB_MOTION_NOTIFY, 0, {});
    sync();
}

void XDesk::sendClick(Button button, std::chrono::milliseconds delay) const
{
    send(XCB_BUTTON_PRESS, static_cast<std::uint8_t>(button), delay);
    send(XCB_BUTTON_RELEASE, static_cast<std::uint8_t>(button), {});
}

void XDesk::click(QPoint at, Button button)
{
    const bool isNearLast = m_lastClick && (*m_lastClick - at).manhattanLength() < kNearPixels;
    movePointer(at);
    sendClick(button, isNearLast ? kBetweenClicks : std::chrono::milliseconds(0));
    sync();
    m_lastClick = at;
}

void XDesk::doubleClick(QPoint at)
{
    click(at);
    sendClick(Button::Left, {});
    sync();
}

XDesk::Key XDesk::keyOf(std::uint32_t keysym) const
{
    const xcb_setup_t* const setup = xcb_get_setup(m_connection.get());
    const auto count = static_cast<std::uint8_t>(setup->max_keycode - setup->min_keycode + 1);
    const auto mapping = answer<xcb_get_keyboard_mapping_reply>(
        m_connection.get(),
        xcb_get_keyboard_mapping(m_connection.get(), setup->min_keycode, count));
    if (mapping == nullptr) {
        throw std::runtime_error("the X server has no keyboard");
    }
    const xcb_keysym_t* const first = xcb_get_keyboard_mapping_keysyms(mapping.get());
    const xcb_keysym_t* const last = first + xcb_get_keyboard_mapping_keysyms_length(mapping.get());
    const xcb_keysym_t* const found = std::find(first, last, keysym);
    if (found == last) {
        throw std::runtime_error("the keyboard has no such key");
    }
    // Of a key's signs the second is the one with Shift.
    const auto row = (found - first) / mapping->keysyms_per_keycode;
    const auto column = (found - first) % mapping->keysyms_per_keycode;
    return {static_cast<std::uint8_t>(setup->min_keycode + row), column == 1};
}

void XDesk::drag(QPoint from, QPoint to)
{
    constexpr int kSteps = 20;
    constexpr std::chrono::milliseconds kBetweenSteps{10};
    movePointer(from);
    send(XCB_BUTTON_PRESS, static_cast<std::uint8_t>(Button::Left), {});
    for (int step = 1; step <= kSteps; ++step) {
        m_pointer = from + (to - from) * step / kSteps;
        send(XCB_MOTION_NOTIFY, 0, kBetweenSteps);
    }
    // Whoever is dragged to is asked, and has to answer, before the button is let go.
    send(XCB_BUTTON_RELEASE, static_cast<std::uint8_t>(Button::Left), kBeforeDrop);
    sync();
}

void XDesk::typeKey(std::uint32_t keysym)
{
    typeKeys({keysym});
}

void XDesk::typeKeys(const std::vector<std::uint32_t>& keysyms)
{
    std::vector<std::uint8_t> codes;
    for (const std::uint32_t keysym : keysyms) {
        codes.push_back(keyOf(keysym).code);
        send(XCB_KEY_PRESS, codes.back(), {});
    }
    for (; !codes.empty(); codes.pop_back()) {
        send(XCB_KEY_RELEASE, codes.back(), {});
    }
    sync();
}

void XDesk::typeText(const std::string& latin1)
{
    for (const char letter : latin1) {
        // The keysyms of Latin 1 are its codes.
        const std::uint32_t keysym = static_cast<std::uint8_t>(letter);
        typeKeys(keyOf(keysym).needsShift ? std::vector{key::kShift, keysym} : std::vector{keysym});
    }
}

bool XDesk::isManaged() const
{
    return !property(m_screen->root, "_NET_SUPPORTING_WM_CHECK").empty();
}

void XDesk::activate(const XWindow& window)
{
    if (isManaged()) {
        sendMessage(
            m_screen->root, window.id, "_NET_ACTIVE_WINDOW", {kByPager, XCB_TIME_CURRENT_TIME});
    } else {
        xcb_set_input_focus(
            m_connection.get(), XCB_INPUT_FOCUS_PARENT, window.id, XCB_TIME_CURRENT_TIME);
    }
    sync();
}

bool XDesk::isActive(const XWindow& window) const
{
    const auto focus = answer<xcb_get_input_focus_reply>(
        m_connection.get(), xcb_get_input_focus(m_connection.get()));
    return focus != nullptr && focus->focus == window.id;
}

void XDesk::setFrame(const XWindow& window, const QRect& frame)
{
    const std::array values{
        static_cast<std::uint32_t>(frame.x()),
        static_cast<std::uint32_t>(frame.y()),
        static_cast<std::uint32_t>(frame.width()),
        static_cast<std::uint32_t>(frame.height())};
    xcb_configure_window(
        m_connection.get(),
        window.id,
        XCB_CONFIG_WINDOW_X | XCB_CONFIG_WINDOW_Y | XCB_CONFIG_WINDOW_WIDTH
            | XCB_CONFIG_WINDOW_HEIGHT,
        values.data());
    sync();
}

void XDesk::requestClose(const XWindow& window)
{
    sendMessage(
        window.id, window.id, "WM_PROTOCOLS", {atom("WM_DELETE_WINDOW"), XCB_TIME_CURRENT_TIME});
    sync();
}

void XDesk::minimise(const XWindow& window)
{
    sendMessage(m_screen->root, window.id, "WM_CHANGE_STATE", {kIconicState, 0});
    sync();
}

/// To the root window's owner, the window manager, or to the window's.
void XDesk::sendMessage(
    xcb_window_t receiver,
    xcb_window_t about,
    const std::string& type,
    const std::array<std::uint32_t, 2>& values) const
{
    xcb_client_message_event_t event{};
    event.response_type = XCB_CLIENT_MESSAGE;
    event.format = 32;
    event.window = about;
    event.type = atom(type);
    std::ranges::copy(values, std::begin(event.data.data32));
    const std::uint32_t mask = receiver == m_screen->root
        ? XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT | XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY
        : XCB_EVENT_MASK_NO_EVENT;
    xcb_send_event(m_connection.get(), 0, receiver, mask, reinterpret_cast<const char*>(&event));
}

} // namespace tessera::test
