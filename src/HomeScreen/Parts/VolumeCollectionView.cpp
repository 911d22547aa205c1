// SPDX-License-Identifier: MIT
#include "HomeScreen/Parts/VolumeCollectionView.h"

#include "Base/ByteSize.h"
#include "Base/DisplayText.h"
#include "HomeScreen/Places/PlaceIcons.h"
#include "HomeScreen/Places/PlaceNames.h"
#include "Widgets/Bar.h"
#include "Widgets/PassiveLabel.h"
#include "ui_VolumeCollectionView.h"

#include <QLabel>

#include <cmath>

namespace tessera {

namespace {

constexpr double kUnavailableDiskAlpha = 0.7;

float filledShare(const FileSystemSizes& sizes)
{
    const double freeShare
        = static_cast<double>(sizes.freeBytes) / static_cast<double>(sizes.totalBytes);
    const auto share = static_cast<float>(1.0 - freeShare);
    return std::isnan(share) ? 0.0F : share;
}

} // namespace

VolumeCollectionView::VolumeCollectionView(QWidget* parent)
    : HomeItemView(parent)
    , m_ui(std::make_unique<Ui::VolumeCollectionView>())
{
    m_ui->setupUi(this);
}

VolumeCollectionView::~VolumeCollectionView() = default;

void VolumeCollectionView::setUrl(const Url& url, const QIcon& icon)
{
    HomeItemView::setUrl(url);
    const QString name = localizedVolumeName(url);
    imageView().setPixmap(pixmapIn(imageView().maximumSize(), icon, devicePixelRatioF()));
    nameLabel().setText(name);
    setAccessibleName(name);
    describe({});
    updateColors();
}

void VolumeCollectionView::setFileSystemSizes(const std::optional<FileSystemSizes>& sizes)
{
    const FileSystemSizes known = sizes.value_or(FileSystemSizes());
    spaceBar().setPercentFilled(filledShare(known));
    spaceBar().update();
    const QString size = QString::fromStdString(formatSize(known.freeBytes));
    spaceLabel().setText(tr("Free Space: %1").arg(size));
    describe(known);
}

/// Disks of one name differ in where they are, and mostly in how large they are.
void VolumeCollectionView::describe(const FileSystemSizes& sizes)
{
    const QString path = displayText(url().path());
    const QString size = QString::fromStdString(formatSize(sizes.totalBytes));
    const QString place = sizes.totalBytes == 0 ? path : tr("%1, %2").arg(path, size);
    setToolTip(plainTooltip(accessibleName() + QLatin1Char('\n') + place));
    const QString space = spaceLabel().text();
    setAccessibleDescription(space.isEmpty() ? place : tr("%1; %2").arg(space, place));
}

QLabel& VolumeCollectionView::imageView() const
{
    return *m_ui->imageView;
}

PassiveLabel& VolumeCollectionView::nameLabel() const
{
    return *m_ui->nameLabel;
}

PassiveLabel& VolumeCollectionView::spaceLabel() const
{
    return *m_ui->spaceLabel;
}

Bar& VolumeCollectionView::spaceBar() const
{
    return *m_ui->spaceBar;
}

void VolumeCollectionView::updateColors()
{
    const TextColors colors = textColors();
    nameLabel().setTextColor(colors.name);
    spaceLabel().setTextColor(colors.detail);
}

void VolumeCollectionView::updateAlphaValue()
{
    // A volume that was unavailable once stays pale, unlike a folder.
    if (unavailable()) {
        setAlphaValue(kUnavailableDiskAlpha);
    }
}

} // namespace tessera
