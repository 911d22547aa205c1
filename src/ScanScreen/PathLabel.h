// SPDX-License-Identifier: MIT
#pragma once

#include <QFrame>
#include <QString>

namespace tessera {

/// One line of text that loses its middle when it is too long, whatever width the label has. It
/// may change ten times a second without moving anything around it.
class PathLabel final : public QFrame {
    Q_OBJECT
    Q_PROPERTY(QString text READ text WRITE setText)

public:
    using QFrame::QFrame;

    /// The whole text.
    const QString& text() const { return m_text; }
    void setText(const QString& text);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString m_text;
};

} // namespace tessera
