// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

namespace tessera {

class AppDelegate;

/// What a session manager lets a program say while its session is saved or ends.
class SessionQuestion {
public:
    SessionQuestion() = default;
    SessionQuestion(const SessionQuestion&) = delete;
    SessionQuestion& operator=(const SessionQuestion&) = delete;
    virtual ~SessionQuestion() = default;

    /// The next session begins without the program.
    virtual void doNotRestart() = 0;
    /// Waits until the program may ask the user; false when it may not.
    [[nodiscard]] virtual bool mayAskUser() = 0;
    virtual void doneAsking() = 0;
    /// The session is to go on.
    virtual void keepSession() = 0;
};

/// Has the program take part in the end of the user's session: its window's place is kept, the user
/// is asked while archives are being made, and the next session begins without it. What tells the
/// program to quit waits for no answer any more, and is obeyed without a question. Main thread
/// only.
class SessionEnd final : public QObject {
    Q_OBJECT

public:
    /// Listens to the application object from now on. `delegate` must outlive it, and be started.
    explicit SessionEnd(AppDelegate& delegate);

    /// The session is being saved and goes on, as it is when a program has just joined it: its
    /// window may not have its place yet.
    static void save(SessionQuestion& question);
    /// The session is about to end.
    void commit(SessionQuestion& question) const;

private:
    bool eventFilter(QObject* watched, QEvent* event) override;

    AppDelegate& m_delegate;
};

} // namespace tessera
