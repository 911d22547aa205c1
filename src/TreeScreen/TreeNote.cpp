// SPDX-License-Identifier: MIT
#include "TreeScreen/TreeNote.h"

#include "TreeScreen/NoteAccessible.h"

#include <algorithm>

namespace tessera {

namespace {

constexpr int kPadding = 8;
constexpr int kDistance = 12; ///< from the edges of the picture

} // namespace

TreeNote::TreeNote(QWidget* picture, const QWidget* other)
    : QLabel(picture)
    , m_other(other)
{
    readOutWhenShown(*this);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setTextFormat(Qt::PlainText);
    setAlignment(Qt::AlignCenter);
    setMargin(kPadding);
    setFrameStyle(QFrame::Box);
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::ToolTipBase);
    setForegroundRole(QPalette::ToolTipText);
    hide();
    m_end.setSingleShot(true);
    m_end.setInterval(kMilliseconds);
    m_end.callOnTimeout(this, &QWidget::hide);
}

void TreeNote::say(const QString& text)
{
    // Screen readers read out what comes into sight.
    hide();
    setText(text);
    setAccessibleName(text);
    place();
    show();
    raise();
    m_end.start();
}

void TreeNote::place()
{
    const QWidget& picture = *parentWidget();
    const int room = std::max(picture.width() - 2 * kDistance, 1);
    setWordWrap(false);
    const bool fitsIntoOneLine = sizeHint().width() <= room;
    setWordWrap(!fitsIntoOneLine);
    const int width = fitsIntoOneLine ? sizeHint().width() : room;
    const int height = fitsIntoOneLine ? sizeHint().height() : heightForWidth(width);
    QRect frame(
        (picture.width() - width) / 2, picture.height() - height - kDistance, width, height);
    if (m_other != nullptr && m_other->isVisible() && m_other->geometry().intersects(frame)) {
        frame.moveTop(m_other->y() - height - kDistance);
    }
    setGeometry(frame);
}

} // namespace tessera
