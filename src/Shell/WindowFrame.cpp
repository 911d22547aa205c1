// SPDX-License-Identifier: MIT
#include "Shell/WindowFrame.h"

#include "Model/UserDefaults.h"

#include <QMainWindow>

namespace tessera {

namespace {

constexpr QSize kFirstSize{1080, 720};

/// Qt's own record of a window's frame, its screen and whether it is maximised, in base 64.
constexpr std::string_view kFrameKey = "MainWindowFrame";

} // namespace

void restoreFrame(QMainWindow& window, const UserDefaults& defaults)
{
    window.resize(kFirstSize);
    const std::string stored = defaults.string(kFrameKey);
    // Qt checks the record and leaves the window alone when it is broken or there is none.
    (void)window.restoreGeometry(QByteArray::fromBase64(QByteArray::fromStdString(stored)));
}

void saveFrame(const QMainWindow& window, UserDefaults& defaults)
{
    defaults.setString(kFrameKey, window.saveGeometry().toBase64().toStdString());
    // Without it the window opens where it stood the time before; not worth a word at the end.
    (void)defaults.synchronize();
}

} // namespace tessera
