// SPDX-License-Identifier: MIT
#include "TreeScreen/TrashNote.h"

#include "Base/DisplayText.h"
#include "Language/SizeText.h"
#include "TreeScreen/NoteAccessible.h"

#include <QHBoxLayout>
#include <QKeyEvent>

#include <algorithm>
#include <array>

namespace tessera {

namespace {

constexpr int kTrashNotePadding = 8;
constexpr int kTrashNoteSpacing = 8; ///< between the text and the buttons
constexpr int kDistanceFromEdges = 12; ///< of the picture
constexpr int kNameShare = 3; ///< the name gets at most one part in so many of the picture's width

/// A name of another direction than the text's does not turn what stands beside it.
QString isolated(const QString& name)
{
    constexpr QChar kFirstStrongIsolate(0x2068);
    constexpr QChar kPopDirectionalIsolate(0x2069);
    return kFirstStrongIsolate + name + kPopDirectionalIsolate;
}

} // namespace

TrashNote::TrashNote(QWidget* picture)
    : QFrame(picture)
    // NOLINTBEGIN(cppcoreguidelines-owning-memory): the note owns them
    , m_label(new QLabel(this))
    , m_undo(new QPushButton(tr("Undo"), this))
    , m_openTrash(new QPushButton(tr("Open Trash"), this))
{
    readOutWhenShown(*this);
    // A click beside the buttons is not meant for the box below.
    setAttribute(Qt::WA_NoMousePropagation);
    setFrameStyle(QFrame::Box);
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::ToolTipBase);
    setForegroundRole(QPalette::ToolTipText);
    m_label->setTextFormat(Qt::PlainText);
    m_label->setForegroundRole(QPalette::ToolTipText);
    auto* const layout = new QHBoxLayout(this);
    // NOLINTEND(cppcoreguidelines-owning-memory)
    layout->setContentsMargins(
        kTrashNotePadding, kTrashNotePadding, kTrashNotePadding, kTrashNotePadding);
    layout->setSpacing(kTrashNoteSpacing);
    layout->addWidget(m_label, 1);
    setUp(*m_undo);
    setUp(*m_openTrash);
    connect(m_undo, &QPushButton::clicked, this, &TrashNote::undoRequested);
    connect(m_openTrash, &QPushButton::clicked, this, &TrashNote::openTrashRequested);
    hide();
    m_end.setSingleShot(true);
    m_end.setInterval(kMilliseconds);
    m_end.callOnTimeout(this, &TrashNote::end);
    picture->installEventFilter(this);
}

void TrashNote::setUp(QPushButton& button)
{
    // The picture keeps the keyboard when the button is clicked.
    button.setFocusPolicy(Qt::TabFocus);
    // Return presses it as Space does.
    button.setAutoDefault(true);
    button.installEventFilter(this);
    layout()->addWidget(&button);
}

void TrashNote::sayItem(std::string_view name, std::optional<std::uint64_t> bytes)
{
    const QString text = bytes
        ? tr("“%1” (%2) is in the trash. Its space is free once the trash is emptied.")
              .arg(QStringLiteral("%1"), sizeText(*bytes))
        : tr("“%1” is in the trash. Its space is free once the trash is emptied.");
    begin(text, displayText(name));
}

void TrashNote::sayItems(std::size_t count, std::optional<std::uint64_t> bytes)
{
    const int number = static_cast<int>(count);
    const QString text = bytes
        ? tr("%n items (%1) are in the trash. Their space is free once the trash is emptied.",
             nullptr,
             number)
              .arg(sizeText(*bytes))
        : tr(
            "%n items are in the trash. Their space is free once the trash is emptied.",
            nullptr,
            number);
    begin(text, {});
}

void TrashNote::sayItem(std::string_view name, OtherNames otherNames)
{
    const QString text = otherNames == OtherNames::OfTheFile
        ? tr("“%1” is in the trash. It has other names: its space stays in use until all of them "
             "are gone.")
        : tr("“%1” is in the trash. Files in it have other names: their space stays in use until "
             "all of those are gone.");
    begin(text, displayText(name));
}

void TrashNote::sayItemsWithOtherNames(std::size_t count)
{
    const QString text = tr(
        "%n items are in the trash. Files among them have other names: their space stays in "
        "use until all of those are gone.",
        nullptr,
        static_cast<int>(count));
    begin(text, {});
}

void TrashNote::begin(const QString& text, const QString& name)
{
    // Screen readers read out what comes into sight.
    vanish();
    m_text = text;
    m_name = name;
    setAccessibleName(name.isEmpty() ? text : text.arg(name));
    restartTime();
    place();
}

void TrashNote::end()
{
    m_text.clear();
    m_end.stop();
    vanish();
}

void TrashNote::keepClearOf(const QRect& selected)
{
    m_selected = selected;
    place();
}

/// Shows as much of the name as leaves room for the rest.
void TrashNote::elide()
{
    if (m_name.isEmpty()) {
        m_label->setText(m_text);
        return;
    }
    const int room = parentWidget()->width() / kNameShare;
    const QString shown = m_label->fontMetrics().elidedText(m_name, Qt::ElideMiddle, room);
    m_label->setText(m_text.arg(isolated(shown)));
}

void TrashNote::place()
{
    if (m_text.isEmpty()) {
        return;
    }
    elide();
    fit();
    if (const std::optional<QPoint> corner = freePlace()) {
        move(*corner);
        show();
        raise();
    } else {
        vanish();
    }
}

void TrashNote::fit()
{
    const int room = std::max(parentWidget()->width() - 2 * kDistanceFromEdges, 1);
    m_label->setWordWrap(false);
    QSize size = sizeHint();
    if (size.width() > room) {
        m_label->setWordWrap(true);
        size = {room, heightForWidth(room)};
    }
    resize(size);
}

/// Of its upper left corner, in the picture.
std::optional<QPoint> TrashNote::freePlace() const
{
    const QWidget& picture = *parentWidget();
    const int left = (picture.width() - width()) / 2;
    const std::array tops{picture.height() - height() - kDistanceFromEdges, kDistanceFromEdges};
    const auto* const top = std::ranges::find_if(tops, [this, left](int y) {
        return !QRect(QPoint(left, y), size()).intersects(m_selected);
    });
    return top == tops.end() ? std::nullopt : std::optional(QPoint(left, *top));
}

/// The keyboard goes back to the picture, and not to whatever Qt has next.
void TrashNote::vanish()
{
    if (hasKeyboard()) {
        parentWidget()->setFocus();
    }
    hide();
}

bool TrashNote::hasKeyboard() const
{
    const QWidget* const focused = window()->focusWidget();
    return focused != nullptr && isAncestorOf(focused);
}

void TrashNote::restartTime()
{
    if (m_isPointerOver || m_undo->hasFocus() || m_openTrash->hasFocus()) {
        m_end.stop();
    } else if (!m_text.isEmpty()) {
        m_end.start();
    }
}

void TrashNote::enterEvent(QEnterEvent* event)
{
    QFrame::enterEvent(event);
    m_isPointerOver = true;
    restartTime();
    emit pointerCame();
}

void TrashNote::leaveEvent(QEvent* event)
{
    QFrame::leaveEvent(event);
    m_isPointerOver = false;
    restartTime();
}

void TrashNote::hideEvent(QHideEvent* event)
{
    QFrame::hideEvent(event);
    if (m_isPointerOver) {
        m_isPointerOver = false;
        restartTime();
    }
}

void TrashNote::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape) {
        end();
    } else {
        QFrame::keyPressEvent(event);
    }
}

void TrashNote::changeEvent(QEvent* event)
{
    QFrame::changeEvent(event);
    if (event->type() == QEvent::FontChange) {
        place();
    }
}

bool TrashNote::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == parent() && event->type() == QEvent::Resize) {
        place();
    } else if (
        watched != parent()
        && (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut)) {
        restartTime();
    }
    return QFrame::eventFilter(watched, event);
}

} // namespace tessera
