// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

#include <algorithm>
#include <iterator>
#include <string>
#include <vector>

class QDialog;

namespace tessera::test {

/// The dialog that the user sees in front of all others: the one that is modal, or any; null when
/// none is open.
QDialog* openDialog();

/// Of a widget's class; for a log.
std::string classOf(const QWidget& widget);

/// The widgets of that class in a window that can be used now.
template <typename Widget>
std::vector<Widget*> visible(const QWidget& in)
{
    const QList<Widget*> all = in.findChildren<Widget*>();
    std::vector<Widget*> result;
    std::ranges::copy_if(all, std::back_inserter(result), [](const Widget* widget) {
        return widget->isVisible() && widget->isEnabled();
    });
    return result;
}

} // namespace tessera::test
