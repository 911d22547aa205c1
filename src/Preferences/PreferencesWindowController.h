// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Observation.h"

#include <QObject>

#include <memory>
#include <string_view>

class QCheckBox;
class QDialog;
class QWidget;

namespace Ui {
class PreferencesWindow;
}

namespace tessera {

class UserDefaults;

/// The window of the program's settings. Its controls show what the settings are, also when those
/// change elsewhere, and a change is stored at once. Main thread only.
class PreferencesWindowController final : public QObject {
    Q_OBJECT

public:
    /// `defaults` must outlive the controller. The window is hidden at first.
    explicit PreferencesWindowController(UserDefaults& defaults);
    ~PreferencesWindowController() override;

    /// Shows the window in the middle of `above`, or brings it to the front.
    void showWindow(const QWidget* above = nullptr);
    QDialog& window() const { return *m_window; }

private:
    void bindBox(QCheckBox& box, std::string_view key);
    void bindTooltipType();
    void refresh(std::string_view key);

    UserDefaults& m_defaults;
    std::unique_ptr<QDialog> m_window;
    std::unique_ptr<Ui::PreferencesWindow> m_ui;
    Observation m_changes;
};

} // namespace tessera
