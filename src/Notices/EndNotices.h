// SPDX-License-Identifier: MIT
#pragma once

#include "Desktop/Notifications.h"

#include <QObject>

#include <functional>

class QString;

namespace tessera {

/// Has the desktop tell the user that work has ended, if it took long and no window of the program
/// is in front. Once one is, what was told is taken away. Main thread only.
class EndNotices final : public QObject {
    Q_OBJECT

public:
    static constexpr double kLongSeconds = 10; ///< so much or more is long

    /// `notifications` must outlive it; `clock` tells seconds.
    EndNotices(Notifications& notifications, std::function<double()> clock);
    /// Leaves what is shown; who clicks on it then is not heard any more.
    ~EndNotices() override;

    /// Called when the user clicks on what was told.
    void setHandler(Notifications::Handler handler);

    /// The time by which workEnded() counts; to be asked for when work begins.
    double now() const { return m_clock(); }

    /// `title` is without names of files.
    void workEnded(double begun, const QString& title, const QString& text);

private:
    Notifications& m_notifications;
    std::function<double()> m_clock;
};

} // namespace tessera
