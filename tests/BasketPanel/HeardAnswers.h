// SPDX-License-Identifier: MIT
#pragma once

#include "support/Fakes/FakeMainThread.h"

#include <QTest>

namespace tessera::test {

/// A main thread on which answers from the disk come in while Qt's events run.
class HeardAnswers {
public:
    MainThread& mainThread() { return m_mainThread; }

    /// Whether an answer comes that was not heard before, which is heard then.
    bool hearNext() { return awaitNext() && hear(); }

    /// Whether one is on its way.
    bool awaitNext()
    {
        return QTest::qWaitFor([this] { return m_mainThread.waits().size() > m_done; });
    }

    bool hear()
    {
        bool isDone = false;
        m_mainThread.perform([&isDone] { isDone = true; });
        m_mainThread.runUntil([&isDone] { return isDone; });
        m_done = m_mainThread.waits().size();
        return true;
    }

    /// Whether nobody has asked yet, or all was heard.
    bool isQuiet() { return m_mainThread.waits().size() == m_done; }

private:
    FakeMainThread m_mainThread;
    std::size_t m_done = 0;
};

} // namespace tessera::test
