// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Url.h"

#include <QObject>

class QWidget;

namespace tessera {

/// The screen where the user chooses what to scan.
class HomeScreen : public QObject {
    Q_OBJECT

public:
    virtual QWidget& view() const = 0;
    virtual void setEnabled(bool enabled) = 0;
    /// Looks for what there is to scan once more. What is selected stays selected.
    virtual void reload() = 0;
    /// Gives the keyboard to what the user is most likely to need it for.
    virtual void takeFocus() = 0;

signals:
    /// A folder is to be chosen.
    void openFolder();
    /// The user has chosen what to scan.
    void scanUrl(const Url& url);
};

} // namespace tessera
