// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

#include <chrono>
#include <condition_variable>
#include <ctime>
#include <mutex>
#include <optional>
#include <string>
#include <thread>
#include <vector>

namespace tessera::bench {

/// Asks the main thread for a sign of life again and again, as a user does who moves the pointer,
/// and keeps for how long it gave none. To be made and used on the main thread.
class EventLoopWatch final : public QObject {
public:
    using Clock = std::chrono::steady_clock;

    /// The event loop was out of reach for so long.
    struct Hold {
        double milliseconds = 0;
        double ownMilliseconds = 0; ///< the main thread's own processor time of it
        std::string activity;
    };

    EventLoopWatch();
    ~EventLoopWatch() override;

    /// What the main thread does from now on; in what it did before, the loop was reached last.
    void setActivity(std::string activity);

    /// Asks no more, and gives all holds in their order.
    std::vector<Hold> finish();

protected:
    void customEvent(QEvent* event) override;

private:
    struct Moment {
        Clock::time_point wall;
        double own = 0;
    };

    Moment now() const;
    void askOnAndOn();
    void note();

    clockid_t m_mainThreadClock{};
    std::string m_activity;
    std::vector<Hold> m_holds;
    std::mutex m_mutex; ///< guards what follows
    std::condition_variable m_changed;
    std::optional<Moment> m_asked; ///< when the sign that is outstanding was asked for
    bool m_isFinished = false;
    std::thread m_asker; ///< last, since it uses all else
};

} // namespace tessera::bench
