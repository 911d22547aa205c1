// SPDX-License-Identifier: MIT
#pragma once

#include "Utils/Alert.h"

namespace tessera {

/// Alerts as message boxes over the application's active window.
class MessageBoxAlert final : public Alert {
public:
    [[nodiscard]] int runModal(const AlertText& text) override;
    void beginSheet(const AlertText& text) override;
};

} // namespace tessera
