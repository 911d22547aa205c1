// SPDX-License-Identifier: MIT
#include "MainWindow/WindowFrame.h"

#include "Model/UserDefaults.h"

#include <QGuiApplication>
#include <QMainWindow>
#include <QMargins>
#include <QScreen>

#include <algorithm>

namespace tessera {

namespace {

constexpr QSize kFirstSize{1080, 720};

/// Qt's own record of a window's frame, its screen and whether it is maximised, in base 64.
constexpr std::string_view kFrameKey = "MainWindowFrame";

/// As wide as any desktop's title bar and borders. How wide they are turns out only when the window
/// is on the screen, and then it must not jump.
constexpr QMargins kDecoration{4, 40, 4, 4};

const QScreen& screenOf(const QMainWindow& window)
{
    const QScreen* const around = QGuiApplication::screenAt(window.geometry().center());
    return around != nullptr ? *around : *window.screen();
}

void fitScreen(QMainWindow& window)
{
    const QRect available = screenOf(window).availableGeometry();
    const QRect whole = available.marginsRemoved(kDecoration);
    window.setMinimumSize(window.minimumSize().boundedTo(whole.size()));
    // The window system sees to these.
    if (window.isMaximized() || window.isFullScreen()) {
        return;
    }
    const QRect place = placeOnScreen(window.geometry(), available);
    if (window.testAttribute(Qt::WA_Moved)) {
        window.setGeometry(place);
    } else {
        window.resize(place.size());
    }
}

} // namespace

QRect placeOnScreen(const QRect& wanted, const QRect& available)
{
    const QRect whole = available.marginsRemoved(kDecoration);
    QRect place(wanted.topLeft(), wanted.size().boundedTo(whole.size()));
    place.moveRight(std::min(place.right(), whole.right()));
    place.moveBottom(std::min(place.bottom(), whole.bottom()));
    place.moveLeft(std::max(place.left(), whole.left()));
    place.moveTop(std::max(place.top(), whole.top()));
    return place;
}

void restoreFrame(QMainWindow& window, const UserDefaults& defaults)
{
    window.resize(kFirstSize);
    const std::string stored = defaults.string(kFrameKey);
    // Qt checks the record and leaves the window alone when it is broken or there is none.
    (void)window.restoreGeometry(QByteArray::fromBase64(QByteArray::fromStdString(stored)));
    fitScreen(window);
}

void saveFrame(const QMainWindow& window, UserDefaults& defaults)
{
    defaults.setString(kFrameKey, window.saveGeometry().toBase64().toStdString());
    // Without it the window opens where it stood the time before; not worth a word at the end.
    (void)defaults.synchronize();
}

} // namespace tessera
