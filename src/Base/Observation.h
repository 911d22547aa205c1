// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace tessera {

/// Keeps a callback registered for as long as it lives. May outlive what it observes.
class Observation {
public:
    Observation() = default;

    /// `callback` is shared so that a callback may end its own observation while it runs: the
    /// observed list holds it too for the length of each call, and only weakly otherwise.
    explicit Observation(std::shared_ptr<const void> callback)
        : m_callback(std::move(callback))
    {
    }

    Observation(Observation&&) noexcept = default;
    Observation& operator=(Observation&&) noexcept = default;
    Observation(const Observation&) = delete;
    Observation& operator=(const Observation&) = delete;
    ~Observation() = default;

private:
    std::shared_ptr<const void> m_callback;
};

/// Callbacks in the order of their registration. Used by one thread.
template <typename... Arguments>
class ObserverList {
public:
    using Callback = std::function<void(Arguments...)>;

    [[nodiscard]] Observation add(Callback callback)
    {
        std::erase_if(m_callbacks, [](const auto& entry) { return entry.expired(); });
        auto shared = std::make_shared<const Callback>(std::move(callback));
        m_callbacks.push_back(shared);
        return Observation(std::move(shared));
    }

    /// Calls those registered at this moment. A callback may add and end observations: an ended
    /// one is called no more, an added one not yet.
    void notify(Arguments... arguments) const
    {
        const auto callbacks = m_callbacks;
        for (const auto& entry : callbacks) {
            if (const auto callback = entry.lock()) {
                (*callback)(arguments...);
            }
        }
    }

private:
    std::vector<std::weak_ptr<const Callback>> m_callbacks;
};

} // namespace tessera
