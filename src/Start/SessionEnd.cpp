// SPDX-License-Identifier: MIT
#include "Start/SessionEnd.h"

#include "MainWindow/MainWindowController.h"
#include "Start/AppDelegate.h"

#include <QCoreApplication>
#include <QEvent>
#include <QGuiApplication>
#include <QSessionManager>

namespace tessera {

namespace {

class QtSessionQuestion final : public SessionQuestion {
public:
    explicit QtSessionQuestion(QSessionManager& manager)
        : m_manager(manager)
    {
    }

    /// The command too: Qt's own has options that the program does not know.
    void doNotRestart() override
    {
        m_manager.setRestartHint(QSessionManager::RestartNever);
        m_manager.setRestartCommand({QCoreApplication::applicationFilePath()});
    }
    bool mayAskUser() override { return m_manager.allowsInteraction(); }
    void doneAsking() override { m_manager.release(); }
    void keepSession() override { m_manager.cancel(); }

private:
    QSessionManager& m_manager;
};

} // namespace

SessionEnd::SessionEnd(AppDelegate& delegate)
    : m_delegate(delegate)
{
    connect(qApp, &QGuiApplication::saveStateRequest, this, [](QSessionManager& manager) {
        QtSessionQuestion question(manager);
        save(question);
    });
    connect(qApp, &QGuiApplication::commitDataRequest, this, [this](QSessionManager& manager) {
        QtSessionQuestion question(manager);
        commit(question);
    });
    qApp->installEventFilter(this);
}

void SessionEnd::save(SessionQuestion& question)
{
    question.doNotRestart();
}

void SessionEnd::commit(SessionQuestion& question) const
{
    save(question);
    m_delegate.mainWindow()->keepPlace();
    if (!m_delegate.isCompressing() || !question.mayAskUser()) {
        return;
    }
    const bool mayEnd = m_delegate.mayEndSession();
    question.doneAsking();
    if (!mayEnd) {
        question.keepSession();
    }
}

/// The session manager's last word comes as this event. Qt would close one window after the other,
/// and the main window would ask.
bool SessionEnd::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == qApp && event->type() == QEvent::Quit) {
        QCoreApplication::exit();
        return true;
    }
    return QObject::eventFilter(watched, event);
}

} // namespace tessera
