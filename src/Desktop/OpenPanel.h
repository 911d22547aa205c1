// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Url.h"

#include <functional>
#include <vector>

class QWidget;

namespace tessera {

/// Lets the user choose a folder. Main thread only.
class OpenPanel {
public:
    /// What was chosen; nothing when the panel was closed without.
    using Completion = std::function<void(const std::vector<Url>&)>;

    OpenPanel() = default;
    OpenPanel(const OpenPanel&) = delete;
    OpenPanel& operator=(const OpenPanel&) = delete;
    virtual ~OpenPanel() = default;

    /// Shows the panel over the window and returns at once; the window stays usable. While a panel
    /// is open, that one comes to the front instead. The completion handler is called later, unless
    /// the window goes away before.
    virtual void begin(QWidget& window, Completion completion) = 0;
};

} // namespace tessera
