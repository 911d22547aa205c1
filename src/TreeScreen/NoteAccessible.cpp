// SPDX-License-Identifier: MIT
#include "TreeScreen/NoteAccessible.h"

#include <QAccessibleWidget>
#include <QVariant>

namespace tessera {

namespace {

constexpr const char* kIsNote = "tesseraIsNote";

QAccessibleInterface* makeNoteAccessible(const QString& /*className*/, QObject* object)
{
    auto* const note = qobject_cast<QWidget*>(object);
    return note == nullptr || !note->property(kIsNote).toBool()
        ? nullptr
        // NOLINTNEXTLINE(cppcoreguidelines-owning-memory): Qt owns it
        : new QAccessibleWidget(note, QAccessible::AlertMessage);
}

} // namespace

void readOutWhenShown(QWidget& note)
{
    static const bool isInstalled = [] {
        QAccessible::installFactory(&makeNoteAccessible);
        return true;
    }();
    Q_UNUSED(isInstalled)
    note.setProperty(kIsNote, true);
}

} // namespace tessera
