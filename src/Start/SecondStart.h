// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

namespace tessera {

class AppDelegate;
class RunningInstance;
class Url;

// What happens when the program is started a second time: the second process hands its folder over
// to the first and ends, and the first opens it in its window.

/// The second start's part; the folder may be empty. False when there is no other process, or none
/// that answers.
[[nodiscard]] bool handOverToFirstStart(RunningInstance& instance, const Url& folder);

/// The first start's part, from its beginning to its end. Main thread only.
class SecondStarts final {
public:
    /// Needs an application object. Gives the name up at the end of the event loop before anybody
    /// who asks for that end later does anything: what those do may take seconds.
    explicit SecondStarts(RunningInstance& instance);
    SecondStarts(const SecondStarts&) = delete;
    SecondStarts& operator=(const SecondStarts&) = delete;
    ~SecondStarts();

    /// Opens there what is handed over, also what was before this call. The delegate must outlive
    /// this object.
    void openIn(AppDelegate& delegate);

private:
    RunningInstance& m_instance;
    QObject m_end; ///< hears of it
};

} // namespace tessera
