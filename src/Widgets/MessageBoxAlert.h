// SPDX-License-Identifier: MIT
#pragma once

#include "Desktop/Alert.h"

#include <QPointer>
#include <QWidget>

#include <memory>

class QMessageBox;

namespace tessera {

/// Alerts as message boxes over the application's active window, or over its main window while the
/// user works in another application or in a dialog that leaves the other windows alone. A question
/// whose window goes away is answered by its last button.
class MessageBoxAlert final : public Alert {
public:
    /// Not owned; null for none.
    void setMainWindow(QWidget* window) { m_mainWindow = window; }

    [[nodiscard]] int runModal(const AlertText& text) override;
    void beginSheet(const AlertText& text) override;

private:
    QWidget* owner() const;
    std::unique_ptr<QMessageBox> makeBox(const AlertText& text) const;

    QPointer<QWidget> m_mainWindow;
};

} // namespace tessera
