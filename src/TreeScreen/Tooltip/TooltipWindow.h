// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

#include <memory>

namespace Ui {
class TooltipWindow;
}

namespace tessera {

/// The floating panel of the tooltip: above all windows, never active, never in the pointer's
/// way. Wears the desktop's tooltip colours, which its content inherits as WindowText and, for
/// what matters less, PlaceholderText.
class TooltipWindow final : public QWidget {
    Q_OBJECT

public:
    explicit TooltipWindow(QWidget* parent = nullptr);
    ~TooltipWindow() override;

    /// What stands in the window, for who fills it.
    const Ui::TooltipWindow& ui() const { return *m_ui; }

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void adoptTooltipColours();

    std::unique_ptr<Ui::TooltipWindow> m_ui;
};

} // namespace tessera
