// SPDX-License-Identifier: MIT
#include "QuickLook/PanelPlace.h"

#include <QGuiApplication>
#include <QScreen>

#include <algorithm>
#include <utility>

namespace tessera {

namespace {

constexpr double kMostOfScreen = 0.7;

} // namespace

PanelPlace::PanelPlace(QWidget* mainWindow)
    : m_mainWindow(mainWindow)
{
}

QSize PanelPlace::mostSize() const
{
    return availableGeometry().size() * kMostOfScreen;
}

void PanelPlace::setSize(const QSize& size)
{
    if (m_movedTo) {
        m_centre = std::exchange(m_movedTo, std::nullopt);
    }
    const QRect available = availableGeometry();
    const QPoint middle
        = m_mainWindow != nullptr ? m_mainWindow->frameGeometry().center() : available.center();
    m_frame = QRect(QPoint(0, 0), size.boundedTo(available.size()));
    m_frame.moveCenter(m_centre.value_or(middle));
    m_frame.moveRight(std::min(m_frame.right(), available.right()));
    m_frame.moveBottom(std::min(m_frame.bottom(), available.bottom()));
    m_frame.moveLeft(std::max(m_frame.left(), available.left()));
    m_frame.moveTop(std::max(m_frame.top(), available.top()));
}

void PanelPlace::windowMoved(const QPoint& topLeft, const QPoint& middle)
{
    // The window system reports the steps of the way here late: only the last one tells whether
    // somebody has moved the panel.
    m_movedTo = topLeft == m_frame.topLeft() ? std::nullopt : std::optional(middle);
}

void PanelPlace::forgetMoves()
{
    m_centre.reset();
    m_movedTo.reset();
}

QRect PanelPlace::availableGeometry() const
{
    const QScreen* const screen
        = m_mainWindow != nullptr ? m_mainWindow->screen() : QGuiApplication::primaryScreen();
    return screen->availableGeometry();
}

} // namespace tessera
