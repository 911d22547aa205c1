// SPDX-License-Identifier: MIT
#include "MainWindow/FolderDrop.h"

#include "Scanning/ResourceValues.h"

#include <QDropEvent>
#include <QMimeData>
#include <QWidget>

#include <optional>

namespace tessera {

namespace {

// A list of URLs, RFC 2483: one a line, lines that begin with # are comments.
constexpr const char* kUrlListType = "text/uri-list";

/// The item that is dragged; nothing when it is none on a file system, or more than one. Read from
/// the bytes, since Qt's own URLs do not keep names that are no text.
std::optional<Url> draggedItem(const QMimeData& data)
{
    std::optional<Url> item;
    for (const QByteArray& line : data.data(QString::fromLatin1(kUrlListType)).split('\n')) {
        const QByteArray text = line.trimmed();
        if (text.isEmpty() || text.startsWith('#')) {
            continue;
        }
        if (item) {
            return std::nullopt;
        }
        item = Url::fromAbsoluteString(text.toStdString());
        if (!item) {
            return std::nullopt;
        }
    }
    return item;
}

} // namespace

FolderDrop::FolderDrop(QWidget& window, WithTimeLimit<ResourceValues> resourceValues)
    : m_resourceValues(resourceValues)
{
    window.setAcceptDrops(true);
    window.installEventFilter(this);
}

void FolderDrop::enter(QDropEvent& event)
{
    const std::optional<Url> item = draggedItem(*event.mimeData());
    const bool isFolder = item && m_resourceValues->isDirectory(item->path());
    m_folder = isFolder ? Url(item->path(), true) : Url();
}

bool FolderDrop::eventFilter(QObject* watched, QEvent* event)
{
    const QEvent::Type type = event->type();
    if (type != QEvent::DragEnter && type != QEvent::DragMove && type != QEvent::Drop) {
        return QObject::eventFilter(watched, event);
    }
    auto& drop = static_cast<QDropEvent&>(*event);
    if (type == QEvent::DragEnter) {
        enter(drop);
    }
    drop.setDropAction(m_folder.empty() ? Qt::IgnoreAction : Qt::CopyAction);
    drop.setAccepted(!m_folder.empty());
    if (type == QEvent::Drop && drop.isAccepted()) {
        emit dropped(m_folder);
    }
    return true;
}

} // namespace tessera
