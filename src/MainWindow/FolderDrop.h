// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Url.h"
#include "DeadMounts/WithTimeLimit.h"

#include <QObject>

class QDropEvent;
class QWidget;

namespace tessera {

class ResourceValues;

/// Lets a folder be dropped on a window, from a file manager for instance. Anything else, and more
/// than one item at a time, is refused while it still hangs at the pointer. Main thread only.
class FolderDrop final : public QObject {
    Q_OBJECT

public:
    /// Both must outlive this object. A folder that does not answer is refused.
    FolderDrop(QWidget& window, WithTimeLimit<ResourceValues> resourceValues);

    bool eventFilter(QObject* watched, QEvent* event) override;

signals:
    void dropped(const Url& folder);

private:
    void enter(QDropEvent& event);

    WithTimeLimit<ResourceValues> m_resourceValues;
    Url m_folder; ///< what hangs at the pointer; empty when that is no folder
};

} // namespace tessera
