// SPDX-License-Identifier: MIT
#pragma once

#include "Desktop/OpenPanel.h"

#include <QPointer>

class QFileDialog;

namespace tessera {

/// The desktop's own folder chooser, or Qt's. Hidden folders are shown. A folder whose name is not
/// UTF-8 cannot be chosen in it; it can be named on the command line.
class FileDialogOpenPanel final : public OpenPanel {
public:
    void begin(QWidget& window, Completion completion) override;

private:
    QPointer<QFileDialog> m_dialog;
};

} // namespace tessera
