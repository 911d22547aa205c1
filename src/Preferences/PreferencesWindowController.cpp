// SPDX-License-Identifier: MIT
#include "Preferences/PreferencesWindowController.h"

#include "Model/TooltipType.h"
#include "Model/UserDefaults.h"
#include "ui_PreferencesWindow.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialog>

namespace tessera {

PreferencesWindowController::PreferencesWindowController(UserDefaults& defaults)
    : m_defaults(defaults)
    , m_window(std::make_unique<QDialog>())
    , m_ui(std::make_unique<Ui::PreferencesWindow>())
{
    m_ui->setupUi(m_window.get());
    bindBox(*m_ui->warnHiddenDelete, kWarnDeleteHiddenKey);
    bindBox(*m_ui->warnSystemDelete, kWarnDeleteSystemKey);
    bindBox(*m_ui->folderSizes, kFolderSizesKey);
    bindTooltipType();
    m_changes = defaults.addChangeObserver([this](std::string_view key) { refresh(key); });
}

PreferencesWindowController::~PreferencesWindowController() = default;

void PreferencesWindowController::showWindow(const QWidget* above)
{
    m_window->adjustSize();
    if (above != nullptr && !m_window->isVisible()) {
        m_window->move(above->frameGeometry().center() - m_window->rect().center());
    }
    m_window->show();
    m_window->raise();
    m_window->activateWindow();
}

void PreferencesWindowController::bindBox(QCheckBox& box, std::string_view key)
{
    refresh(key);
    connect(&box, &QCheckBox::toggled, this, [this, key](bool isOn) {
        m_defaults.setBoolean(key, isOn);
    });
}

void PreferencesWindowController::bindTooltipType()
{
    int row = 0;
    for (const TooltipType type : {TooltipType::None, TooltipType::Short, TooltipType::Full}) {
        m_ui->tooltipButton->setItemData(row++, static_cast<int>(type));
    }
    refresh(kTooltipTypeKey);
    connect(m_ui->tooltipButton, &QComboBox::currentIndexChanged, this, [this](int index) {
        // There is no entry for a value that another version may have stored; that one stays.
        if (index >= 0) {
            const int type = m_ui->tooltipButton->itemData(index).toInt();
            setTooltipType(m_defaults, static_cast<TooltipType>(type));
        }
    });
}

void PreferencesWindowController::refresh(std::string_view key)
{
    if (key == kWarnDeleteHiddenKey) {
        m_ui->warnHiddenDelete->setChecked(m_defaults.boolean(key));
    } else if (key == kWarnDeleteSystemKey) {
        m_ui->warnSystemDelete->setChecked(m_defaults.boolean(key));
    } else if (key == kFolderSizesKey) {
        m_ui->folderSizes->setChecked(m_defaults.boolean(key));
    } else if (key == kTooltipTypeKey) {
        m_ui->tooltipButton->setCurrentIndex(
            m_ui->tooltipButton->findData(m_defaults.integer(key)));
    }
}

} // namespace tessera
