// SPDX-License-Identifier: MIT
#pragma once

#include "Widgets/FrameClock.h"

#include <QSignalSpy>
#include <QTest>

namespace tessera::test {

/// Until every animation that is under way has had a frame: another clock, which is started last,
/// has its second only after all others had one.
[[nodiscard]] inline bool waitForFrames()
{
    FrameClock last;
    const QSignalSpy frames(&last, &FrameClock::frameDue);
    last.start();
    return QTest::qWaitFor([&frames] { return frames.count() >= 2; });
}

} // namespace tessera::test
