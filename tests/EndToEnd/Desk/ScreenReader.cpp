// SPDX-License-Identifier: MIT
#include "ScreenReader.h"

#include <algorithm>
#include <stdexcept>
#include <string_view>

namespace tessera::test {

namespace {

constexpr const char* kAccessible = "org.a11y.atspi.Accessible";
constexpr const char* kComponent = "org.a11y.atspi.Component";
constexpr const char* kRoot = "/org/a11y/atspi/accessible/root";

/// A program that is stopped in the middle of something answers when it goes on.
constexpr int kPatienceMs = 20'000;

bool isWanted(const Control& control, const std::string& role)
{
    return control.isShowing() && (role.empty() || control.role == role);
}

std::string textOf(GVariant* value)
{
    return value == nullptr ? std::string() : std::string(g_variant_get_string(value, nullptr));
}

} // namespace

ScreenReader::ScreenReader(const std::string& busAddress)
    : m_address(busAddress)
    , m_bus(g_dbus_connection_new_for_address_sync(
          busAddress.c_str(),
          static_cast<GDBusConnectionFlags>(
              G_DBUS_CONNECTION_FLAGS_AUTHENTICATION_CLIENT
              | G_DBUS_CONNECTION_FLAGS_MESSAGE_BUS_CONNECTION),
          nullptr,
          nullptr,
          nullptr))
{
    if (m_bus == nullptr) {
        throw std::runtime_error("no session bus at " + busAddress);
    }
    m_filter = g_dbus_connection_add_filter(m_bus.get(), filter, this, nullptr);
    ownName("org.a11y.atspi.Registry");
    ownName("org.a11y.Bus");
}

ScreenReader::~ScreenReader()
{
    g_dbus_connection_remove_filter(m_bus.get(), m_filter);
    g_dbus_connection_close_sync(m_bus.get(), nullptr, nullptr);
}

void ScreenReader::ownName(const char* name) const
{
    const Value answer(g_dbus_connection_call_sync(
        m_bus.get(),
        "org.freedesktop.DBus",
        "/org/freedesktop/DBus",
        "org.freedesktop.DBus",
        "RequestName",
        g_variant_new("(su)", name, 0U),
        nullptr,
        G_DBUS_CALL_FLAGS_NONE,
        kPatienceMs,
        nullptr,
        nullptr));
    if (answer == nullptr) {
        throw std::runtime_error(std::string("the session bus refuses the name ") + name);
    }
}

/// Runs on a thread of the connection's own. Ours are all the calls that come in.
GDBusMessage* ScreenReader::filter(
    GDBusConnection* bus, GDBusMessage* message, gboolean isIncoming, gpointer reader)
{
    if (isIncoming == FALSE
        || g_dbus_message_get_message_type(message) != G_DBUS_MESSAGE_TYPE_METHOD_CALL) {
        return message;
    }
    GDBusMessage* reply = g_dbus_message_new_method_reply(message);
    g_dbus_message_set_body(reply, static_cast<ScreenReader*>(reader)->answerTo(message));
    g_dbus_connection_send_message(bus, reply, G_DBUS_SEND_MESSAGE_FLAGS_NONE, nullptr, nullptr);
    g_object_unref(reply);
    g_object_unref(message);
    return nullptr;
}

GVariant* ScreenReader::answerTo(GDBusMessage* call)
{
    const std::string_view member = g_dbus_message_get_member(call);
    if (member == "Get") { // whether programs are to introduce themselves
        return g_variant_new("(v)", g_variant_new_boolean(TRUE));
    }
    if (member == "GetAddress") {
        return g_variant_new("(s)", m_address.c_str());
    }
    if (member == "Embed") {
        const std::lock_guard lock(m_mutex);
        m_program = g_dbus_message_get_sender(call);
        return g_variant_new("((so))", g_dbus_connection_get_unique_name(m_bus.get()), kRoot);
    }
    if (member == "GetRegisteredEvents") { // there is nothing that it wants to be told of
        return g_variant_new("(a(ss))", nullptr);
    }
    return g_variant_new("(b)", FALSE); // it takes no keys from the program
}

void ScreenReader::expectProgram()
{
    const std::lock_guard lock(m_mutex);
    m_program.clear();
}

bool ScreenReader::hasProgram() const
{
    return !program().empty();
}

std::string ScreenReader::program() const
{
    const std::lock_guard lock(m_mutex);
    return m_program;
}

/// Null when the program does not answer or the control is no more.
ScreenReader::Value ScreenReader::call(
    const std::string& path, const char* interface, const char* method, GVariant* arguments) const
{
    const std::string receiver = program();
    const Value owned(arguments == nullptr ? nullptr : g_variant_ref_sink(arguments));
    if (receiver.empty()) {
        return nullptr;
    }
    return Value(g_dbus_connection_call_sync(
        m_bus.get(),
        receiver.c_str(),
        path.c_str(),
        interface,
        method,
        owned.get(),
        nullptr,
        G_DBUS_CALL_FLAGS_NO_AUTO_START,
        kPatienceMs,
        nullptr,
        nullptr));
}

std::string ScreenReader::textProperty(const std::string& path, const char* name) const
{
    const Value answer = call(
        path, "org.freedesktop.DBus.Properties", "Get", g_variant_new("(ss)", kAccessible, name));
    if (answer == nullptr) {
        return {};
    }
    const Value boxed(g_variant_get_child_value(answer.get(), 0));
    const Value text(g_variant_get_variant(boxed.get()));
    return textOf(text.get());
}

std::vector<std::string> ScreenReader::childrenOf(const std::string& path) const
{
    const Value answer = call(path, kAccessible, "GetChildren", nullptr);
    if (answer == nullptr) {
        return {};
    }
    std::vector<std::string> children;
    const Value list(g_variant_get_child_value(answer.get(), 0));
    for (gsize i = 0; i < g_variant_n_children(list.get()); ++i) {
        const Value child(g_variant_get_child_value(list.get(), i));
        const Value object(g_variant_get_child_value(child.get(), 1));
        children.push_back(textOf(object.get()));
    }
    return children;
}

std::optional<Control> ScreenReader::describe(const std::string& path) const
{
    const Value role = call(path, kAccessible, "GetRoleName", nullptr);
    const Value states = call(path, kAccessible, "GetState", nullptr);
    const Value extents = call(path, kComponent, "GetExtents", g_variant_new("(u)", 0U));
    if (role == nullptr || states == nullptr || extents == nullptr) {
        return std::nullopt;
    }
    const char* roleName = nullptr;
    g_variant_get(role.get(), "(&s)", &roleName);
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;
    g_variant_get(extents.get(), "((iiii))", &x, &y, &width, &height);
    const Value words(g_variant_get_child_value(states.get(), 0));
    std::uint32_t low = 0;
    g_variant_get_child(words.get(), 0, "u", &low);
    return Control{path, textProperty(path, "Name"), roleName, {x, y, width, height}, low};
}

void ScreenReader::walk(const std::function<bool(const std::string& path)>& visit) const
{
    std::vector<std::string> left{kRoot};
    while (!left.empty()) {
        const std::string path = left.back();
        left.pop_back();
        if (!visit(path)) {
            return;
        }
        std::vector<std::string> children = childrenOf(path);
        std::ranges::reverse_copy(children, std::back_inserter(left));
    }
}

std::optional<Control> ScreenReader::find(const std::string& name, const std::string& role) const
{
    std::optional<Control> found;
    walk([&](const std::string& path) {
        if (textProperty(path, "Name") == name) {
            const std::optional<Control> control = describe(path);
            if (control && isWanted(*control, role)) {
                found = control;
            }
        }
        return !found;
    });
    return found;
}

std::vector<Control> ScreenReader::all(const std::string& role) const
{
    std::vector<Control> found;
    walk([&](const std::string& path) {
        const std::optional<Control> control = describe(path);
        if (control && isWanted(*control, role)) {
            found.push_back(*control);
        }
        return true;
    });
    return found;
}

} // namespace tessera::test
