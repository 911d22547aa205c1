// SPDX-License-Identifier: MIT
#pragma once

#include "Desktop/Notifications.h"

#include <utility>
#include <vector>

namespace tessera::test {

/// A desktop that shows everything, and on whose notifications the test clicks.
class FakeNotifications final : public Notifications {
public:
    void setHandler(Handler handler) override { clicked = std::move(handler); }
    void show(const Notification& notification) override { shown.push_back(notification); }
    void withdraw() override { ++withdrawals; }

    std::vector<Notification> shown;
    int withdrawals = 0;
    Handler clicked;
};

} // namespace tessera::test
