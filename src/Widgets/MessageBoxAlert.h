// SPDX-License-Identifier: MIT
#pragma once

#include "Desktop/Alert.h"

#include <QPointer>
#include <QWidget>

#include <memory>

class QMessageBox;

namespace tessera {

/// Alerts as message boxes over the application's active window, or over its main window while the
/// user works in another application.
class MessageBoxAlert final : public Alert {
public:
    /// Not owned; null for none.
    void setMainWindow(QWidget* window) { m_mainWindow = window; }

    [[nodiscard]] int runModal(const AlertText& text) override;
    void beginSheet(const AlertText& text) override;

private:
    std::unique_ptr<QMessageBox> makeBox(const AlertText& text) const;

    QPointer<QWidget> m_mainWindow;
};

} // namespace tessera
