// SPDX-License-Identifier: MIT
#pragma once

#include <QRect>

#include <gio/gio.h>

#include <cstdint>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

namespace tessera::test {

/// What a program tells of a control to users who cannot see it.
struct Control {
    std::string path; ///< by which the program knows it
    std::string name;
    std::string role; ///< such as "push button"
    QRect frame; ///< on the screen
    std::uint64_t states = 0;

    /// By the numbers that AT-SPI gives to states.
    bool isChecked() const { return hasState(4); }
    bool isEnabled() const { return hasState(8); }
    bool isFocused() const { return hasState(12); }
    bool isSelected() const { return hasState(23); }
    bool isShowing() const { return hasState(25); }

private:
    bool hasState(unsigned number) const { return (states >> number & 1U) != 0; }
};

/// Assistive technology on a session bus, by the AT-SPI protocol: programs that are started there
/// with QT_LINUX_ACCESSIBILITY_ALWAYS_ON introduce themselves to it, and it finds their controls
/// by name. It only reads; what the user does is up to the pointer and the keys.
class ScreenReader {
public:
    /// Throws std::runtime_error when that bus cannot be used.
    explicit ScreenReader(const std::string& busAddress);
    ScreenReader(const ScreenReader&) = delete;
    ScreenReader& operator=(const ScreenReader&) = delete;
    ~ScreenReader();

    /// Forgets the program that has introduced itself, to wait for the next one.
    void expectProgram();
    bool hasProgram() const;

    /// The first control of that name that can be seen; of any role when none is given.
    std::optional<Control> find(const std::string& name, const std::string& role = {}) const;
    /// All controls that can be seen, of that role when one is given.
    std::vector<Control> all(const std::string& role = {}) const;
    /// A known control as it is now; nothing when it is no more.
    std::optional<Control> again(const Control& control) const { return describe(control.path); }

private:
    struct Unreferencer {
        void operator()(GVariant* value) const { g_variant_unref(value); }
        void operator()(GDBusConnection* connection) const { g_object_unref(connection); }
    };
    using Value = std::unique_ptr<GVariant, Unreferencer>;

    static GDBusMessage* filter(
        GDBusConnection* bus, GDBusMessage* message, gboolean isIncoming, gpointer reader);
    GVariant* answerTo(GDBusMessage* call);
    void ownName(const char* name) const;
    std::string program() const;

    Value call(
        const std::string& path,
        const char* interface,
        const char* method,
        GVariant* arguments) const;
    std::string textProperty(const std::string& path, const char* name) const;
    std::vector<std::string> childrenOf(const std::string& path) const;
    std::optional<Control> describe(const std::string& path) const;
    /// Walks over the controls until the visitor returns false.
    void walk(const std::function<bool(const std::string& path)>& visit) const;

    std::string m_address;
    std::unique_ptr<GDBusConnection, Unreferencer> m_bus;
    guint m_filter = 0;
    mutable std::mutex m_mutex;
    std::string m_program; ///< its name on the bus
};

} // namespace tessera::test
