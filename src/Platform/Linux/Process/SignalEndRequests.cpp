// SPDX-License-Identifier: MIT
#include "Platform/Linux/Process/SignalEndRequests.h"

#include <QSocketNotifier>

#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstdint>
#include <ctime>
#include <utility>

namespace tessera {

namespace {

constexpr std::array kSignals{SIGTERM, SIGINT, SIGHUP};
constexpr int kNone = -1;

// What the signal handler needs, which no argument can bring it.
std::atomic<int> sender{kNone};
constexpr std::int64_t kNotYet = -1;
std::atomic<std::int64_t> firstArrival{kNotYet};
static_assert(
    std::atomic<int>::is_always_lock_free && std::atomic<std::int64_t>::is_always_lock_free);

constexpr std::int64_t kSecond = 1'000'000'000; // in nanoseconds
/// A terminal that closes may say so twice, through the shell and by itself.
constexpr std::int64_t kTimeOfOneRequest = kSecond;

std::int64_t nanosecondsNow()
{
    timespec now{};
    ::clock_gettime(CLOCK_MONOTONIC, &now);
    return now.tv_sec * kSecond + now.tv_nsec;
}

extern "C" void passOn(int signal)
{
    const int error = errno;
    std::int64_t first = kNotYet;
    const std::int64_t now = nanosecondsNow();
    if (!firstArrival.compare_exchange_strong(first, now) && now - first >= kTimeOfOneRequest) {
        // The program has not got to the first.
        (void)std::signal(signal, SIG_DFL);
        (void)::raise(signal);
    }
    const char byte = 0;
    // A pipe that is full has been told already.
    [[maybe_unused]] const ssize_t written = ::write(sender.load(), &byte, sizeof(byte));
    errno = error;
}

void hear(int signal)
{
    struct sigaction former { };
    ::sigaction(signal, nullptr, &former);
    if (former.sa_handler == SIG_IGN) {
        return;
    }
    struct sigaction action { };
    action.sa_handler = passOn;
    action.sa_flags = SA_RESTART;
    ::sigaction(signal, &action, nullptr);
}

} // namespace

SignalEndRequests::SignalEndRequests() = default;

SignalEndRequests::~SignalEndRequests()
{
    if (!m_sender.isOpen()) {
        return;
    }
    for (const int signal : kSignals) {
        struct sigaction current { };
        ::sigaction(signal, nullptr, &current);
        if (current.sa_handler == passOn) {
            (void)std::signal(signal, SIG_DFL);
        }
    }
    sender = kNone;
    firstArrival = kNotYet;
}

void SignalEndRequests::setHandler(std::function<void()> handler)
{
    m_handler = std::move(handler);
    std::array<int, 2> ends{};
    if (m_sender.isOpen() || ::pipe2(ends.data(), O_CLOEXEC | O_NONBLOCK) != 0) {
        return;
    }
    m_arrivals = FileDescriptor(ends[0]);
    m_sender = FileDescriptor(ends[1]);
    sender = ends[1];
    m_notifier = std::make_unique<QSocketNotifier>(m_arrivals.number(), QSocketNotifier::Read);
    QObject::connect(
        m_notifier.get(), &QSocketNotifier::activated, m_notifier.get(), [this] { handOver(); });
    for (const int signal : kSignals) {
        hear(signal);
    }
}

void SignalEndRequests::handOver()
{
    std::array<char, kSignals.size()> bytes{};
    if (::read(m_arrivals.number(), bytes.data(), bytes.size()) > 0 && m_handler) {
        m_handler();
    }
}

} // namespace tessera
