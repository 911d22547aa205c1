// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Url.h"

#include <QObject>

class QWidget;

namespace tessera {

/// The panel that shows how far a scan is. When it is destroyed before the end, its scan is
/// cancelled without a word.
class ScanScreen : public QObject {
    Q_OBJECT

public:
    virtual QWidget& view() const = 0;
    virtual void startScanning(const Url& url) = 0;

signals:
    /// The model has the tree. Who hears this or the other may destroy the screen.
    void scanComplete();
    /// The scan has ended without a tree.
    void scanCancelled();
};

} // namespace tessera
