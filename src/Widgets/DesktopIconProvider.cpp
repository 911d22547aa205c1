// SPDX-License-Identifier: MIT
#include "Widgets/DesktopIconProvider.h"

#include "Base/DisplayText.h"
#include "Model/File.h"
#include "Widgets/Images.h"

#include <QGuiApplication>
#include <QIcon>
#include <QMimeType>

namespace tessera {

namespace {

constexpr int kCommonPoints = 32;

} // namespace

DesktopIconProvider::DesktopIconProvider()
{
    const double scale = qApp->devicePixelRatio();
    namedIcon(folderNames(NodeType::Folder), kCommonPoints, scale);
    namedIcon(documentNames(QStringLiteral("a.txt")), kCommonPoints, scale);
}

DesktopIconProvider::IconNames DesktopIconProvider::folderNames(NodeType type)
{
    return type == NodeType::Volume
        ? IconNames{QStringLiteral("drive-harddisk"), QStringLiteral("drive-harddisk"), "disk"}
        : IconNames{QStringLiteral("folder"), QStringLiteral("folder"), "folder"};
}

DesktopIconProvider::IconNames DesktopIconProvider::documentNames(const QString& fileName) const
{
    const QMimeType type = m_types.mimeTypeForFile(fileName, QMimeDatabase::MatchExtension);
    return {type.iconName(), type.genericIconName(), "document"};
}

QIcon DesktopIconProvider::findIcon(const IconNames& names)
{
    for (const QString& name : {names.inTheme, names.moreGeneral}) {
        if (QIcon icon = QIcon::fromTheme(name); !icon.isNull()) {
            return icon;
        }
    }
    return imageNamed(names.own);
}

QPixmap DesktopIconProvider::icon(const File& node, int points, double scale)
{
    return namedIcon(
        node.isFolder() ? folderNames(node.type()) : documentNames(displayText(node.name())),
        points,
        scale);
}

QPixmap DesktopIconProvider::namedIcon(const IconNames& names, int points, double scale)
{
    const Key key{names.inTheme, points, scale};
    const auto known = m_icons.constFind(key);
    if (known != m_icons.constEnd()) {
        return *known;
    }
    QPixmap picture = findIcon(names).pixmap(QSize(points, points), scale);
    m_icons.insert(key, picture);
    return picture;
}

} // namespace tessera
