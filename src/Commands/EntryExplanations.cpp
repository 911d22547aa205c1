// SPDX-License-Identifier: MIT
#include "Commands/EntryExplanations.h"

#include <QAccessible>
#include <QAction>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QPointer>
#include <QStatusTipEvent>
#include <QToolTip>

namespace tessera {

namespace {

/// Of one menu, which owns it.
class EntryExplanations final : public QObject {
public:
    EntryExplanations(QMenu& menu, QWidget& window)
        : QObject(&menu)
        , m_menu(menu)
        , m_window(&window)
    {
        // By the pointer.
        menu.setToolTipsVisible(true);
        menu.installEventFilter(this);
        connect(&menu, &QMenu::hovered, this, &EntryExplanations::explain);
        connect(&menu, &QMenu::aboutToHide, this, &EntryExplanations::end);
    }

private:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::MouseMove) {
            pointAt(m_menu.actionAt(static_cast<QMouseEvent*>(event)->position().toPoint()));
        }
        return event->type() == QEvent::KeyPress ? keyPressed(static_cast<QKeyEvent*>(event)->key())
                                                 : QObject::eventFilter(watched, event);
    }

    /// True when the menu is to know nothing of it.
    bool keyPressed(int key)
    {
        switch (key) {
        case Qt::Key_Up:
        case Qt::Key_Down:
            moveBy(key == Qt::Key_Down ? 1 : -1);
            return true;
        case Qt::Key_Return:
        case Qt::Key_Enter:
        case Qt::Key_Space:
            // The menu would go to its first entry.
            return m_disabled != nullptr;
        default:
            return false;
        }
    }

    /// Menus pass over disabled entries, and take none for their active one.
    void moveBy(qsizetype step)
    {
        const QList<QAction*> entries = m_menu.actions();
        const qsizetype count = entries.size();
        const qsizetype here
            = entries.indexOf(m_disabled != nullptr ? m_disabled.data() : m_menu.activeAction());
        qsizetype next = here < 0 && step < 0 ? count : here;
        for (qsizetype tried = 0; tried < count; ++tried) {
            next = (next + step + count) % count;
            if (entries.at(next)->isVisible() && !entries.at(next)->isSeparator()) {
                choose(entries.at(next), static_cast<int>(next));
                return;
            }
        }
    }

    void choose(QAction* entry, int place)
    {
        m_menu.setActiveAction(entry);
        if (entry->isEnabled()) {
            return;
        }
        m_disabled = entry;
        tellStatus(entry->statusTip());
        const QRect frame = m_menu.actionGeometry(entry);
        QToolTip::showText(m_menu.mapToGlobal(frame.topRight()), entry->toolTip(), &m_menu, frame);
        // As menus tell screen readers of enabled ones. Entries have no descriptions of their own.
        m_menu.setAccessibleDescription(entry->statusTip());
        QAccessibleEvent focus(&m_menu, QAccessible::Focus);
        focus.setChild(place);
        QAccessible::updateAccessibility(&focus);
    }

    /// Menus do not tell of disabled entries by themselves.
    void pointAt(const QAction* entry)
    {
        if (entry != nullptr && !entry->isEnabled() && !entry->isSeparator()) {
            tellStatus(entry->statusTip());
        }
    }

    /// An enabled entry has become the active one.
    void explain(const QAction* entry)
    {
        forgetDisabled();
        tellStatus(entry->statusTip());
    }

    void end()
    {
        forgetDisabled();
        tellStatus({});
    }

    void forgetDisabled()
    {
        if (m_disabled != nullptr) {
            m_disabled.clear();
            m_menu.setAccessibleDescription({});
            QToolTip::hideText();
        }
    }

    void tellStatus(const QString& text)
    {
        if (m_window != nullptr) {
            QStatusTipEvent tip(text);
            QCoreApplication::sendEvent(m_window, &tip);
        }
    }

    QMenu& m_menu;
    QPointer<QWidget> m_window;
    QPointer<QAction> m_disabled; ///< to which the arrow keys have come
};

} // namespace

void explainEntries(QMenu& menu, QWidget& window)
{
    // NOLINTNEXTLINE(cppcoreguidelines-owning-memory): the menu owns it
    new EntryExplanations(menu, window);
}

} // namespace tessera
