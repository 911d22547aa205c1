// SPDX-License-Identifier: MIT
#include "HomeScreen/Places/PlaceIcons.h"

#include "Widgets/Images.h"

#include <QString>

#include <algorithm>
#include <array>

namespace tessera {

namespace {

/// In pixels. What themes have pictures for.
constexpr std::array kThemeSizes{16, 22, 24, 32, 48, 64, 96, 128, 256, 512};

struct IconNames {
    const char* inTheme;
    const char* own;
};

QIcon icon(const IconNames& names)
{
    const QString inTheme = QString::fromLatin1(names.inTheme);
    // A theme would give its plain folder for a kind of folder that it does not have.
    return QIcon::hasThemeIcon(inTheme) ? QIcon::fromTheme(inTheme) : imageNamed(names.own);
}

IconNames namesOf(LocationKind kind)
{
    switch (kind) {
    case LocationKind::Home:
        return {"user-home", "folder-home"};
    case LocationKind::Applications:
        return {"folder-applications", "folder-applications"};
    case LocationKind::Desktop:
        return {"user-desktop", "folder-desktop"};
    case LocationKind::Documents:
        return {"folder-documents", "folder-documents"};
    case LocationKind::Downloads:
        return {"folder-download", "folder-downloads"};
    case LocationKind::Library:
        return {"folder-appdata", "folder-library"};
    case LocationKind::Movies:
        return {"folder-videos", "folder-movies"};
    case LocationKind::Music:
        return {"folder-music", "folder-music"};
    case LocationKind::Pictures:
        return {"folder-pictures", "folder-pictures"};
    case LocationKind::Public:
        return {"folder-publicshare", "folder-public"};
    case LocationKind::Sites:
        return {"folder-html", "folder-sites"};
    case LocationKind::Trash:
        break;
    }
    return {"user-trash", "trash"};
}

} // namespace

QIcon volumeIcon(MountedVolume::Kind kind)
{
    switch (kind) {
    case MountedVolume::Kind::Removable:
        return icon({"drive-removable-media", "disk-removable"});
    case MountedVolume::Kind::Network:
        return icon({"folder-remote", "disk-network"});
    case MountedVolume::Kind::Disk:
        break;
    }
    return icon({"drive-harddisk", "disk"});
}

QIcon locationIcon(LocationKind kind)
{
    return icon(namesOf(kind));
}

QIcon plainFolderIcon()
{
    return icon({"folder", "folder"});
}

QPixmap pixmapIn(const QSize& box, const QIcon& icon, qreal pixelRatio, QIcon::Mode mode)
{
    const QSize pixels = box * pixelRatio;
    const int least = std::max(pixels.width(), pixels.height());
    const auto* const size = std::ranges::lower_bound(kThemeSizes, least);
    const int asked = size == kThemeSizes.end() ? least : *size;
    QPixmap drawn = icon.pixmap(QSize(asked, asked), 1, mode);
    if (drawn.isNull()) {
        return drawn;
    }
    QPixmap result = drawn.scaled(pixels, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    result.setDevicePixelRatio(pixelRatio);
    return result;
}

} // namespace tessera
