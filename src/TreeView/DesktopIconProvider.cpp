// SPDX-License-Identifier: MIT
#include "TreeView/DesktopIconProvider.h"

#include "Model/File.h"
#include "Utils/DisplayText.h"

#include <QApplication>
#include <QIcon>
#include <QMimeType>
#include <QStyle>

namespace tessera {

namespace {

constexpr int kCommonPoints = 32;

QString folderIconName(const File& node)
{
    return node.type() == NodeType::Volume ? QStringLiteral("drive-harddisk")
                                           : QStringLiteral("folder");
}

QIcon styleIcon(bool isFolder)
{
    return QApplication::style()->standardIcon(isFolder ? QStyle::SP_DirIcon : QStyle::SP_FileIcon);
}

} // namespace

DesktopIconProvider::DesktopIconProvider()
{
    const double scale = qApp->devicePixelRatio();
    const QString folder = QStringLiteral("folder");
    namedIcon({folder, kCommonPoints, scale}, folder, true);
    const QMimeType type
        = m_types.mimeTypeForFile(QStringLiteral("a.txt"), QMimeDatabase::MatchExtension);
    namedIcon({type.iconName(), kCommonPoints, scale}, type.genericIconName(), false);
}

QPixmap DesktopIconProvider::icon(const File& node, int points, double scale)
{
    if (node.isFolder()) {
        const QString name = folderIconName(node);
        return namedIcon({name, points, scale}, QStringLiteral("folder"), true);
    }
    const QMimeType type
        = m_types.mimeTypeForFile(displayText(node.name()), QMimeDatabase::MatchExtension);
    return namedIcon({type.iconName(), points, scale}, type.genericIconName(), false);
}

QPixmap DesktopIconProvider::namedIcon(const Key& key, const QString& genericName, bool isFolder)
{
    const auto known = m_icons.constFind(key);
    if (known != m_icons.constEnd()) {
        return *known;
    }
    QIcon icon = QIcon::fromTheme(key.name);
    if (icon.isNull()) {
        icon = QIcon::fromTheme(genericName);
    }
    if (icon.isNull()) {
        icon = styleIcon(isFolder);
    }
    QPixmap picture = icon.pixmap(QSize(key.points, key.points), key.scale);
    m_icons.insert(key, picture);
    return picture;
}

} // namespace tessera
