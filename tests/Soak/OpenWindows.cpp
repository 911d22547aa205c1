// SPDX-License-Identifier: MIT
#include "OpenWindows.h"

#include <QApplication>
#include <QDialog>

#include <algorithm>

namespace tessera::test {

QDialog* openDialog()
{
    if (auto* const modal = qobject_cast<QDialog*>(QApplication::activeModalWidget())) {
        return modal;
    }
    const QWidgetList windows = QApplication::topLevelWidgets();
    const auto found = std::ranges::find_if(windows, [](const QWidget* window) {
        return window->isVisible() && qobject_cast<const QDialog*>(window) != nullptr;
    });
    return found == windows.end() ? nullptr : qobject_cast<QDialog*>(*found);
}

std::string classOf(const QWidget& widget)
{
    return widget.metaObject()->className();
}

} // namespace tessera::test
