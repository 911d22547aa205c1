// SPDX-License-Identifier: MIT
#pragma once

#include <QToolButton>

namespace tessera {

/// A tool button whose click opens its menu, with the arrow that says so beside its icon; styles
/// draw it over the icon's corner.
class MenuToolButton final : public QToolButton {
    Q_OBJECT

public:
    explicit MenuToolButton(QWidget* parent = nullptr);

    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace tessera
