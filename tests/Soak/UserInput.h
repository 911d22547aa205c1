// SPDX-License-Identifier: MIT
#pragma once

#include <QPoint>
#include <Qt>

class QWidget;
class QWindow;

namespace tessera::test {

/// A user's pointer and keyboard. What they do is put into the window system's queue and handled
/// when the event loop comes to it, so that it goes where the program's windows, popups and modal
/// dialogs let it go. Positions are in the widget's own coordinates.
class UserInput {
public:
    void move(const QWidget& widget, QPoint position);
    void click(const QWidget& widget, QPoint position, Qt::MouseButton button = Qt::LeftButton);
    void doubleClick(const QWidget& widget, QPoint position);
    void drag(const QWidget& widget, QPoint from, QPoint to);
    /// To the window that has the keyboard; nothing when none has.
    static void key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);

private:
    void press(const QWidget& widget, QPoint position, Qt::MouseButton button);
    void release(const QWidget& widget, QPoint position, Qt::MouseButton button);

    int m_time = 0; ///< milliseconds, by which clicks are told from double clicks
};

} // namespace tessera::test
