// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

class QLabel;
class QPushButton;

namespace tessera {

/// Says, on the first start, what the program does and what to do next, beside the button that it
/// speaks of. Its owner takes it away. Main thread only.
class GreetingView final : public QWidget {
    Q_OBJECT

public:
    explicit GreetingView(QWidget* parent = nullptr);

    QPushButton& button() const { return *m_button; }

signals:
    /// The user has it before their eyes.
    void seen();
    /// The user has read it.
    void dismissed();

protected:
    void showEvent(QShowEvent* event) override;

private:
    QLabel* m_sentence;
    QLabel* m_nextStep;
    QPushButton* m_button;
};

} // namespace tessera
