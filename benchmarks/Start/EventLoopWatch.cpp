// SPDX-License-Identifier: MIT
#include "Start/EventLoopWatch.h"

#include <QCoreApplication>
#include <QEvent>

#include <pthread.h>

#include <utility>

namespace tessera::bench {

namespace {

/// Between two questions; that much of a hold may go unnoticed.
constexpr std::chrono::milliseconds kPause{1};

constexpr double kMillisecondsPerSecond = 1e3;
constexpr double kNanosecondsPerMillisecond = 1e6;

} // namespace

EventLoopWatch::EventLoopWatch()
{
    ::pthread_getcpuclockid(::pthread_self(), &m_mainThreadClock);
    m_asker = std::thread([this] { askOnAndOn(); });
}

EventLoopWatch::~EventLoopWatch()
{
    (void)finish();
}

void EventLoopWatch::setActivity(std::string activity)
{
    m_activity = std::move(activity);
}

std::vector<EventLoopWatch::Hold> EventLoopWatch::finish()
{
    if (m_asker.joinable()) {
        {
            const std::lock_guard lock(m_mutex);
            m_isFinished = true;
            note();
            m_changed.notify_all();
        }
        m_asker.join();
    }
    return m_holds;
}

void EventLoopWatch::customEvent(QEvent* /*event*/)
{
    const std::lock_guard lock(m_mutex);
    note();
    m_changed.notify_all();
}

EventLoopWatch::Moment EventLoopWatch::now() const
{
    timespec own{};
    ::clock_gettime(m_mainThreadClock, &own);
    return {
        Clock::now(),
        static_cast<double>(own.tv_sec) * kMillisecondsPerSecond
            + static_cast<double>(own.tv_nsec) / kNanosecondsPerMillisecond};
}

void EventLoopWatch::askOnAndOn()
{
    std::unique_lock lock(m_mutex);
    while (!m_isFinished) {
        m_asked = now();
        // NOLINTNEXTLINE(cppcoreguidelines-owning-memory): the queue owns it
        QCoreApplication::postEvent(this, new QEvent(QEvent::User));
        m_changed.wait(lock, [this] { return m_isFinished || !m_asked; });
        m_changed.wait_for(lock, kPause, [this] { return m_isFinished; });
    }
}

/// With the mutex held.
void EventLoopWatch::note()
{
    if (const auto asked = std::exchange(m_asked, {})) {
        const Moment answered = now();
        const std::chrono::duration<double, std::milli> held = answered.wall - asked->wall;
        m_holds.push_back({held.count(), answered.own - asked->own, m_activity});
    }
}

} // namespace tessera::bench
