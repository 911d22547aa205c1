// SPDX-License-Identifier: MIT
#include "QuickLook/Reading/KindName.h"

#include "Base/DisplayText.h"
#include "Base/Url.h"

#include <QList>
#include <QMimeDatabase>
#include <QMimeType>

#include <algorithm>

namespace tessera {

namespace {

QString plainText()
{
    return QStringLiteral("text/plain");
}

QString pdf()
{
    return QStringLiteral("application/pdf");
}

bool canBeShownAs(const QMimeType& type, ContentShown shown)
{
    switch (shown) {
    case ContentShown::Picture:
        return type.name().startsWith(QLatin1String("image/"));
    case ContentShown::Pages:
        return type.inherits(pdf());
    case ContentShown::Text:
        return type.inherits(plainText());
    case ContentShown::Nothing:
        break;
    }
    return true;
}

bool isOneKindOfMedia(const QMimeType& first, const QMimeType& second)
{
    const QString media = first.name().section(u'/', 0, 0) + u'/';
    const bool isMedia = media == QLatin1String("image/") || media == QLatin1String("audio/")
        || media == QLatin1String("video/");
    return isMedia && second.name().startsWith(media);
}

/// Whether a file of the kind that its name says may have bytes like those that were found.
bool agrees(const QMimeType& named, const QMimeType& found, ContentShown shown)
{
    return named.inherits(found.name()) || found.inherits(named.name())
        || (shown == ContentShown::Nothing && isOneKindOfMedia(named, found));
}

QMimeType bestType(const QList<QMimeType>& named, const QMimeType& found, ContentShown shown)
{
    for (const QMimeType& type : named) {
        if (canBeShownAs(type, shown) && agrees(type, found, shown)) {
            return found.inherits(type.name()) ? found : type;
        }
    }
    if (canBeShownAs(found, shown)) {
        return found;
    }
    const auto fitting = std::ranges::find_if(
        named, [shown](const QMimeType& type) { return canBeShownAs(type, shown); });
    if (fitting != named.end()) {
        return *fitting;
    }
    const QMimeDatabase types;
    switch (shown) {
    case ContentShown::Pages:
        return types.mimeTypeForName(pdf());
    case ContentShown::Text:
        return types.mimeTypeForName(plainText());
    case ContentShown::Picture:
    case ContentShown::Nothing:
        break;
    }
    return {};
}

/// The kinds of items that have no content, as the desktop names them.
QString specialTypeName(FileKind kind)
{
    switch (kind) {
    case FileKind::Folder:
        return QStringLiteral("inode/directory");
    case FileKind::SymbolicLink:
        return QStringLiteral("inode/symlink");
    case FileKind::Fifo:
        return QStringLiteral("inode/fifo");
    case FileKind::Socket:
        return QStringLiteral("inode/socket");
    case FileKind::BlockDevice:
        return QStringLiteral("inode/blockdevice");
    case FileKind::CharacterDevice:
        return QStringLiteral("inode/chardevice");
    case FileKind::Regular:
    case FileKind::Unknown:
        break;
    }
    return {};
}

QString nameOf(const std::string& path)
{
    return displayText(lastPathComponent(path));
}

} // namespace

QString kindNameOfContent(const std::string& path, const QByteArray& beginning, ContentShown shown)
{
    const QMimeDatabase types;
    if (beginning.isEmpty()) {
        return types.mimeTypeForFileNameAndData(nameOf(path), beginning).comment();
    }
    const QList<QMimeType> named = types.mimeTypesForFileName(nameOf(path));
    return bestType(named, types.mimeTypeForData(beginning), shown).comment();
}

QString kindNameOfItem(const std::string& path, FileKind kind)
{
    const QMimeDatabase types;
    const QString special = specialTypeName(kind);
    return special.isEmpty()
        ? types.mimeTypeForFile(nameOf(path), QMimeDatabase::MatchExtension).comment()
        : types.mimeTypeForName(special).comment();
}

} // namespace tessera
