// SPDX-License-Identifier: MIT
#include "UserInput.h"

#include <QApplication>
#include <QPointer>
#include <QTest>
#include <QWidget>
#include <QWindow>

namespace tessera::test {

namespace {

constexpr int kBetweenClicks = 2000; // too long for a double click
constexpr int kWithinDoubleClick = 50;

/// As the window system does: from the event loop, one event at a time, to what may be gone by
/// then. A press that opens a menu waits in there for what comes after it.
template <typename Target, typename Deliver>
void queue(Target* target, Deliver deliver)
{
    const auto deliverIfThere = [target = QPointer<Target>(target), deliver] {
        if (target != nullptr) {
            deliver(target.data());
        }
    };
    QMetaObject::invokeMethod(qApp, deliverIfThere, Qt::QueuedConnection);
}

void post(
    const QWidget& widget,
    QPoint position,
    Qt::MouseButtons held,
    Qt::MouseButton button,
    QEvent::Type type,
    int time)
{
    const QWidget* const top = widget.window();
    const QPoint inWindow = widget.mapTo(top, position);
    const QPoint onScreen = widget.mapToGlobal(position);
    queue(top->windowHandle(), [=](QWindow* window) {
        qt_handleMouseEvent(window, inWindow, onScreen, held, button, type, Qt::NoModifier, time);
    });
}

/// Window managers give the keyboard to the window that is clicked, unless a modal dialog keeps it.
void activate(QWindow* window)
{
    const QWindow* const modal = QGuiApplication::modalWindow();
    const bool isFree = modal == nullptr || modal == window;
    if (isFree && window->type() != Qt::Popup && QApplication::activePopupWidget() == nullptr) {
        window->requestActivate();
    }
}

} // namespace

void UserInput::move(const QWidget& widget, QPoint position)
{
    post(widget, position, Qt::NoButton, Qt::NoButton, QEvent::MouseMove, ++m_time);
}

void UserInput::press(const QWidget& widget, QPoint position, Qt::MouseButton button)
{
    post(widget, position, button, button, QEvent::MouseButtonPress, ++m_time);
}

void UserInput::release(const QWidget& widget, QPoint position, Qt::MouseButton button)
{
    post(widget, position, Qt::NoButton, button, QEvent::MouseButtonRelease, ++m_time);
}

void UserInput::click(const QWidget& widget, QPoint position, Qt::MouseButton button)
{
    m_time += kBetweenClicks;
    queue(widget.window()->windowHandle(), activate);
    move(widget, position);
    press(widget, position, button);
    release(widget, position, button);
}

void UserInput::doubleClick(const QWidget& widget, QPoint position)
{
    click(widget, position);
    m_time += kWithinDoubleClick;
    press(widget, position, Qt::LeftButton);
    release(widget, position, Qt::LeftButton);
}

void UserInput::drag(const QWidget& widget, QPoint from, QPoint to)
{
    m_time += kBetweenClicks;
    press(widget, from, Qt::LeftButton);
    post(widget, to, Qt::LeftButton, Qt::NoButton, QEvent::MouseMove, ++m_time);
    release(widget, to, Qt::LeftButton);
}

void UserInput::key(Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        // Where the keyboard is by then, which what is handled before may change.
        queue(qApp, [=](QObject*) {
            if (QWindow* const window = QGuiApplication::focusWindow()) {
                qt_handleKeyEvent(window, type, key, modifiers);
            }
        });
    }
}

} // namespace tessera::test
