// SPDX-License-Identifier: MIT
#pragma once

#include "Desktop/OpenPanel.h"

#include <QPointer>

#include <cstdint>

class QFileDialog;

namespace tessera {

class HiddenFilesPreference;

/// The desktop's own folder chooser where Qt knows it, or Qt's, with hidden folders as the user has
/// set them for the desktop's; where no desktop says they are shown. A folder whose name is not
/// UTF-8 cannot be chosen in it; it can be named on the command line.
///
/// The desktop's chooser may belong to another program, which can neither be brought to the front
/// nor be known to have shown anything: who asks once more gets Qt's in its place.
class FileDialogOpenPanel final : public OpenPanel {
public:
    /// `hiddenFiles` must outlive it; null where nobody says.
    explicit FileDialogOpenPanel(const HiddenFilesPreference* hiddenFiles = nullptr)
        : m_hiddenFiles(hiddenFiles)
    {
    }

    void begin(QWidget& window, Completion completion) override;

private:
    enum class Chooser : std::uint8_t { Desktops, Qts };

    void show(QWidget& window, const Completion& completion, Chooser chooser);
    bool isDesktops() const;

    const HiddenFilesPreference* m_hiddenFiles;
    QPointer<QFileDialog> m_dialog;
};

} // namespace tessera
