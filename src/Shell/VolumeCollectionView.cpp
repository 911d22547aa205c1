// SPDX-License-Identifier: MIT
#include "Shell/VolumeCollectionView.h"

#include "Shell/NonBlockingTextField.h"
#include "Shell/PlaceNames.h"
#include "TreeView/Bar.h"
#include "Utils/DisplayText.h"
#include "Utils/Util.h"

#include <QLabel>

#include <cmath>

namespace tessera {

namespace {

constexpr double kDisabledAlpha = 0.7;

float filledShare(const FileSystemSizes& sizes)
{
    const double freeShare
        = static_cast<double>(sizes.freeBytes) / static_cast<double>(sizes.totalBytes);
    const auto share = static_cast<float>(1.0 - freeShare);
    return std::isnan(share) ? 0.0F : share;
}

} // namespace

void VolumeCollectionView::setUrl(const Url& url, const QIcon& icon)
{
    HomeItemView::setUrl(url);
    const QString name = localizedVolumeName(url);
    imageView().setPixmap(icon.pixmap(imageView().maximumSize(), devicePixelRatioF()));
    nameLabel().setText(name);
    setToolTip(plainTooltip(name));
    setAccessibleName(name);
    updateColors();
}

void VolumeCollectionView::setFileSystemSizes(const std::optional<FileSystemSizes>& sizes)
{
    const FileSystemSizes known = sizes.value_or(FileSystemSizes());
    spaceBar().setPercentFilled(filledShare(known));
    spaceBar().update();
    const QString size = QString::fromStdString(Util::formatSize(known.freeBytes));
    spaceLabel().setText(tr("Free Space: %1").arg(size));
    setAccessibleDescription(spaceLabel().text());
}

QLabel& VolumeCollectionView::imageView() const
{
    return *findChild<QLabel*>(QStringLiteral("imageView"));
}

NonBlockingTextField& VolumeCollectionView::nameLabel() const
{
    return *findChild<NonBlockingTextField*>(QStringLiteral("nameLabel"));
}

NonBlockingTextField& VolumeCollectionView::spaceLabel() const
{
    return *findChild<NonBlockingTextField*>(QStringLiteral("spaceLabel"));
}

Bar& VolumeCollectionView::spaceBar() const
{
    return *findChild<Bar*>(QStringLiteral("spaceBar"));
}

void VolumeCollectionView::updateColors()
{
    const TextColors colors = textColors();
    nameLabel().setTextColor(colors.name);
    spaceLabel().setTextColor(colors.detail);
}

void VolumeCollectionView::updateAlphaValue()
{
    // A volume that was disabled once stays pale, unlike a folder.
    if (disabled()) {
        setAlphaValue(kDisabledAlpha);
    }
}

} // namespace tessera
