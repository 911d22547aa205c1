// SPDX-License-Identifier: MIT
#include "Base/NotificationCenter.h"

#include <utility>

namespace tessera {

NotificationCenter& NotificationCenter::defaultCenter()
{
    static NotificationCenter center;
    return center;
}

void NotificationCenter::post(std::string_view name, const NotificationObject& object) const
{
    const auto found = m_observers.find(name);
    if (found != m_observers.end()) {
        found->second.notify(object);
    }
}

Observation NotificationCenter::addObserver(std::string_view name, Callback callback)
{
    return m_observers[std::string(name)].add(std::move(callback));
}

} // namespace tessera
