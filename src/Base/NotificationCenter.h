// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Observation.h"
#include "Base/Url.h"

#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <variant>

namespace tessera {

class File;

/// What a notification is about: nothing, a node, a file's URL, or the address of its sender,
/// which is for comparing alone.
using NotificationObject = std::variant<std::monostate, File*, Url, const void*>;

/// Carries named events between parts of the program that do not know each other. Main thread
/// only.
class NotificationCenter {
public:
    using Callback = std::function<void(const NotificationObject&)>;

    /// The one that the whole program shares.
    static NotificationCenter& defaultCenter();

    /// Calls the observers of `name` before it returns, in the order of their registration.
    void post(std::string_view name, const NotificationObject& object = {}) const;

    /// The callback is called for every notification of that name until the result is destroyed.
    [[nodiscard]] Observation addObserver(std::string_view name, Callback callback);

private:
    std::map<std::string, ObserverList<const NotificationObject&>, std::less<>> m_observers;
};

} // namespace tessera
