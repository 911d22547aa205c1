// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>
#include <QTimer>

namespace tessera {

/// A line over the lower edge of the picture, that says why a key did nothing. It goes away after
/// a while. Screen readers take it for an alert and read it out. Main thread only.
class TreeNote final : public QLabel {
    Q_OBJECT

public:
    static constexpr int kMilliseconds = 6000;

    /// Out of sight until there is something to say. The pointer does not notice it. It stands
    /// above the `other` note where that is at the lower edge.
    explicit TreeNote(QWidget* picture, const QWidget* other = nullptr);

    /// Shows the text in the place of what was said before.
    void say(const QString& text);

private:
    void place();

    const QWidget* m_other;
    QTimer m_end{this};
};

} // namespace tessera
