// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

namespace tessera {

/// What an alert says, as plain text.
struct AlertText {
    QString messageText; ///< the headline
    QString informativeText;
    QStringList buttons; ///< from the one that does what was asked to the one that does nothing
    QString reason = {}; ///< what the system had to say, shown below the rest; may be empty
    int defaultButton = 0; ///< of `buttons`, the one that Return presses
};

/// Tells the user something that must be answered. Main thread only.
class Alert {
public:
    /// The answer of the first button; each further one's is one more.
    static constexpr int kFirstButton = 1000;

    Alert() = default;
    Alert(const Alert&) = delete;
    Alert& operator=(const Alert&) = delete;
    virtual ~Alert() = default;

    /// Asks, and waits for the answer. Closing the alert answers as its last button does.
    [[nodiscard]] virtual int runModal(const AlertText& text) = 0;

    /// Shows a warning over the active window and returns at once.
    virtual void beginSheet(const AlertText& text) = 0;
};

} // namespace tessera
