// SPDX-License-Identifier: MIT
#include "Notices/EndNotices.h"

#include <QApplication>
#include <QString>
#include <QWindow>

#include <utility>

namespace tessera {

EndNotices::EndNotices(Notifications& notifications, std::function<double()> clock)
    : m_notifications(notifications)
    , m_clock(std::move(clock))
{
    connect(qApp, &QGuiApplication::focusWindowChanged, this, [this](const QWindow* inFront) {
        if (inFront != nullptr) {
            m_notifications.withdraw();
        }
    });
}

EndNotices::~EndNotices()
{
    m_notifications.setHandler({});
}

void EndNotices::setHandler(Notifications::Handler handler)
{
    m_notifications.setHandler(std::move(handler));
}

void EndNotices::workEnded(double begun, const QString& title, const QString& text)
{
    const bool isInFront = QGuiApplication::focusWindow() != nullptr;
    if (!isInFront && now() - begun >= kLongSeconds) {
        m_notifications.show({title.toStdString(), text.toStdString()});
    }
}

} // namespace tessera
