// SPDX-License-Identifier: MIT
#pragma once

#include <QTest>
#include <QWidget>

namespace tessera::test {

/// Whether the shown window becomes the active one. Asks anew while it waits: the news that
/// another window has just closed or opened may still be on its way and take the place again.
inline bool becomesActive(QWidget& window)
{
    return QTest::qWaitFor([&window] {
        if (!window.isActiveWindow()) {
            window.activateWindow();
        }
        return window.isActiveWindow();
    });
}

} // namespace tessera::test
